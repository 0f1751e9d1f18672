// A data source for the catalogue: serves both trees out of lytsrc.txt, which is beside the library.
#include <lytsrc.h>

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <vector>

namespace
{

constexpr const char* symbolSection = "symbols";
constexpr const char* paraSection = "paragraphs";

// One run of records. A start reads the file to its end, so that nothing stays open between two calls.
struct Run
{
    std::vector<lytTreeRecord> records;
    size_t next = 0;
};

Run symbolRun;
Run paraRun;

std::string CatalogueFileName()
{
    HMODULE self = nullptr;
    GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                       reinterpret_cast<LPCSTR>(&symbolRun), &self);
    char path[MAX_PATH] = "";
    GetModuleFileNameA(self, path, MAX_PATH);
    const std::string library = path;
    return library.substr(0, library.find_last_of("\\/") + 1) + "lytsrc.txt";
}

std::string Trimmed(const std::string& text)
{
    constexpr const char* blanks = " \t\r\n";
    const size_t first = text.find_first_not_of(blanks);
    return first != std::string::npos ? text.substr(first, text.find_last_not_of(blanks) - first + 1) : std::string();
}

// 0, which is no kind, for an unknown word: such an entry takes over the kind of the one before it.
int32_t KindOf(const std::string& word)
{
    static const struct
    {
        const char* word;
        int32_t kind;
    } kinds[] = {
        {"heading", LYT_TREE_HEADING},
        {"group", LYT_TREE_GROUP},
        {"symbol", LYT_TREE_SYMBOL},
    };
    const auto* const found = std::ranges::find_if(kinds, [&](const auto& known) { return word == known.word; });
    return found != std::end(kinds) ? found->kind : 0;
}

// The record's texts are filled with NUL bytes, so that a copy that fills its field but for the last byte is ended.
void CopyText(char (&target)[LYT_TREE_TEXT_SIZE], const std::string& text)
{
    text.copy(target, sizeof target - 1);
}

struct Line
{
    size_t indentation;
    std::string head;
    std::string text; // after the equals sign
};

Line LineOf(const std::string& line)
{
    const size_t separator = std::min(line.find('='), line.size());
    return {line.find_first_not_of(' '), Trimmed(line.substr(0, separator)),
            Trimmed(line.substr(std::min(separator + 1, line.size())))};
}

// The lines below `[section]`, up to the next section.
std::vector<Line> ReadSection(const std::string& section)
{
    std::vector<Line> lines;
    const std::unique_ptr<FILE, int (*)(FILE*)> file(fopen(CatalogueFileName().c_str(), "r"), fclose);
    char line[1024] = "";
    bool wanted = false;
    while (file != nullptr && fgets(line, sizeof line, file.get()) != nullptr)
    {
        const std::string text = Trimmed(line);
        if (text.empty() || text.front() == ';')
            continue;
        if (text.front() == '[')
            wanted = text == "[" + section + "]";
        else if (wanted)
            lines.push_back(LineOf(line));
    }
    return lines;
}

// That of lyt.ini, which the library that reads the catalogue knows; empty without that library.
std::string Language()
{
    using TextFromIniFile = int32_t(__stdcall*)(const char* path, char* buffer, int32_t size);
    HMODULE library = GetModuleHandleA("lyt64.dll");
    FARPROC function = library != nullptr ? GetProcAddress(library, "lytGetTextFromIniFile") : nullptr;
    char language[100] = "";
    if (function != nullptr)
        reinterpret_cast<TextFromIniFile>(reinterpret_cast<void*>(function))("global/Current Language", language,
                                                                             sizeof language - 1);
    return language;
}

// What each label is called in the language, unless it stays as it is.
std::map<std::string, std::string> ReadNames()
{
    std::map<std::string, std::string> names;
    for (const Line& line : ReadSection(Language()))
        names.emplace(line.head, line.text);
    return names;
}

// `kind key = label`, indented by its level.
lytTreeRecord RecordOf(const Line& line, const std::map<std::string, std::string>& names)
{
    const size_t blank = std::min(line.head.find(' '), line.head.size());
    const auto name = names.find(line.text);

    lytTreeRecord record = {};
    record.nLevel = static_cast<int32_t>(line.indentation / 2);
    record.nType = KindOf(line.head.substr(0, blank));
    CopyText(record.szKey, Trimmed(line.head.substr(blank)));
    CopyText(record.szLabel, name != names.end() ? name->second : line.text);
    return record;
}

int32_t Start(Run& run, const char* section)
{
    const std::map<std::string, std::string> names = ReadNames();
    run = {};
    for (const Line& line : ReadSection(section))
        run.records.push_back(RecordOf(line, names));
    return run.records.empty() ? 0 : 1;
}

int32_t Next(Run& run, lytTreeRecord* record)
{
    if (run.next == run.records.size())
        return 0;
    *record = run.records[run.next++];
    return 1;
}

} // namespace

int32_t lytTreeStart(const char* /*selection*/)
{
    return Start(symbolRun, symbolSection);
}

int32_t lytTreeNext(lytTreeRecord* record)
{
    return Next(symbolRun, record);
}

int32_t lytParaTreeStart(const char* /*selection*/)
{
    return Start(paraRun, paraSection);
}

int32_t lytParaTreeNext(lytTreeRecord* record)
{
    return Next(paraRun, record);
}
