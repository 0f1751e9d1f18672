// How macros find the library, and what they hear when they do not.
#include "MacroFixture.h"

class LibraryMacros : public MacroTest
{
protected:
    // Makes no folder, unlike TestFolder::File.
    std::string PathOf(const std::string& name) const { return folder.Path() + "\\" + name; }
    // What the diagnosis says when the module was given this folder.
    std::string DiagnosisFor(const std::string& name)
    {
        Call("lytusefolder", {Given(PathOf(name))});
        return TextOf("lytdiagnose");
    }
    std::string Diagnosis(const std::string& path, const std::string& reason, const std::string& wayOut) const
    {
        return "Tried: " + (path.empty() ? "(no path)" : PathOf(path)) + "\r\nReason: " + reason +
               "\r\nWhat to do: " + wayOut;
    }
};

TEST_F(LibraryMacros, AreReadByTheirHostAsTheyStand)
{
    EXPECT_EQ(moduleText.substr(0, 31), "Attribute VB_Name = \"lyt64\"\r\n' ");
    for (size_t end = moduleText.find('\n'); end != std::string::npos; end = moduleText.find('\n', end + 1))
        EXPECT_EQ(moduleText[end - 1], '\r');
}

TEST_F(LibraryMacros, AreNotInTheListOfMacros)
{
    EXPECT_TRUE(macros::ReadModule(moduleText, true).isPrivate);
}

// The macro editor writes a word in the whole template as its last declaration has it.
TEST_F(LibraryMacros, LeaveTheWordsOfOtherModulesAsTheyAre)
{
    const std::set<std::string> words = {"characters", "count",    "document", "field",  "file",  "first",  "index",
                                         "item",       "items",    "key",      "kind",   "last",  "level",  "lines",
                                         "name",       "names",    "number",   "path",   "range", "result", "second",
                                         "section",    "selected", "size",     "target", "text",  "type",   "value"};
    for (const bool is64Bit : {true, false})
    {
        for (const macros::Line& line : macros::ReadLines(moduleText, is64Bit))
        {
            for (size_t i = 0; i + 1 < line.tokens.size(); ++i)
                EXPECT_FALSE(line.tokens[i + 1].Is("as") && words.contains(line.tokens[i].text)) << line.number;
        }
    }
}

TEST_F(LibraryMacros, FindTheLibraryByItsFullPathAlone)
{
    EXPECT_EQ(FailureOf("freeglobalobject"), "File not found: lyt64.dll");
    EXPECT_EQ(error, 53);

    char before[MAX_PATH] = "";
    GetCurrentDirectoryA(sizeof before, before);
    Start();
    EXPECT_EQ(TextOf("pathofloaded"), folder.File("library\\lyt64.dll"));
    EXPECT_EQ(TextOf("lytdocument"), "C:\\nowhere\\plan.doc");
    EXPECT_EQ(TextOf("lytinitfolder"), folder.File("init"));
    char after[MAX_PATH] = "";
    GetCurrentDirectoryA(sizeof after, after);
    EXPECT_STREQ(after, before);
}

TEST_F(LibraryMacros, StartAgainAfterAnEnd)
{
    Start();
    Call("lytstop");
    Call("lytstop");
    EXPECT_EQ(FailureOf("lytdocument"), "Call LytStart before any other function of lyt64.");
    EXPECT_EQ(error, Error(6403));
    Start();
    EXPECT_EQ(TextOf("lytdocument"), "C:\\nowhere\\plan.doc");
}

TEST_F(LibraryMacros, TakeTheFolderWithItsLastBackslashToo)
{
    Call("lytusefolder", {Given(folder.File("library") + "\\")});
    Call("lytstart", {Given("a.doc"), Given(""), Given(""), Given("SHORT")});
    EXPECT_EQ(TextOf("lytdocument"), "a.doc");
}

