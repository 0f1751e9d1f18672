#include "fuzz/frame/Partners.h"

#include "fuzz/frame/InputText.h"
#include "fuzz/frame/UsedForm.h"
#include "lytdata.h"
#include "platform/PartnerLibraries.h"
#include "support/DescriptionText.h"

#include <algorithm>

namespace
{

std::vector<lytTreeRecord> records;
size_t nextRecord = 0;
std::string items;

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
    return records.empty() ? 0 : 1;
}

int32_t NextRecord(lytTreeRecord* record)
{
    if (nextRecord == records.size())
        return 0;
    *record = records[nextRecord++];
    return 1;
}

// Writes as much of a text as the buffer holds, without a NUL when it is full.
void Fill(char* buffer, int size, const std::string& text)
{
    const auto room = static_cast<size_t>(size);
    std::fill_n(buffer, room, '\0');
    text.copy(buffer, room);
}

// The parameter is the list: its items stand between the marks that a check list writes.
void OpenList(const char* parameter)
{
    items = std::string(parameter) + "|one|Xtwo";
}

int NextItem(char* display, int size, char* value, int valueSize)
{
    if (items.empty())
        return 0;
    const size_t end = std::min(items.find('|'), items.size());
    Fill(display, size, items.substr(0, end));
    Fill(value, valueSize, items.substr(0, end));
    items.erase(0, end + 1);
    return 1;
}

int LookUp(const char* parameter, char* text, int size)
{
    Fill(text, size, "(" + std::string(parameter) + ")");
    return 1;
}

int LookUpLong(const char* /*parameter*/, char* text, int size)
{
    Fill(text, size, std::string(static_cast<size_t>(size) + 1, 'x'));
    return 1;
}

// A form whose controls of each class load the library.
void LoadData()
{
    DescriptionText description;
    description.layout = "TextBox 0, 0, 1, 1, .A\nListBox 0, 0, 1, 1, .L\nCheckListBox 0, 0, 1, 1, .M\n"
                         "ComboBox 0, 0, 1, 1, .C\nPushButton 0, 0, 1, 1, \"b\", .B\n";
    description.values =
        "A = FILLEDBY, lytdata, LookUp, , name\nL = FILLEDBY, lytdata, OpenList, NextItem, name\n"
        "M = FILLEDBY, lytdata, OpenList, NextItem, name\n"
        "C = FILLEDBY, lytdata, OpenList, NextItem, name, a/b\nB: ACTION = lytdata, LookUp, name, parent\n";
    description.input = "Start: x = End = A(FILL), L(FILL), M(FILL), C(FILL)\n";
    description.output = "(\"%s\", A)\n$OUTPUT, name\n(\"name\")\n";
    UseForm(description(), "x");
}

} // namespace

void InstallPartners()
{
    platform::AddFunction("lytdata", "OpenList", OpenList);
    platform::AddFunction("lytdata", "OpenMarked", OpenList);
    platform::AddFunction("lytdata", "NextItem", NextItem);
    platform::AddFunction("lytdata", "LookUp", LookUp);
    platform::AddFunction("lytdata", "LookUpLong", LookUpLong);
    for (const char* start : {"lytTreeStart", "lytParaTreeStart"})
        platform::AddFunction("lytsrc", start, StartCatalogue);
    for (const char* next : {"lytTreeNext", "lytParaTreeNext"})
        platform::AddFunction("lytsrc", next, NextRecord);
    LoadData();
}

void SetCatalogue(const std::string& lines)
{
    records.clear();
    for (InputText text(lines); !text.IsAtEnd();)
        records.push_back(RecordOf(text.Line()));
}
