#include "lytdlg/try/ItemsLibrary.h"

#include "commandline/Text.h"
#include "controls/ClytEditControl.h"
#include "lytdlg/text/Words.h"

#include "lyt64.h"
#include "lytdata.h"

#include <algorithm>
#include <cstring>

namespace lytdlg
{

namespace
{

ItemsLibrary* current = nullptr;

// A library as descriptions name it; its address is its handle. Controls keep the first that they load for the life of
// the process, and so do these.
struct KnownLibrary
{
    std::string name;       // that loads it
    HMODULE real = nullptr; // null when there is no such file, or nobody wanted it yet
};

std::map<std::string, KnownLibrary>& KnownLibraries()
{
    static std::map<std::string, KnownLibrary> libraries;
    return libraries;
}

constexpr const char* ownName = "lyt64";

struct OwnFunction
{
    const char* name;
    lytDataText* function;
};

constexpr OwnFunction ownFunctions[] = {
    {"lytOpenTreeView", lytOpenTreeView},
    {"lytOpenTreeViewPara", lytOpenTreeView},
};

std::string PlainName(const char* library)
{
    std::string name(library);
    name.erase(0, name.find_last_of("\\/") + 1);
    std::ranges::transform(name, name.begin(),
                           [](char ch) { return ch >= 'A' && ch <= 'Z' ? char(ch - 'A' + 'a') : ch; });
    return name.ends_with(".dll") ? name.substr(0, name.size() - 4) : name;
}

HMODULE HandleOf(KnownLibrary& library)
{
    return reinterpret_cast<HMODULE>(&library);
}

HMODULE RealOf(KnownLibrary& library)
{
    const ClytErrorBoxesOff noBoxes;
    if (library.real == nullptr)
        library.real = ::LoadLibraryA(library.name.c_str());
    return library.real;
}

template <class FUNCTION>
FARPROC AddressOf(FUNCTION* function)
{
    return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(function));
}

FARPROC OwnFunctionNamed(const char* name)
{
    const auto* own =
        std::ranges::find_if(ownFunctions, [&](const OwnFunction& one) { return std::strcmp(one.name, name) == 0; });
    return own != std::end(ownFunctions) ? AddressOf(own->function) : nullptr;
}

void CopyText(const std::string& text, char* buffer, int size)
{
    buffer[text.copy(buffer, static_cast<size_t>(size))] = '\0';
}

void StartItems(const char* parameter)
{
    current->Start(parameter);
}

int NextItem(char* display, int size, char* value, int valueSize)
{
    const LibraryItem* item = current->Next();
    if (item == nullptr)
        return 0;
    CopyText(item->shown, display, size);
    CopyText(item->value, value, valueSize);
    return 1;
}

int TextItem(const char* parameter, char* text, int size)
{
    CopyText(current->TextFor(parameter), text, size);
    return 1;
}

LibraryItem ItemOf(const std::string& line)
{
    const size_t sign = line.find('=');
    if (sign == std::string::npos)
        return {line, line, line};
    return {Trimmed(line.substr(0, sign)), Trimmed(line.substr(sign + 1)), line};
}

} // namespace

ItemsFile::ItemsFile(const std::string& name)
{
    std::vector<LibraryItem>* section = &m_others;
    for (const std::string& text : commandline::LinesOf(ReadUtf8File(name)))
    {
        const std::string line = commandline::AsAnsi(Trimmed(text));
        if (line.empty() || line.front() == '#')
            continue;
        if (line.ends_with("->"))
            section = &m_sections[Trimmed(line.substr(0, line.size() - 2))];
        else
            section->push_back(ItemOf(line));
    }
}

ItemsFile::ItemsFile(const std::vector<std::string>& items)
{
    for (const std::string& item : items)
        m_others.push_back({item, item, item});
}

const std::vector<LibraryItem>& ItemsFile::For(const std::string& parameter) const
{
    const auto found = m_sections.find(parameter);
    return found != m_sections.end() ? found->second : m_others;
}

ItemsLibrary::ItemsLibrary(const std::vector<ItemsOption>& options)
{
    for (const ItemsOption& option : options)
        m_files.emplace(option.control, ItemsFile(option.file));
    current = this;
    lytOwnLibraries = this;
}

ItemsLibrary::ItemsLibrary(Invent inventor) : ItemsLibrary(std::vector<ItemsOption>())
{
    m_invent = std::move(inventor);
}

ItemsLibrary::~ItemsLibrary()
{
    lytOwnLibraries = nullptr;
    current = nullptr;
}

void ItemsLibrary::Asked(const ClytControl& control)
{
    m_used.insert(control.GetName().GetString());
    m_asking = ItemsFor(control);
    const bool isField = dynamic_cast<const ClytEditControl*>(&control) != nullptr;
    m_wanted = m_asking == nullptr ? Role::None : isField ? Role::Text : Role::Start;
}

const ItemsFile* ItemsLibrary::ItemsFor(const ClytControl& control)
{
    const std::string name = control.GetName().GetString();
    if (m_invent)
        return &m_files.insert_or_assign(name, ItemsFile(m_invent(control))).first->second;
    const auto found = m_files.find(name);
    return found != m_files.end() ? &found->second : nullptr;
}

std::vector<std::string> ItemsLibrary::Unused() const
{
    std::vector<std::string> names;
    for (const auto& [control, file] : m_files)
    {
        if (!m_used.contains(control))
            names.push_back(control);
    }
    return names;
}

HMODULE ItemsLibrary::Load(const char* name)
{
    const std::string plain = PlainName(name);
    KnownLibrary& library = KnownLibraries()[plain];
    library.name = name;
    const bool isThere = m_wanted != Role::None || plain == ownName || (!m_invent && RealOf(library) != nullptr);
    return isThere ? HandleOf(library) : nullptr;
}

bool ItemsLibrary::Owns(HMODULE library) const
{
    return std::ranges::any_of(KnownLibraries(), [&](auto& known) { return HandleOf(known.second) == library; });
}

FARPROC ItemsLibrary::Find(HMODULE library, const char* function)
{
    const Role wanted = m_wanted;
    m_wanted = wanted == Role::Start ? Role::Next : Role::None;
    switch (wanted)
    {
    case Role::Start: return AddressOf(StartItems);
    case Role::Next: return AddressOf(NextItem);
    case Role::Text: return AddressOf(TextItem);
    case Role::None: break;
    }
    const auto known =
        std::ranges::find_if(KnownLibraries(), [&](auto& one) { return HandleOf(one.second) == library; });
    if (known == KnownLibraries().end())
        return nullptr;
    if (known->first == ownName)
        return OwnFunctionNamed(function);
    // The control may have loaded it while all items were made up.
    const HMODULE real = m_invent ? nullptr : RealOf(known->second);
    return real != nullptr ? ::GetProcAddress(real, function) : nullptr;
}

void ItemsLibrary::Start(const std::string& parameter)
{
    m_listing = &m_asking->For(parameter);
    m_delivered = 0;
}

const LibraryItem* ItemsLibrary::Next()
{
    return m_delivered < m_listing->size() ? &(*m_listing)[m_delivered++] : nullptr;
}

std::string ItemsLibrary::TextFor(const std::string& parameter) const
{
    const std::vector<LibraryItem>& items = m_asking->For(parameter);
    return items.empty() ? "" : items.front().line;
}

} // namespace lytdlg
