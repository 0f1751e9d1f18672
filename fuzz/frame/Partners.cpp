#include "fuzz/frame/Partners.h"

#include "base/PartnerLibrary.h"
#include "fuzz/frame/InputText.h"
#include "fuzz/frame/UsedForm.h"
#include "lyt64.h"
#include "lytdata.h"
#include "support/DescriptionText.h"

#include <algorithm>

namespace
{

std::vector<lytTreeRecord> catalogue;
size_t nextRecord = 0;
std::string itemsLeft;

int32_t LevelOf(char ch)
{
    if (ch == '<')
        return std::numeric_limits<int32_t>::min();
    return ch == '>' ? std::numeric_limits<int32_t>::max() : ch - '0';
}

// A text that fills its field leaves no room for a NUL.
void CopyField(char (&field)[LYT_TREE_TEXT_SIZE], const std::string& text)
{
    text.copy(field, sizeof field);
}

lytTreeRecord RecordOf(const std::string& line)
{
    lytTreeRecord record = {};
    record.nLevel = !line.empty() ? LevelOf(line[0]) : 0;
    record.nType = line.size() > 1 ? line[1] - '0' : 0;
    const size_t tab = std::min(line.find('\t'), line.size());
    CopyField(record.szLabel, line.substr(std::min<size_t>(2, tab), tab - std::min<size_t>(2, tab)));
    CopyField(record.szKey, line.substr(std::min(tab + 1, line.size())));
    return record;
}

int32_t StartCatalogue(const char* /*selection*/)
{
    nextRecord = 0;
    return catalogue.empty() ? 0 : 1;
}

int32_t NextRecord(lytTreeRecord* record)
{
    if (nextRecord == catalogue.size())
        return 0;
    *record = catalogue[nextRecord++];
    return 1;
}

// Writes as much of a text as the buffer holds, without a NUL when it is full.
void Fill(char* buffer, int size, const std::string& text)
{
    const auto room = static_cast<size_t>(size);
    std::fill_n(buffer, room, '\0');
    text.copy(buffer, room);
}

// The parameter is the list: its items are between the marks that a check list writes.
void OpenList(const char* parameter)
{
    itemsLeft = std::string(parameter) + "|one|Xtwo";
}

int NextItem(char* display, int size, char* value, int valueSize)
{
    if (itemsLeft.empty())
        return 0;
    const size_t end = std::min(itemsLeft.find('|'), itemsLeft.size());
    Fill(display, size, itemsLeft.substr(0, end));
    Fill(value, valueSize, itemsLeft.substr(0, end));
    itemsLeft.erase(0, end + 1);
    return 1;
}

int LookUp(const char* parameter, char* text, int size)
{
    Fill(text, size, "(" + std::string(parameter) + ")");
    return 1;
}

int LookUpRaises(const char* /*parameter*/, char* /*text*/, int /*size*/)
{
    throw std::runtime_error("the library failed");
}

int LookUpLong(const char* /*parameter*/, char* text, int size)
{
    Fill(text, size, std::string(static_cast<size_t>(size) + 1, 'x'));
    return 1;
}

// A library has functions of one kind, under any name they are asked for by: a description that took one for one of another
// kind would break any program.
class Partners : public ClytOwnLibraries
{
public:
    HMODULE Load(const char* name) override
    {
        const std::string_view asked = name;
        for (Library& library : m_libraries)
        {
            if (asked.starts_with(library.name))
                return reinterpret_cast<HMODULE>(&library);
        }
        return nullptr;
    }
    bool Owns(HMODULE library) const override
    {
        return std::ranges::any_of(m_libraries,
                                   [&](const Library& own) {
                                       return reinterpret_cast<const void*>(&own) == static_cast<const void*>(library);
                                   });
    }
    // An empty name is that of no function, and ends a fill.
    FARPROC Find(HMODULE library, const char* function) override
    {
        if (*function != '\0')
            return reinterpret_cast<Library*>(library)->find(*this, function);
        m_isNextDue = false;
        return nullptr;
    }

private:
    struct Library
    {
        std::string_view name;
        FARPROC (*find)(Partners&, std::string_view function);
    };

    template <class FUNCTION>
    static FARPROC Address(FUNCTION* function)
    {
        return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(function));
    }
    // A fill asks for the function that starts the listing, and then for the one that continues it.
    FARPROC FindOfList()
    {
        m_isNextDue = !m_isNextDue;
        return m_isNextDue ? Address(OpenList) : Address(NextItem);
    }
    static FARPROC FindText(std::string_view function)
    {
        if (function.ends_with("Raises"))
            return Address(LookUpRaises);
        return function.ends_with("Long") ? Address(LookUpLong) : Address(LookUp);
    }
    static FARPROC FindExport(std::string_view function)
    {
        return function.starts_with("lytSymbol") ? Address(lytSymbolPropertyDialog) : Address(lytOpenTreeView);
    }
    static FARPROC FindOfCatalogue(std::string_view function)
    {
        return function.ends_with("Start") ? Address(StartCatalogue) : Address(NextRecord);
    }

    Library m_libraries[4] = {
        {"lists", [](Partners& partners, std::string_view) { return partners.FindOfList(); }},
        {"lyt64", [](Partners&, std::string_view function) { return FindExport(function); }},
        {"lytsrc", [](Partners&, std::string_view function) { return FindOfCatalogue(function); }},
        // Texts, and the answers of buttons.
        {"lytdata", [](Partners&, std::string_view function) { return FindText(function); }},
    };
    bool m_isNextDue = false;
};

// A form whose controls of each class load their library.
void LoadData()
{
    DescriptionText description;
    description.layout = "TextBox 0, 0, 1, 1, .A\nListBox 0, 0, 1, 1, .L\nCheckListBox 0, 0, 1, 1, .M\n"
                         "ComboBox 0, 0, 1, 1, .C\n";
    description.values = "A = FILLEDBY, lytdata, LookUp, x, name\nL = FILLEDBY, lists, OpenList, NextItem, name\n"
                         "M = FILLEDBY, lists, OpenList, NextItem, name\n"
                         "C = FILLEDBY, lists, OpenList, NextItem, name, a/b\n";
    description.input = "Start: (999, End = A(FILL), L(FILL), M(FILL), C(FILL)\n";
    description.output = "(\"%s\", A)\n$OUTPUT, name\n(\"name\")\n";
    UseForm(description(), "x");
}

} // namespace

void InstallPartners()
{
    static Partners partners;
    lytOwnLibraries = &partners;
    LoadData();
}

void SetCatalogue(const std::string& lines)
{
    catalogue.clear();
    for (InputText text(lines); !text.IsAtEnd();)
        catalogue.push_back(RecordOf(text.Line()));
}
