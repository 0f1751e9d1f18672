#include "lytdlg/judge/Examples.h"

#include "commandline/CommandLine.h"
#include "lytdlg/judge/Names.h"
#include "lytdlg/text/Words.h"

#include <algorithm>
#include <list>
#include <sstream>

namespace lytdlg
{

namespace
{

using ExampleLines = std::list<std::string>;

constexpr const char* baseDescription = R"($VERSION 1
$LAYOUT Example
Begin Dialog Box 760, 420, "Title", .Main
    Text       16,  15,  80,  12, "Name", .NameLabel
    TextBox   108,  12, 188,  19, .Name
    Text       16,  41,  80,  12, "Unit", .UnitLabel
    TextBox   108,  38, 188,  19, .Unit
    Text       16,  67,  80,  12, "Place", .PlaceLabel
    DropListBox 108, 64, 188,  79, .Place
    Text       16,  93,  80,  12, "Form", .FormLabel
    ComboBox  108,  90, 188,  79, .Form
    Text       16, 119,  80,  12, "Order", .OrderLabel
    OptionGroup .Order
    OptionButton 108, 119, 80, 12, "Short", .Short
    OptionButton 208, 119, 80, 12, "Long", .Long
    CheckBox  108, 145, 120,  12, "Pictures", .Pictures
    Text       16, 168, 120,  12, "AllRooms", .AllRoomsLabel
    ListBox    16, 186, 160,  79, .AllRooms
    PushButton 188, 186, 96,  21, "Add", .Add
    Text      296, 168, 120,  12, "Rooms", .RoomsLabel
    ListBox   296, 186, 160,  79, .Rooms
    Text       16, 275, 120,  12, "Parts", .PartsLabel
    CheckListBox 16, 293, 280, 79, .Parts
    OKButton  228, 384, 112,  22, .Ok
    CancelButton 352, 384, 112, 22, .Cancel
End Dialog
$VALUES
    Place: Hall = hall place
    Place: Stairs = stairs place
    Place: Cellar = cellar place
    Form: NoForm = ""
    Form: Round = round form
    Form: Square = square form
    Short = s
    Long = l
    Order = s
    Pictures: ON = P
    Pictures: OFF = -
    Pictures = -
    AllRooms: Kitchen = k
    AllRooms: Bath = b
    AllRooms: Office = o
    AllRooms: Attic = a
    Add: ADD = AllRooms, Rooms
$DEPENDANCES
    Add/ACTIVE = AllRooms(NOTNULL)
$EVALUATION, x
    Name = NULL: NameMissing
$INPUT, parent
    Start: (";", Unit = Name
    Unit: (999, End = Unit
$OUTPUT, parent
    ("%s;%s;%s;%s;%s;%s", Name, Unit, Place, Form, Order, Pictures)
$END
)";

// Of a language file, to be gone on with.
constexpr const char* exampleTexts =
    "[Buttons]\r\n001=OK\r\n002=&Cancel\r\n\r\n"
    "[MsgBox]\r\nNameMissing=Please enter a name.\r\n\r\n"
    "[Example]\r\nTitle=Example\r\nName=&Name:\r\nUnit=&Unit:\r\nPlace=&Place:\r\nForm=&Form:\r\nOrder=&Order:\r\n"
    "Short=&Short\r\nLong=&Long\r\nPictures=P&ictures\r\nAllRooms=&All rooms:\r\nAdd=A&dd\r\nRooms=&Rooms:\r\n"
    "Parts=Par&ts:\r\nHall=Hall\r\nStairs=Stairs\r\nCellar=Cellar\r\nNoForm=(none)\r\nRound=Round\r\n"
    "Square=Square\r\nKitchen=Kitchen\r\nBath=Bath\r\nOffice=Office\r\nAttic=Attic\r\n"
    "Remove=Remo&ve\r\nNote=&Note\r\nExtra=E&xtra\r\nPlain=Plain\r\nAuthor=T&he author's name\r\n"
    "LongText=A text that goes on for longer than the seventy-four characters that there are\r\n"
    "Accent=Accent&2 \xC3\x84\r\nCopied=Copied&3\r\nCopied=Cop&y\r\n";

// It shows what the example does not.
constexpr const char* otherDescription =
    "$VERSION 1\r\n$LAYOUT Example\r\nBegin Dialog Box 300, 220, \"Title\", .Main\r\n"
    "TextBox 16, 12, 100, 19, .Name\r\nText 16, 38, 100, 12, \"Remove\"\r\nText 16, 54, 100, 12, \"Note\"\r\n"
    "Text 16, 70, 100, 12, \"Plain\"\r\nText 16, 86, 100, 12, \"Author\"\r\nText 16, 102, 100, 12, \"LongText\"\r\n"
    "Text 16, 118, 100, 12, \"Marked\"\r\nText 16, 134, 100, 12, \"Extra\"\r\n"
    "Text 140, 38, 100, 12, \"Nothing\"\r\nText 140, 54, 100, 12, \"Stray\"\r\nText 16, 150, 100, 12, "
    "\"Accent\"\r\nText 16, 166, 100, 12, "
    "\"Copied\"\r\nOKButton 16, 188, 80, "
    "22\r\nCancelButton "
    "108, 188, 80, 22\r\n"
    "End Dialog\r\n$VALUES\r\n$DEPENDANCES\r\n$EVALUATION, x\r\nName = NULL: NameMissing\r\n$INPUT, parent\r\n"
    "Start: (999, End = Name\r\n$OUTPUT, parent\r\n(\"%s\", Name)\r\n$END\r\n";

ExampleLines ExampleLinesOf(const std::string& text)
{
    ExampleLines lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

// The word of the section that a header opens or was meant to open; empty for any other line.
std::string SectionOf(const std::string& line)
{
    const std::string word = line.substr(0, line.find_first_of(" ,\t="));
    if (!word.starts_with('$'))
        return "";
    std::vector<std::string> known;
    for (const Section section : allSections)
        known.emplace_back(lytWordOf(section));
    return MeantWord(word, known);
}

// What comes before the delimiter, for a statement that has a name.
std::string NameOf(const std::string& line)
{
    return line.substr(0, line.find(':') + 1);
}

// Puts the lines of one example into the description.
class ExampleWriter
{
public:
    ExampleWriter() : m_lines(ExampleLinesOf(baseDescription)), m_place(m_lines.begin()) {}

    void Take(const std::string& line)
    {
        const std::string section = SectionOf(line);
        if (!section.empty())
            OpenSection(section, line);
        else if (line.starts_with('-') && Find(line.substr(1)) != m_lines.end())
            Remove(Find(line.substr(1)));
        else if (commandline::IsClose(line.substr(0, line.find(' ')), "Begin"))
            *std::ranges::find_if(m_lines, [](const std::string& known) { return known.starts_with("Begin Dialog"); }) =
                line;
        else
            Put(line);
    }

    std::string Text() const
    {
        std::string text;
        for (const std::string& line : m_lines)
            text += line + "\n";
        return text;
    }

private:
    ExampleLines::iterator Find(const std::string& text)
    {
        return std::ranges::find_if(m_lines, [&](const std::string& line) { return Trimmed(line) == Trimmed(text); });
    }

    void Remove(const ExampleLines::iterator& line)
    {
        const bool isPlace = line == m_place;
        const auto next = m_lines.erase(line);
        if (isPlace)
            m_place = next;
    }

    void OpenSection(const std::string& section, const std::string& header)
    {
        m_section = section;
        auto line = header == section ? Known(section) : std::ranges::find(m_lines, header);
        if (line == m_lines.end())
            line = OpenPart(section, header);
        m_part = line;
        m_place = section == "$OUTPUT" || section == "$VERSION" ? std::next(line) : EndOf(line);
        if (section == "$LAYOUT")
            m_place = std::prev(m_place, 3); // OKButton, CancelButton, End Dialog
    }

    // The header of a section, the first one.
    ExampleLines::iterator Known(const std::string& section)
    {
        return std::ranges::find_if(m_lines, [&](const std::string& line) { return SectionOf(line) == section; });
    }

    // Another header takes the place of the one that is there, or opens a further part below its section.
    ExampleLines::iterator OpenPart(const std::string& section, const std::string& header)
    {
        const auto line = Known(section);
        const bool isPart = header.starts_with(section + ", ") && (section == "$INPUT" || section == "$OUTPUT");
        if (isPart && !header.ends_with(", Parent"))
            return m_lines.insert(EndOf(line), header);
        *line = header;
        return line;
    }

    ExampleLines::iterator EndOf(ExampleLines::iterator line)
    {
        return std::find_if(std::next(line), m_lines.end(),
                            [](const std::string& known) { return !SectionOf(known).empty(); });
    }

    void Put(const std::string& line)
    {
        const std::string name = m_section == "$INPUT" ? NameOf(Trimmed(line)) : "";
        const auto end = m_section.empty() ? m_place : EndOf(m_part);
        const auto same =
            name.empty()
                ? end
                : std::find_if(m_part, end, [&](const std::string& known) { return NameOf(Trimmed(known)) == name; });
        if (same != end)
            *same = line;
        else
            m_lines.insert(m_place, line);
    }

    ExampleLines m_lines;
    std::string m_section; // empty above the first header
    ExampleLines::iterator m_part;
    ExampleLines::iterator m_place; // new lines come before it
};

void Replace(std::string& text, const std::string& mark, const std::string& by)
{
    for (size_t place = text.find(mark); place != std::string::npos; place = text.find(mark, place + by.size()))
        text.replace(place, mark.size(), by);
}

} // namespace

std::string ExampleDescription(const std::string& lines)
{
    ExampleWriter writer;
    for (const std::string& line : ExampleLinesOf(lines))
        writer.Take(line);
    std::string text = writer.Text();
    Replace(text, "{ABOVE}\n", "");
    Replace(text, "{NUL}", std::string(1, '\0'));
    Replace(text, "{1A}", "\x1A");
    Replace(text, "{A0}", "\xA0");
    Replace(text, "{LONG}", std::string(400, ' '));
    text.erase(std::min(text.find("{CUT}"), text.size()));
    return text;
}

std::string ExampleName(const std::string& lines)
{
    const std::string first = lines.substr(0, lines.find('\n'));
    return first.starts_with("; ") && first.ends_with(".dlg") ? first.substr(2) : "";
}

const std::vector<ExampleFile>& ExampleFiles()
{
    static const std::string english =
        std::string(exampleTexts) + "Marked=Marked\r\nNothing=\r\nStray=Salt & sugar\r\n";
    static const std::string german =
        std::string(exampleTexts) + "Marked=Mar&ked\r\nNothing=\r\nStray=Salz & Zucker\r\n";
    static const std::vector<ExampleFile> files = {{"lyt.ini", "[global]\r\nCurrent Language=English\r\n"},
                                                   {"lang/English.nls", english.c_str()},
                                                   {"lang/German.nls", german.c_str()},
                                                   {"other.dlg", otherDescription}};
    return files;
}

} // namespace lytdlg
