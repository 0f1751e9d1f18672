#include "sysinfo/fonts/Fonts.h"

#include "environment/ClytINISection.h"

#include "Lines.h"

#include <gtest/gtest.h>

namespace
{

const std::string rule = "  " + std::string(81, '-');
const std::string heading = "  Font Family                    | Font Name                      | Character set";

std::string NameLine(const std::string& name)
{
    return "  " + name + std::string(name.size() < 30 ? 30 - name.size() : 0, ' ') + " | " + std::string(30, ' ') +
           " |      ";
}

std::string EntryLine(const std::string& fullName, const std::string& charset)
{
    return "  " + std::string(30, ' ') + " | " + fullName +
           std::string(fullName.size() < 30 ? 30 - fullName.size() : 0, ' ') + " | " + charset;
}

// The report of a section with these lines, on a machine where each name has the fonts given.
class Fonts : public testing::Test
{
protected:
    void AddKey(const char* key, const char* value)
    {
        ClytINIStruct line;
        line.key = key;
        line.value = value;
        section.push_back(line);
    }
    Texts Report()
    {
        CStringList lines;
        AddFontLines(
            "C:\\init\\lyt.ini", &section,
            [this](const CString& name)
            {
                asked.emplace_back(name.GetString());
                return installed;
            },
            lines);
        return TextsOf(lines);
    }

    ClytINISection section{"", ""};
    std::vector<lytFontEntry> installed;
    Texts asked;
};

} // namespace

TEST_F(Fonts, LaysTheTableOutAfterTheKeys)
{
    AddKey("Text", "Tahoma");
    installed = {{"Tahoma", 0}, {"Tahoma", 204}};
    EXPECT_EQ(Report(), (Texts{"Fonts Information from C:\\init\\lyt.ini", "  Text=Tahoma", rule, heading, rule,
                               NameLine("Tahoma"), EntryLine("Tahoma", "ANSI_CHARSET"),
                               EntryLine("Tahoma", "RUSSIAN_CHARSET"), rule}));
}

TEST_F(Fonts, SectionThatCannotBeReadEndsThePart)
{
    CStringList lines;
    AddFontLines(
        "C:\\lyt.ini", nullptr, [](const CString&) { return std::vector<lytFontEntry>(); }, lines);
    EXPECT_EQ(TextsOf(lines), (Texts{"Fonts Information from C:\\lyt.ini", "Section is EMPTY or not found!"}));
}

TEST_F(Fonts, FontNamedTwiceIsAskedForAndListedOnce)
{
    AddKey("Text", "Tahoma,Tahoma");
    AddKey("Other", "Tahoma");
    const Texts report = Report();
    EXPECT_EQ(asked, Texts{"Tahoma"});
    EXPECT_EQ(report, (Texts{"Fonts Information from C:\\init\\lyt.ini", "  Text=Tahoma,Tahoma", "  Other=Tahoma", rule,
                             heading, rule, NameLine("Tahoma"), rule}));
}

TEST_F(Fonts, BlankAfterACommaBelongsToTheName)
{
    AddKey("Text", "Tahoma, Arial");
    const Texts report = Report();
    EXPECT_EQ(asked, (Texts{"Tahoma", " Arial"}));
    EXPECT_EQ(report[5], NameLine(" Arial"));
    EXPECT_EQ(report[7], NameLine("Tahoma"));
}

TEST_F(Fonts, FontOfSeveralCharacterSetsHasALineForEachInTheOrderFound)
{
    AddKey("Text", "Tahoma");
    installed = {{"Tahoma", 238}, {"Tahoma", 0}, {"Tahoma", 161}};
    const Texts report = Report();
    EXPECT_EQ(Texts(report.begin() + 6, report.begin() + 9),
              (Texts{EntryLine("Tahoma", "EASTEUROPE_CHARSET"), EntryLine("Tahoma", "ANSI_CHARSET"),
                     EntryLine("Tahoma", "GREEK_CHARSET")}));
}

