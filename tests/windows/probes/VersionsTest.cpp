// Versions of the word processor and of its office package, and the kernel's.
#include "ProbeFixture.h"

#include "environment/ClytEnvironment.h"

#include <regex>

namespace
{

class WordVersions : public ProbeFixture
{
protected:
    void AddWord(const std::string& name) { registry.AddKey(HKEY_LOCAL_MACHINE, "Software\\Microsoft\\Word\\" + name); }
    void AddOffice(const std::string& name)
    {
        registry.AddKey(HKEY_LOCAL_MACHINE, "Software\\Microsoft\\Office\\" + name);
    }
};

class WordCurrent : public ProbeFixture
{
};

class ClickToRun : public ProbeFixture
{
protected:
    const std::string key = "SOFTWARE\\Microsoft\\Office\\ClickToRun\\Configuration";
};

} // namespace

TEST_F(WordVersions, ComeFromBothKeysAndAreKept)
{
    AddWord("6.0");
    AddWord("7.0");
    AddOffice("16.0");
    AddOffice("7.0");
    AddOffice("Common");
    EXPECT_EQ(lytProbeWordVersions(), "6.0; 7.0; 16.0; 7.0");
    EXPECT_EQ(lytEnvironment.lytWordVersions, "6.0; 7.0; 16.0; 7.0");
}

TEST_F(WordVersions, AreEmptyOnAMachineWithoutAWordProcessor)
{
    lytEnvironment.lytWordVersions = "old";
    EXPECT_EQ(lytProbeWordVersions(), "");
    EXPECT_EQ(lytEnvironment.lytWordVersions, "");
}

TEST_F(WordVersions, EndAtANameOfMoreThanNineCharacters)
{
    AddOffice("12.0");
    AddOffice("123456789");
    AddOffice("1234567890");
    AddOffice("16.0");
    EXPECT_EQ(lytProbeWordVersions(), "12.0; 123456789");
}

TEST_F(WordCurrent, IsEmptyWithoutARegisteredVersion)
{
    lytEnvironment.lytWordCurrent = "old";
    EXPECT_EQ(lytProbeWordCurrent(), "");
    EXPECT_EQ(lytEnvironment.lytWordCurrent, "");
    registry.AddKey(HKEY_CLASSES_ROOT, "Word.Application\\CurVer");
    EXPECT_EQ(lytProbeWordCurrent(), "");
}

TEST_F(WordCurrent, TellsTheBitsOfTheRegisteredProgram)
{
    SetCurrentVersion("Word.Application.16");
    SetWordProgram(OwnFile());
    EXPECT_EQ(lytProbeWordCurrent(), "16.0 64 bit");
    EXPECT_EQ(lytEnvironment.lytWordCurrent, "16.0 64 bit");
    SetWordProgram(folder.Write("winword.com", "a program of the oldest kind"));
    EXPECT_EQ(lytProbeWordCurrent(), "16.0 32 bit");
}

TEST_F(WordCurrent, TellsNoBitsWithoutAProgram)
{
    SetCurrentVersion("Word.Application.16");
    EXPECT_EQ(lytProbeWordCurrent(), "16.0");
    SetWordProgram(folder.Path() + "\\none.exe");
    EXPECT_EQ(lytProbeWordCurrent(), "16.0");
}

TEST_F(WordCurrent, TakesTheFirstValueWhateverItsName)
{
    registry.SetText(HKEY_CLASSES_ROOT, "Word.Application\\CurVer", "named", "Word.Application.12");
    EXPECT_EQ(lytProbeWordCurrent(), "12.0");
}

TEST_F(WordCurrent, ReadsATextWithoutItsEnd)
{
    registry.Set(HKEY_CLASSES_ROOT, "Word.Application\\CurVer", "", REG_SZ, "Word.Application.12");
    EXPECT_EQ(lytProbeWordCurrent(), "12.0");
}

TEST_F(WordCurrent, IsEmptyWhenTheTextIsTooLong)
{
    SetCurrentVersion(std::string(397, 'x') + ".9");
    EXPECT_EQ(lytProbeWordCurrent(), "9.0");
    SetCurrentVersion(std::string(398, 'x') + ".9");
    EXPECT_EQ(lytProbeWordCurrent(), "");
}

TEST_F(ClickToRun, GivesVersionAndReleaseIds)
{
    registry.SetText(HKEY_LOCAL_MACHINE, key, "VersionToReport", "16.0.1234.5");
    registry.SetText(HKEY_LOCAL_MACHINE, key, "ProductReleaseIDs", "ProPlusRetail");
    const ClickToRunFacts facts = lytProbeClickToRun();
    EXPECT_EQ(facts.version, "16.0.1234.5");
    EXPECT_EQ(facts.releaseIds, "ProPlusRetail");
    EXPECT_FALSE(facts.isSubscription);
}

TEST_F(ClickToRun, KnowsASubscriptionByItsReleaseId)
{
    registry.SetText(HKEY_LOCAL_MACHINE, key, "ProductReleaseIDs", "O365ProPlusRetail");
    EXPECT_TRUE(lytProbeClickToRun().isSubscription);
}

TEST_F(ClickToRun, ReadsTextsOfMoreThan64BytesOnceMore)
{
    const std::string ids(500, 'i');
    registry.SetText(HKEY_LOCAL_MACHINE, key, "ProductReleaseIDs", ids);
    EXPECT_EQ(lytProbeClickToRun().releaseIds, ids.c_str());
    EXPECT_EQ(lytProbeClickToRun().version, "");
}

TEST_F(ClickToRun, IsEmptyWithoutItsKey)
{
    const ClickToRunFacts facts = lytProbeClickToRun();
    EXPECT_EQ(facts.version, "");
    EXPECT_EQ(facts.releaseIds, "");
    EXPECT_FALSE(facts.isSubscription);
}

TEST(KernelVersion, IsTheRecordOfTheSystemsLibrary)
{
    const std::string text = lytProbeKernelVersion().GetString();
    EXPECT_TRUE(std::regex_match(
        text, std::regex(R"([^;]+; -?\d+,\d+,\d+,\d+; .:\\windows\\.*kernel32\.dll; \d\d\.\d\d\.\d{4} \d\d:\d\d)",
                         std::regex::icase)))
        << text;
}

TEST(ProgramKind, IsEmptyInAnyOtherProgram)
{
    EXPECT_EQ(lytProgramKind(), "");
}
