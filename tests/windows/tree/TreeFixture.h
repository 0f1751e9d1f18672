// lyt64.dll as a fresh process has it, with a data source and a folder of texts.
#pragma once

#include "TestSource.h"
#include "TreeWindow.h"

#include "dialogs/DialogFixture.h"

#include <functional>

using Lines = std::vector<std::string>;
using Records = std::vector<lytTreeRecord>;

// A record; texts of 100 characters or more are cut to 100 and have no NUL.
lytTreeRecord Entry(int level, int type, const std::string& label, const std::string& key);

class TreeTest : public testing::Test
{
protected:
    TreeTest();
    ~TreeTest() override;

    // As a host does at its start; the constructor does it as well.
    void Initialise();
    // Makes a data source reachable. Until then it is missing.
    void UseSource(const std::string& variant = "complete");
    // The data library of the tests, as a description names it.
    static std::string NastyLibrary();
    // What the source serves from now on; `house` and `yard` by default.
    void Serve(char kind, Records records, int startResult = 1);
    // Acts from inside the call in which the source delivers the record of this number; 0 for never.
    void Interrupt(int record, void (*act)()) const;
    int Starts(char kind) const;
    int Nexts(char kind) const;

    // A dialog whose title is the text of its name. As it comes, its field takes the input and gives the result.
    void WriteDialog(const std::string& name, Description description) const;
    // Writes lyt.ini: the language, and these lines in the section "global".
    void Configure(const std::string& lines);

    struct Answer
    {
        int result;
        std::string text;
        Lines messages;
    };
    // Opens the browser, lets one action work it, which must end it; messages are confirmed.
    Answer Open(const std::string& request, const std::function<void(const TreeWindow&)>& act);
    // The same with an action after each message; null does nothing.
    Answer Open(const std::string& request, const std::vector<std::function<void(const TreeWindow&)>>& acts);
    // Opens the browser and looks only.
    Lines ItemsShown(const std::string& request);
    Lines ItemsOpen(const std::string& request);
    std::string Preselected(const std::string& request);
    SIZE SizeShown(const std::string& request);
    Answer Pick(const std::string& request, const std::string& label);

    // `result text` of one call of the wizard with nothing on the screen; "nothing" for an empty text.
    std::string CallWizard(int size = 255) const;
    // One call in which an entry is picked, and the dialog with this title gets the text and OK, or Cancel without one. What
    // its field held is `scanned`.
    std::string AskWizard(const std::string& label, const std::string& title, const std::string& text, int size = 255);
    std::string SymbolFor(const std::string& text);
    // `text|path` of each read until one gives 0.
    Lines ReadChildren();

    template <class Function>
    Function* Get(const char* name) const
    {
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(m_library, name)));
    }

    // A heading with groups and symbols, as it is shown, and the para tree.
    static const Records house;
    static const Lines houseShown;
    static const Records yard;

    TestFolder folder;
    std::string scanned;

private:
    template <class Function>
    Function* GetFromSource(const char* name) const;
    template <class SEEN>
    SEEN Look(const std::string& request, SEEN (TreeWindow::*look)() const);

    HMODULE m_library = nullptr;
    HMODULE m_source = nullptr;
    Records m_symbols;
    Records m_paragraphs;
};
