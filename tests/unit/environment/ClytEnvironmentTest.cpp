#include "environment/ClytEnvironment.h"

#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

const CString oneNul('\0', 1);

// An environment of its own, with a language file and `lyt.ini` under one folder.
class LanguageTexts : public testing::Test
{
protected:
    LanguageTexts()
    {
        environment.SetInitPath(folder.Path().c_str());
        environment.SetDialogPath(folder.Path().c_str());
        folder.Write("lyt.ini", "[global]\r\nCurrent Language=Test\r\n");
    }

    std::string TextOf(const std::string& text, const CString& argument) const
    {
        folder.Write("lang/Test.nls", "[s]\r\nk=" + text + "\r\n");
        const CString found = environment.GetText("s", "k", argument);
        return {found.GetString(), static_cast<size_t>(found.GetLength())};
    }

    TestFolder folder;
    ClytEnvironment environment;
};

class IniValues : public LanguageTexts
{
};

} // namespace

TEST(ClytEnvironment, NamesTheConfigurationFileWithOneSeparator)
{
    ClytEnvironment environment;
    EXPECT_EQ(environment.GetIniFileName(), "\\lyt.ini");
    environment.SetInitPath("C:\\init");
    EXPECT_EQ(environment.GetIniFileName(), "C:\\init\\lyt.ini");
    environment.SetInitPath("C:\\init\\");
    EXPECT_EQ(environment.GetIniFileName(), "C:\\init\\lyt.ini");
    environment.SetInitPath("\\");
    EXPECT_EQ(environment.GetIniFileName(), "\\lyt.ini");
}

TEST(ClytEnvironment, JoinsDefinesByCommas)
{
    ClytEnvironment environment;
    EXPECT_EQ(environment.GetDialogDefine(), "");
    environment.AddDialogDefine("A");
    EXPECT_EQ(environment.GetDialogDefine(), "A");
    environment.AddDialogDefine("B");
    EXPECT_EQ(environment.GetDialogDefine(), "A,B");
    environment.ClearDialogDefine();
    EXPECT_EQ(environment.GetDialogDefine(), "");
}

TEST(ClytEnvironment, JoinsAnEmptyDefineOnlyAfterAnother)
{
    ClytEnvironment environment;
    environment.AddDialogDefine("");
    EXPECT_EQ(environment.GetDialogDefine(), "");
    environment.AddDialogDefine("A");
    environment.AddDialogDefine("");
    EXPECT_EQ(environment.GetDialogDefine(), "A,");
}

TEST(ClytEnvironment, ResetKeepsDefinesAndTheVersionInUse)
{
    ClytEnvironment environment;
    environment.SetInitPath("a");
    environment.SetDialogPath("b");
    environment.SetDocName("c");
    environment.AddDialogDefine("D");
    environment.lytWordVersions = "16.0";
    environment.lytWordCurrent = "16.0 64 bit";
    environment.lytOfficeRelease = "release";
    environment.lytOfficeVersion = "version";
    environment.lytReportLines.AddTail("line");

    environment.Reset();
    EXPECT_EQ(environment.GetInitPath(), "");
    EXPECT_EQ(environment.GetDialogPath(), "");
    EXPECT_EQ(environment.GetDocName(), "");
    EXPECT_EQ(environment.GetDialogDefine(), "D");
    EXPECT_EQ(environment.lytWordVersions, "");
    EXPECT_EQ(environment.lytWordCurrent, "16.0 64 bit");
    EXPECT_EQ(environment.lytOfficeRelease, "");
    EXPECT_EQ(environment.lytOfficeVersion, "");
    EXPECT_TRUE(environment.lytReportLines.GetLines().IsEmpty());
}

TEST_F(LanguageTexts, StandInTheFileOfTheCurrentLanguage)
{
    EXPECT_EQ(environment.GetLanguage(), "Test");
    EXPECT_EQ(environment.GetLanguageFileName(), (folder.Path() + "\\lang\\Test.nls").c_str());
    EXPECT_EQ(TextOf("a text", ""), "a text");
}

TEST_F(LanguageTexts, AreReadAnewAtEachCall)
{
    EXPECT_EQ(TextOf("before", ""), "before");
    EXPECT_EQ(TextOf("after", ""), "after");
    folder.Write("lyt.ini", "[global]\r\nCurrent Language=Other\r\n");
    folder.Write("lang/Other.nls", "[s]\r\nk=other\r\n");
    EXPECT_EQ(environment.GetText("s", "k"), "other");
}

