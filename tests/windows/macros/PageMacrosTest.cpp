// The macros of docs/macros.md, as the page has them but for the word processor's objects, which become variables, and for
// its folders, which become folders of the test.
#include "MacroFixture.h"

namespace
{

// Its blocks of macros, one below the other.
std::string MacrosOfPage()
{
    const std::string page = ReadFileBeside("macros.md");
    const std::string opening = "```vb\n";
    std::string macros;
    for (size_t start = page.find(opening); start != std::string::npos; start = page.find(opening, start))
    {
        start += opening.size();
        macros += page.substr(start, page.find("```", start) - start);
    }
    return macros;
}

// The word processor's objects as variables, with what a test needs to set and see them.
const char* const scene = R"(
Private fullName As String
Private folderName As String
Private selected As String
Private typed As String
Private told As String

Public Sub OpenDocument(ByVal name As String, ByVal folder As String)
    fullName = name
    folderName = folder
End Sub
Public Sub SelectText(ByVal words As String)
    selected = words
End Sub
Private Sub MoveEndBack()
    ' The mark of a cell is two characters of the text and one of the document.
    If Right$(selected, 1) = Chr$(7) Then selected = Left$(selected, Len(selected) - 1)
    selected = Left$(selected, Len(selected) - 1)
End Sub
Public Function SelectedText() As String
    SelectedText = selected
End Function
Public Function TypedText() As String
    TypedText = typed
End Function
Public Function ToldText() As String
    ToldText = told
End Function
)";

// The text with the other words in place of those; they must be in it.
void Exchange(std::string& text, const std::string& words, const std::string& others)
{
    size_t place = text.find(words);
    EXPECT_NE(place, std::string::npos) << words;
    for (; place != std::string::npos; place = text.find(words, place + others.size()))
        text.replace(place, words.size(), others);
}

} // namespace

class PageMacros : public MacroTest
{
protected:
    PageMacros()
    {
        std::string macros = MacrosOfPage();
        Exchange(macros, "ActiveDocument.FullName", "fullName");
        Exchange(macros, "ActiveDocument.Path", "folderName");
        Exchange(macros, "ActiveDocument.Name", "\"plan.doc\"");
        Exchange(macros, "Environ$(\"TEMP\")", "\"C:\\nowhere\"");
        Exchange(macros, "Selection.Start < Selection.End", "0 < Len(selected)");
        Exchange(macros, "Selection.MoveEnd wdCharacter, -1", "MoveEndBack");
        Exchange(macros, "Selection.Text", "selected");
        Exchange(macros, "Selection.TypeText ", "typed = typed & ");
        Exchange(macros, "MsgBox Err.Description, vbExclamation", "told = Err.Description");
        Exchange(macros, "C:\\Inspection\\lyt64", folder.File("library"));
        Exchange(macros, "C:\\Inspection\\dialogs", folder.File("dialogs"));
        Exchange(macros, "C:\\Inspection\\init", folder.File("init"));
        macros += scene;
        Exchange(macros, "\n", "\r\n");
        UseModule("\r\n" + macros);
        Call("opendocument", {Given("C:\\nowhere\\plan.doc"), Given("C:\\nowhere")});
        Call("selecttext", {Given("old")});
    }

    // The library is stopped again.
    void ExpectStopped() { EXPECT_EQ(FailureOf("lytdocument"), "Call LytStart before any other function of lyt64."); }
};

TEST_F(PageMacros, TakeTheNewKeyOver)
{
    Answer("lytInSym", "new");
    Call("editproperties");
    EXPECT_EQ(TextOf("selectedtext"), "new");
    ExpectStopped();
}

TEST_F(PageMacros, KeepTheKeyWhenTheAuthorCancels)
{
    Answer("lytInSym", "new", IDCANCEL);
    Call("editproperties");
    EXPECT_EQ(TextOf("selectedtext"), "old");
    ExpectStopped();
}

TEST_F(PageMacros, StopAfterAnErrorAndTellIt)
{
    Answer("lytInSym", std::string(70000, 'x'));
    Call("editproperties");
    EXPECT_EQ(TextOf("toldtext"), "The text is longer than 65536 characters. Shorten it.");
    EXPECT_EQ(TextOf("selectedtext"), "old");
    ExpectStopped();
}

TEST_F(PageMacros, LeaveTheMarksOfASelectionOut)
{
    for (const char* marks : {"", "\r", "\r\x07", "\r\r"})
    {
        Call("selecttext", {Given(std::string("old") + marks)});
        Answer("lytInSym", std::nullopt);
        Call("editproperties");
        EXPECT_EQ(TextOf("selectedtext"), "old");
    }
    Call("selecttext", {Given("\r")});
    Call("leavemarksout");
    EXPECT_EQ(TextOf("selectedtext"), "");
}

TEST_F(PageMacros, GiveADocumentWithoutAFolderOneForItsLog)
{
    const struct
    {
        const char* name;
        const char* folder;
        const char* expected;
    } cases[] = {
        {"C:\\plans\\a.doc", "C:\\plans", "C:\\plans\\a.doc"},
        {"https://example.com/plan.doc", "https://example.com", "C:\\nowhere\\plan.doc"},
        {"Document1", "", "C:\\nowhere\\plan.doc"},
    };
    for (const auto& c : cases)
    {
        Call("opendocument", {Given(c.name), Given(c.folder)});
        EXPECT_EQ(TextOf("nameforlog"), c.expected);
    }
}

TEST_F(PageMacros, TellATextThatTheCodePageLacks)
{
    const macros::HostCodePage western(1252);
    EXPECT_EQ(NumberOf("fitscodepage", {Given("m\xB2")}), macros::yes);
    EXPECT_EQ(NumberOf("fitscodepage", {macros::TextFrom(L"\u05d0")}), macros::no);
}

TEST_F(PageMacros, TypeTheTextsOfTheWizardAndCloseTheBrace)
{
    Pick("Paving");
    Answer("lytWzGrp", "head/LIST{a|b");
    Call("insertplaceholder");
    EXPECT_EQ(TextOf("typedtext"), "head/LIST{ab}");
    ExpectStopped();
}
