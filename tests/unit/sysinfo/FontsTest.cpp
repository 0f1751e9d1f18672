#include "sysinfo/fonts/Fonts.h"
#include "sysinfo/fonts/Locale.h"

#include "environment/ClytINISection.h"

#include "Lines.h"
#include "unit/Readings.h"

namespace
{

const std::string rule = "  " + std::string(81, '-');
const std::string heading = "  Font Family                    | Font Name                      | Character set";

std::string Column(const std::string& text)
{
    return text + std::string(text.size() < 30 ? 30 - text.size() : 0, ' ');
}

std::string NameLine(const std::string& name)
{
    return "  " + Column(name) + " | " + Column("") + " |      ";
}

std::string EntryLine(const std::string& fullName, const std::string& charset)
{
    return "  " + Column("") + " | " + Column(fullName) + " | " + charset;
}

// A section with these lines, on a machine where each name has the fonts given.
class Fonts : public testing::Test
{
protected:
    void AddKey(const char* key, const char* value)
    {
        section.emplace_back();
        section.back().key = key;
        section.back().value = value;
    }
    // The lines after the head of the table, which is after the lines of the keys.
    Texts Table()
    {
        CStringList lines;
        const auto find = [this](const CString& name)
        {
            asked.emplace_back(name.GetString());
            return installed;
        };
        AddFontLines("C:\\init\\lyt.ini", &section, find, lines);
        const Texts report = TextsOf(lines);
        Texts head = {"Fonts Information from C:\\init\\lyt.ini"};
        for (const ClytINIStruct& line : section)
            head.push_back(("  " + line.key + "=" + line.value).GetString());
        head.insert(head.end(), {rule, heading, rule});
        const auto end = report.begin() + static_cast<std::ptrdiff_t>(head.size());
        EXPECT_EQ(Texts(report.begin(), end), head);
        return {end, report.end()};
    }

    ClytINISection section{"", ""};
    std::vector<FontEntry> installed;
    Texts asked;
};

} // namespace

TEST_F(Fonts, SectionThatCannotBeReadEndsThePart)
{
    CStringList lines;
    AddFontLines(
        "C:\\lyt.ini", nullptr, [](const CString&) { return std::vector<FontEntry>(); }, lines);
    EXPECT_EQ(TextsOf(lines), (Texts{"Fonts Information from C:\\lyt.ini", "Section is EMPTY or not found!"}));
}

TEST_F(Fonts, AreAskedForAndListedOnceInTheOrderOfTheirBytes)
{
    AddKey("Text", "arial,Zebra,\xC4hnlich,,Arial,Ari, Arial,arial,");
    AddKey("Other", "Arial");
    AddKey("None", "");
    const Texts names = {" Arial", "Ari", "Arial", "Zebra", "arial", "\xC4hnlich"};
    Texts expected;
    for (const std::string& name : names)
        expected.insert(expected.end(), {NameLine(name), rule});
    EXPECT_EQ(Table(), expected);
    EXPECT_EQ(asked.size(), names.size());
}

TEST_F(Fonts, HaveALineForEachCharacterSetInTheOrderFoundWithoutLikeLinesInARow)
{
    const std::string longName(40, 'x');
    AddKey("Text", ("A," + longName).c_str());
    installed = {{"Tahoma", 238}, {"Tahoma", 0}, {"Tahoma", 0}, {"Tahoma Bold", 0},
                 {"Tahoma", 0},   {"Tahoma", 3}, {"Tahoma", 4}, {longName.c_str(), 238}};
    const Texts entries = {EntryLine("Tahoma", "EASTEUROPE_CHARSET"),
                           EntryLine("Tahoma", "ANSI_CHARSET"),
                           EntryLine("Tahoma Bold", "ANSI_CHARSET"),
                           EntryLine("Tahoma", "ANSI_CHARSET"),
                           EntryLine("Tahoma", "<unknown>"),
                           EntryLine(longName, "EASTEUROPE_CHARSET"),
                           rule};
    Texts expected = {NameLine("A")};
    expected.insert(expected.end(), entries.begin(), entries.end());
    expected.push_back(NameLine(longName));
    expected.insert(expected.end(), entries.begin(), entries.end());
    EXPECT_EQ(Table(), expected);
}

TEST(CharsetName, NamesEachCharacterSet)
{
    Texts names(256, "<unknown>");
    for (const TextCase& named : ReadingsOf("sysinfo/names.cases", "Charset"))
        names[std::stoul(named.given)] = named.made;
    for (size_t charset = 0; charset < names.size(); ++charset)
        EXPECT_EQ(lytCharsetName(static_cast<unsigned char>(charset)), names[charset]) << charset;
}

TEST(Locale, ListsEachValueInOrderUnderItsLabel)
{
    const auto ask = [](unsigned locale, unsigned type)
    {
        CString text;
        text.Format("%u/%u", locale, type);
        return text;
    };
    CStringList lines;
    AddLocaleLines(ask, lines);
    EXPECT_EQ(TextsOf(lines), (Texts{
                                  "LOCALE.SYSTEM.ANSICODEPAGE        = 2048/4100",
                                  "LOCALE.SYSTEM.CODEPAGE            = 2048/11",
                                  "LOCALE.USER.ANSICODEPAGE          = 1024/4100",
                                  "LOCALE.USER.CODEPAGE              = 1024/11",
                                  "LOCALE.USER.LANGUAGE              = 1024/2",
                                  "LOCALE.USER.COUNTRY (region code) = 1024/5",
                                  "LOCALE.USER.COUNTRY               = 1024/10",
                                  "LOCALE.USER.EBCDICCODEPAGE        = 1024/4114",
                                  "LOCALE.USER.LANGUAGE              = 1024/1",
                                  "LOCALE.USER.SABBREVCTRY           = 1024/7",
                                  "LOCALE.USER.COUNTRY               = 1024/6",
                                  "LOCALE.USER.ENGCOUNTRY            = 1024/4098",
                                  "LOCALE.USER.ENGLANGUAGE           = 1024/4097",
                                  "LOCALE.USER.ISO3166CTRY           = 1024/90",
                                  "LOCALE.USER.ISO639LANG            = 1024/89",
                                  "LOCALE.USER.NATIVECTRY            = 1024/8",
                                  "LOCALE.USER.NATIVELANG            = 1024/4",
                              }));
}

TEST(LanguageGroups, TellForEachGroupWhetherItIsInstalled)
{
    Texts expected = {"Windows installed languages:"};
    for (const TextCase& group : ReadingsOf("sysinfo/names.cases", "LanguageGroup"))
        expected.push_back("Language " + group.made +
                           (std::stoi(group.given) % 3 == 0 ? " not installed in Windows, see ZVK note 939928"
                                                            : " is installed in Windows"));
    CStringList lines;
    AddLanguageGroupLines({}, lines);
    EXPECT_EQ(lines.GetCount(), 0) << "where the system does not know them";
    AddLanguageGroupLines([](unsigned group) { return group % 3 != 0; }, lines);
    EXPECT_EQ(TextsOf(lines), expected);
}