TEST_F(LanguageTexts, AreTheSentinelWithoutALanguage)
{
    folder.Write("lyt.ini", "[global]\r\n");
    EXPECT_EQ(environment.GetLanguage(), "no value present");
    EXPECT_EQ(environment.GetLanguageFileName(), (folder.Path() + "\\lang\\no value present.nls").c_str());
    EXPECT_EQ(TextOf("a text", ""), "no value present");
}

TEST_F(LanguageTexts, AreTheSentinelWhenFileSectionOrKeyIsMissing)
{
    EXPECT_EQ(environment.GetText("s", "k"), "no value present");
    folder.Write("lang/Test.nls", "[s]\r\nk=text\r\n");
    EXPECT_EQ(environment.GetText("s", "other"), "no value present");
    EXPECT_EQ(environment.GetText("other", "k"), "no value present");
}

TEST_F(LanguageTexts, FollowThePlatformForEmptyNames)
{
    folder.Write("lang/Test.nls", "k=ahead\r\n[s]\r\n=nameless\r\n");
    EXPECT_EQ(environment.GetText("", "k"), "ahead");
    EXPECT_EQ(environment.GetText("s", ""), "nameless");
    EXPECT_EQ(environment.GetText("", ""), "no value present");
}

TEST_F(LanguageTexts, TakeAnArgumentAfterTheirFirstApostrophe)
{
    EXPECT_EQ(TextOf("it's", "x"), "it'xs");
    EXPECT_EQ(TextOf("a''b", "x"), "a'x'b");
    EXPECT_EQ(TextOf("a''b''c", "x"), "a'x'b''c");
    EXPECT_EQ(TextOf("end'", "x"), "end'x");
}

TEST_F(LanguageTexts, WithoutAnApostropheIgnoreTheArgument)
{
    EXPECT_EQ(TextOf("its", "x"), "its");
}

TEST_F(LanguageTexts, WithAnEmptyArgumentStayAsTheyAre)
{
    EXPECT_EQ(TextOf("it's", ""), "it's");
}

TEST_F(LanguageTexts, TakeAnArgumentOfOneNulAndAreThenShownUpToIt)
{
    using namespace std::string_literals;
    EXPECT_EQ(TextOf("it's", oneNul), "it'\0s"s);
    EXPECT_STREQ(environment.GetText("s", "k", oneNul).GetString(), "it'");
    EXPECT_EQ(TextOf("its", oneNul), "its");
}

TEST_F(LanguageTexts, AreCutTo74BytesBeforeTheArgumentIsPutIn)
{
    const std::string text(74, 'x');
    EXPECT_EQ(TextOf(text, ""), text);
    EXPECT_EQ(TextOf(text + "tail", ""), text);
    EXPECT_EQ(TextOf(text + "'", "argument"), text);
    EXPECT_EQ(TextOf("'" + text, "argument"), "'argument" + text.substr(1));
}

TEST_F(LanguageTexts, LanguageIsCutTo74Bytes)
{
    folder.Write("lyt.ini", "[global]\r\nCurrent Language=" + std::string(80, 'l') + "\r\n");
    EXPECT_EQ(environment.GetLanguage(), std::string(74, 'l').c_str());
}

TEST_F(IniValues, OfAnEmptyKeyAreEmptyAndNotTheDefault)
{
    folder.Write("lyt.ini", "[s]\r\nempty=\r\n");
    EXPECT_EQ(environment.GetIniValue("s", "empty"), "");
    EXPECT_EQ(environment.GetIniValue("s", "missing"), "Entry not found");
}

TEST_F(IniValues, AreCutTo1023Bytes)
{
    folder.Write("lyt.ini", "[s]\r\nk=" + std::string(1100, 'v') + "\r\n");
    EXPECT_EQ(environment.GetIniValue("s", "k"), std::string(1023, 'v').c_str());
}

TEST_F(IniValues, WithoutAFileAreTheDefault)
{
    environment.SetInitPath((folder.Path() + "\\none").c_str());
    EXPECT_EQ(environment.GetIniValue("s", "k"), "Entry not found");
    EXPECT_EQ(environment.GetLogLevel(), "0");
}

TEST_F(IniValues, LogLevelIsTheTextOfItsKey)
{
    EXPECT_EQ(environment.GetLogLevel(), "0");
    folder.Write("lyt.ini", "[LogLevel]\r\nlevel= 3 \r\n");
    EXPECT_EQ(environment.GetLogLevel(), "3");
    folder.Write("lyt.ini", "[loglevel]\r\nLEVEL=loud\r\n");
    EXPECT_EQ(environment.GetLogLevel(), "loud");
    folder.Write("lyt.ini", "[LogLevel]\r\nlevel=\r\n");
    EXPECT_EQ(environment.GetLogLevel(), "");
}
