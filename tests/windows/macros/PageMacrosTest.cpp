// The example of docs/macros.md, as the page has it but for the word processor's objects, which become arguments, and for
// its folders, which become those of the test.
#include "MacroFixture.h"

namespace
{

std::string ExampleOfPage()
{
    const std::string page = ReadFileBeside("macros.md");
    const std::string opening = "```vb\n";
    const size_t start = page.find(opening) + opening.size();
    return page.substr(start, page.find("```", start) - start);
}

// The text with the other words in that one's place, wherever it stands; it must stand somewhere.
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
        std::string example = ExampleOfPage();
        Exchange(example, "Sub EditProperties()",
                 "Public Sub EditProperties(ByVal fileName As String, ByRef selected As String)");
        Exchange(example, "ActiveDocument.FullName", "fileName");
        Exchange(example, "Selection.Text", "selected");
        Exchange(example, "C:\\Inspection\\lyt64", folder.File("library"));
        Exchange(example, "C:\\Inspection\\dialogs", folder.File("dialogs"));
        Exchange(example, "C:\\Inspection\\init", folder.File("init"));
        Exchange(example, "\n", "\r\n");
        UseModule("\r\n" + example);
    }

    void EditSelected() { Call("editproperties", {Given("C:\\nowhere\\plan.doc"), Given("old")}); }
};

TEST_F(PageMacros, TakeTheNewKeyOver)
{
    Answer("lytInSym", "new");
    EditSelected();
    EXPECT_EQ(TextAt(1), "new");
}

TEST_F(PageMacros, KeepTheKeyWhenTheAuthorCancels)
{
    Answer("lytInSym", "new", IDCANCEL);
    EditSelected();
    EXPECT_EQ(TextAt(1), "old");
}
