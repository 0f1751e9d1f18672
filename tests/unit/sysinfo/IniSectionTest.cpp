#include "sysinfo/files/IniSection.h"

#include "environment/ClytINISection.h"
#include "support/TestFolder.h"

#include "Lines.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

Texts Shown(const std::string& content)
{
    const TestFolder folder;
    ClytINISection section(folder.Write("test.ini", content).c_str(), "Convert");
    section.Read();
    Texts texts;
    for (const CString& line : IniSectionLines(section))
        texts.emplace_back(line.GetString());
    return texts;
}

} // namespace

TEST(IniSectionDump, AlignsValuesAfterTheLongestKey)
{
    EXPECT_EQ(Shown("[Convert]\r\na=1\r\nlonger=two\r\n"),
              (Texts{"Section [Convert] in lyt.ini:", "  a      = 1", "  longer = two"}));
}

TEST(IniSectionDump, ShowsNoEqualsForAnEmptyValueAndKeepsBothBlanks)
{
    EXPECT_EQ(Shown("[Convert]\r\nempty=\r\nbare\r\n=odd\r\nk=v\r\n"),
              (Texts{"Section [Convert] in lyt.ini:", "  empty  ", "  bare   ", "  =odd   ", "  k     = v"}));
}

TEST(IniSectionDump, SaysThatASectionIsEmptyOrMissing)
{
    const Texts empty = {"Section [Convert] in lyt.ini:", "Section is EMPTY or not found!"};
    EXPECT_EQ(Shown("[Convert]\r\n"), empty);
    EXPECT_EQ(Shown("[Other]\r\na=1\r\n"), empty);
    EXPECT_EQ(Shown(""), empty);
}