TEST_F(LibraryMacros, TellWhyTheLibraryIsNotFound)
{
    EXPECT_EQ(TextOf("lytdiagnose"),
              Diagnosis("", "The folder of lyt64.dll is not known.",
                        "Call LytUseFolder with it before LytStart, or write it into DefaultFolder in this module."));
    EXPECT_EQ(FailureOf("lytstart", {Given(""), Given(""), Given("")}), TextOf("lytdiagnose"));
    EXPECT_EQ(error, Error(6402));
    EXPECT_EQ(DiagnosisFor("nowhere"),
              Diagnosis("nowhere\\lyt64.dll", "The folder does not exist, or cannot be read.",
                        "Correct the folder in LytUseFolder or DefaultFolder, or ask for access to it."));
    EXPECT_EQ(DiagnosisFor("dialogs"),
              Diagnosis("dialogs\\lyt64.dll", "There is no lyt64.dll in this folder.",
                        "Copy it there, or correct the folder in LytUseFolder or DefaultFolder."));
}

TEST_F(LibraryMacros, TellWhyTheLibraryIsNotLoaded)
{
    folder.Write("damaged/lyt64.dll", "no library");
    EXPECT_EQ(DiagnosisFor("damaged"),
              Diagnosis("damaged\\lyt64.dll", "The file is damaged, or no 64-bit library.",
                        "Copy the file again from where it was handed out, and compare it with SHA256SUMS there."));
    for (const auto& [number, reason] :
         {std::pair(5LL, "Windows denies access to the file."), std::pair(126LL, "A library that it needs is missing;"),
          std::pair(1114LL, "Windows refuses to load it, with error 1114.")})
    {
        EXPECT_NE(TextOf("diagnosisoferror", {Given("x"), number}).find(reason), std::string::npos) << reason;
    }
}

TEST_F(LibraryMacros, TellOfAnotherCopyThatIsLoaded)
{
    CopyLibrary("other");
    LoadLibraryA(folder.File("other\\lyt64.dll").c_str());
    const std::string diagnosis =
        Diagnosis("library\\lyt64.dll", "Another copy is loaded already: " + folder.File("other\\lyt64.dll"),
                  "End the word processor and start it again; let every template use the same folder.");
    EXPECT_EQ(DiagnosisFor("library"), diagnosis);
    EXPECT_EQ(FailureOf("lytstart", {Given(""), Given(""), Given("")}), diagnosis);
}

TEST_F(LibraryMacros, TellOfACopyThatLacksAFunction)
{
    folder.Write("partner/nothing.txt", "");
    CopyFileA((ProgramFolder() + "\\..\\lytsrc.dll").c_str(), folder.File("partner\\lyt64.dll").c_str(), FALSE);
    EXPECT_EQ(DiagnosisFor("partner"),
              Diagnosis("partner\\lyt64.dll", "This copy has no function lytInitialiseEnvironment.",
                        "Replace it by the lyt64.dll that this module came with."));
    EXPECT_EQ(FailureOf("lytstart", {Given(""), Given(""), Given("")}), TextOf("lytdiagnose"));
}

TEST_F(LibraryMacros, TellThatAllIsWell)
{
    Start();
    EXPECT_EQ(TextOf("lytdiagnose"),
              Diagnosis("library\\lyt64.dll", "None is left: the library is loaded and has all functions.",
                        "If a function failed, call LytStart before it."));
}

TEST_F(LibraryMacros, TellAHostThatIsNot64Bit)
{
    UseModule("", false);
    const std::string diagnosis =
        "Tried: nothing\r\nReason: lyt64.dll is a 64-bit library, and this word processor is a 32-bit program.\r\n"
        "What to do: Install the 64-bit edition of the word processor.";
    EXPECT_EQ(TextOf("lytdiagnose"), diagnosis);
    EXPECT_EQ(FailureOf("lytstart", {Given(""), Given(""), Given("")}), diagnosis);
    EXPECT_EQ(error, Error(6401));
    EXPECT_EQ(FailureOf("canwrite", {Given("")}), diagnosis);

    // Each function of the library is there in name.
    const macros::Module declared = macros::ReadModule(moduleText, true);
    for (const auto& [name, declaration] : declared.declarations)
    {
        if (declaration.library != "lyt64.dll")
            continue;
        std::vector<Value> arguments;
        for (const macros::Parameter& parameter : declaration.signature.parameters)
            arguments.push_back(macros::InitialValue(parameter.type));
        EXPECT_EQ(FailureOf(name, arguments), diagnosis) << name;
    }
}
