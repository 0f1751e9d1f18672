// Takes the place of the data libraries that a description names: controls that were given items get these, all others what their
// library delivers, if there is one. The catalogue that buttons open is the one inside this program.
#pragma once

#include "base/PartnerLibrary.h"
#include "lytdlg/try/TrialEnvironment.h"
#include "model/ClytObserver.h"

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace lytdlg
{

struct LibraryItem
{
    std::string shown;
    std::string value;
    std::string line; // as the file has it, for a field
};

// The items of a file: a line each, `text=value` or one text that is both. After a line `parameter ->` they are those for
// that parameter; what comes before the first such line is for every other.
class ItemsFile
{
public:
    explicit ItemsFile(const std::string& name);
    // The same items for any parameter; each is its text and its value.
    explicit ItemsFile(const std::vector<std::string>& items);
    const std::vector<LibraryItem>& For(const std::string& parameter) const;

private:
    std::map<std::string, std::vector<LibraryItem>> m_sections;
    std::vector<LibraryItem> m_others;
};

// While it lives, the library's loader asks it first. It listens for the control that asks.
class ItemsLibrary : public ClytOwnLibraries
{
public:
    explicit ItemsLibrary(const std::vector<ItemsOption>& options);
    // What a control receives is invented, and no foreign library is loaded.
    using Invent = std::function<std::vector<std::string>(const ClytControl& control)>;
    explicit ItemsLibrary(Invent inventor);
    ItemsLibrary(const ItemsLibrary&) = delete;
    ItemsLibrary& operator=(const ItemsLibrary&) = delete;
    ~ItemsLibrary();

    void Asked(const ClytControl& control);
    // The controls that were given items and have not asked for them.
    std::vector<std::string> Unused() const;

    HMODULE Load(const char* name) override;
    bool Owns(HMODULE library) const override;
    FARPROC Find(HMODULE library, const char* function) override;

    // What the functions that Find returns do.
    void Start(const std::string& parameter);
    const LibraryItem* Next();
    std::string TextFor(const std::string& parameter) const;

private:
    enum class Role
    {
        None,
        Start,
        Next,
        Text
    };

    const ItemsFile* ItemsFor(const ClytControl& control);

    Invent m_invent;                          // empty where the items are those of files
    std::map<std::string, ItemsFile> m_files; // by control
    std::set<std::string> m_used;
    const ItemsFile* m_asking = nullptr; // of the control that is being filled
    Role m_wanted = Role::None;          // what is looked for next
    const std::vector<LibraryItem>* m_listing = nullptr;
    size_t m_delivered = 0;
};

} // namespace lytdlg