TEST_F(Fonts, LikeLinesInARowCollapse)
{
    AddKey("Text", "Tahoma");
    installed = {{"Tahoma", 0}, {"Tahoma", 0}, {"Tahoma Bold", 0}, {"Tahoma", 0}, {"Tahoma", 3}, {"Tahoma", 4}};
    const Texts report = Report();
    EXPECT_EQ(Texts(report.begin() + 6, report.end()),
              (Texts{EntryLine("Tahoma", "ANSI_CHARSET"), EntryLine("Tahoma Bold", "ANSI_CHARSET"),
                     EntryLine("Tahoma", "ANSI_CHARSET"), EntryLine("Tahoma", "<unknown>"), rule}));
}

TEST_F(Fonts, LikeLinesOfTwoNamesBothStay)
{
    AddKey("Text", "A,B");
    installed = {{"Tahoma", 0}};
    EXPECT_EQ(Report(), (Texts{"Fonts Information from C:\\init\\lyt.ini", "  Text=A,B", rule, heading, rule,
                               NameLine("A"), EntryLine("Tahoma", "ANSI_CHARSET"), rule, NameLine("B"),
                               EntryLine("Tahoma", "ANSI_CHARSET"), rule}));
}

TEST_F(Fonts, NamesStandInTheOrderOfTheirBytes)
{
    AddKey("Text", "arial,Zebra,\xC4hnlich,Arial,Ari");
    const Texts report = Report();
    EXPECT_EQ(report, (Texts{"Fonts Information from C:\\init\\lyt.ini", "  Text=arial,Zebra,\xC4hnlich,Arial,Ari",
                             rule, heading, rule, NameLine("Ari"), rule, NameLine("Arial"), rule, NameLine("Zebra"),
                             rule, NameLine("arial"), rule, NameLine("\xC4hnlich"), rule}));
}

TEST_F(Fonts, EmptyPieceNamesNoFont)
{
    AddKey("Text", ",Tahoma,,");
    AddKey("None", "");
    EXPECT_EQ(Report(), (Texts{"Fonts Information from C:\\init\\lyt.ini", "  Text=,Tahoma,,", "  None=", rule, heading,
                               rule, NameLine("Tahoma"), rule}));
    EXPECT_EQ(asked, Texts{"Tahoma"});
}

TEST_F(Fonts, LongNamesKeepTheirWidth)
{
    const std::string name(40, 'x');
    AddKey("Text", name.c_str());
    installed = {{name.c_str(), 0}};
    const Texts report = Report();
    EXPECT_EQ(report[5], NameLine(name));
    EXPECT_EQ(report[6], EntryLine(name, "ANSI_CHARSET"));
}

TEST(CharsetName, NamesEachCharacterSet)
{
    static const struct
    {
        int charset;
        const char* name;
    } named[] = {{0, "ANSI_CHARSET"},      {1, "DEFAULT_CHARSET"},    {2, "SYMBOL_CHARSET"},
                 {77, "MAC_CHARSET"},      {128, "SHIFTJIS_CHARSET"}, {129, "HANGUL_CHARSET"},
                 {130, "JOHAB_CHARSET"},   {134, "GB2312_CHARSET"},   {136, "CHINESEBIG5_CHARSET"},
                 {161, "GREEK_CHARSET"},   {162, "TURKISH_CHARSET"},  {163, "VIETNAMESE_CHARSET"},
                 {177, "HEBREW_CHARSET"},  {178, "ARABIC_CHARSET"},   {186, "BALTIC_CHARSET"},
                 {204, "RUSSIAN_CHARSET"}, {222, "THAI_CHARSET"},     {238, "EASTEUROPE_CHARSET"},
                 {255, "OEM_CHARSET"}};
    Texts names(256, "<unknown>");
    for (const auto& n : named)
        names[static_cast<size_t>(n.charset)] = n.name;
    for (int charset = 0; charset < 256; ++charset)
        EXPECT_EQ(lytCharsetName(static_cast<unsigned char>(charset)), names[static_cast<size_t>(charset)]) << charset;
}
