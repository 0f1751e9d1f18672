#include "environment/ClytEnvironment.h"

#include "support/Cases.h"
#include "support/TestFolder.h"

namespace
{

using namespace std::string_literals;

// A separate environment, with a language file and `lyt.ini` in one folder.
class Environment : public testing::Test
{
protected:
    Environment()
    {
        environment.SetInitPath(folder.Path().c_str());
        environment.SetDialogPath(folder.Path().c_str());
        WriteIni("[global]\r\nCurrent Language=Test\r\n");
    }

    void WriteIni(const std::string& lines) const { folder.Write("lyt.ini", lines); }
    // The text as it is worded with that argument.
    std::string TextOf(const std::string& text, const CString& argument = "") const
    {
        folder.Write("lang/Test.nls", "[s]\r\nk=" + text + "\r\n");
        const CString found = environment.GetText("s", "k", argument);
        return {found.GetString(), static_cast<size_t>(found.GetLength())};
    }
    std::string LevelOf(const std::string& lines) const
    {
        WriteIni(lines);
        return environment.GetLogLevel().GetString();
    }

    TestFolder folder;
    ClytEnvironment environment;
};

} // namespace

TEST_F(Environment, NamesTheConfigurationFileWithOneSeparator)
{
    const auto nameIn = [this](const std::string& path)
    {
        environment.SetInitPath(path.c_str());
        return std::string(environment.GetIniFileName());
    };
    ExpectEach(nameIn, {{"", "\\lyt.ini"},
                        {"C:\\init", "C:\\init\\lyt.ini"},
                        {"C:\\init\\", "C:\\init\\lyt.ini"},
                        {"\\", "\\lyt.ini"}});
}

TEST_F(Environment, JoinsDefinesByCommas)
{
    static const struct
    {
        const char* added;
        const char* defines;
    } steps[] = {{"", ""}, {"A", "A"}, {"B", "A,B"}, {"", "A,B,"}};
    for (const auto& step : steps)
    {
        environment.AddDialogDefine(step.added);
        EXPECT_EQ(environment.GetDialogDefine(), step.defines);
    }
    environment.ClearDialogDefine();
    EXPECT_EQ(environment.GetDialogDefine(), "");
}

TEST_F(Environment, KeepsDefinesAndTheVersionInUseOverAReset)
{
    environment.SetDocName("c");
    environment.AddDialogDefine("D");
    environment.lytWordVersions = "16.0";
    environment.lytWordCurrent = "16.0 64 bit";
    environment.lytOfficeRelease = "release";
    environment.lytOfficeVersion = "version";
    environment.lytReportLines.AddTail("line");
    environment.Reset();
    for (const CString& emptied :
         {environment.GetInitPath(), environment.GetDialogPath(), environment.GetDocName(), environment.lytWordVersions,
          environment.lytOfficeRelease, environment.lytOfficeVersion})
        EXPECT_EQ(emptied, "");
    EXPECT_TRUE(environment.lytReportLines.GetLines().IsEmpty());
    EXPECT_EQ(environment.GetDialogDefine(), "D");
    EXPECT_EQ(environment.lytWordCurrent, "16.0 64 bit");
}

TEST_F(Environment, TakesTextsFromTheFileOfTheLanguageAnewAtEachCall)
{
    EXPECT_EQ(environment.GetText("s", "k"), "no value present");
    EXPECT_EQ(environment.GetLanguageFileName(), (folder.Path() + "\\lang\\Test.nls").c_str());
    EXPECT_EQ(TextOf("before"), "before");
    EXPECT_EQ(TextOf("after"), "after");
    EXPECT_EQ(environment.GetText("s", "other"), "no value present");
    EXPECT_EQ(environment.GetText("other", "k"), "no value present");
    folder.Write("lang/Test.nls", "k=ahead\r\n[s]\r\n=nameless\r\n");
    EXPECT_EQ(environment.GetText("", "k"), "ahead");
    EXPECT_EQ(environment.GetText("s", ""), "nameless");
    EXPECT_EQ(environment.GetText("", ""), "no value present");

    WriteIni("[global]\r\nCurrent Language=Other\r\n");
    folder.Write("lang/Other.nls", "[s]\r\nk=other\r\n");
    EXPECT_EQ(environment.GetText("s", "k"), "other");
    WriteIni("[global]\r\n");
    EXPECT_EQ(environment.GetLanguageFileName(), (folder.Path() + "\\lang\\no value present.nls").c_str());
    EXPECT_EQ(TextOf("a text"), "no value present");
    WriteIni("[global]\r\nCurrent Language=" + std::string(80, 'l') + "\r\n");
    EXPECT_EQ(environment.GetLanguage(), std::string(74, 'l').c_str());
}

TEST_F(Environment, PutsAnArgumentAfterTheFirstApostropheOfTheFirst74Bytes)
{
    ExpectEach([this](const std::string& text) { return TextOf(text, "x"); },
               {{"it's", "it'xs"}, {"a''b", "a'x'b"}, {"a''b''c", "a'x'b''c"}, {"end'", "end'x"}, {"its", "its"}});
    EXPECT_EQ(TextOf("it's"), "it's");
    const CString oneNul('\0', 1);
    EXPECT_EQ(TextOf("it's", oneNul), "it'\0s"s);
    EXPECT_STREQ(environment.GetText("s", "k", oneNul).GetString(), "it'");
    EXPECT_EQ(TextOf("its", oneNul), "its");

    const std::string text(74, 'x');
    EXPECT_EQ(TextOf(text), text);
    EXPECT_EQ(TextOf(text + "tail"), text);
    EXPECT_EQ(TextOf(text + "'", "argument"), text);
    EXPECT_EQ(TextOf("'" + text, "argument"), "'argument" + text.substr(1));
}

TEST_F(Environment, TakesValuesFromTheConfigurationFile)
{
    WriteIni("[s]\r\nempty=\r\nk=" + std::string(1100, 'v') + "\r\n");
    EXPECT_EQ(environment.GetIniValue("s", "empty"), "");
    EXPECT_EQ(environment.GetIniValue("s", "missing"), "Entry not found");
    EXPECT_EQ(environment.GetIniValue("s", "k"), std::string(1023, 'v').c_str());
    ExpectEach([this](const std::string& lines) { return LevelOf(lines); }, {{"", "0"},
                                                                             {"[LogLevel]\r\nlevel= 3 \r\n", "3"},
                                                                             {"[loglevel]\r\nLEVEL=loud\r\n", "loud"},
                                                                             {"[LogLevel]\r\nlevel=\r\n", ""}});
    environment.SetInitPath((folder.Path() + "\\none").c_str());
    EXPECT_EQ(environment.GetIniValue("s", "k"), "Entry not found");
    EXPECT_EQ(environment.GetLogLevel(), "0");
}
