// A process with a freshly loaded library, partner libraries that follow orders, and a user.
#pragma once

#include "HostileLibrary.h"
#include "lyt64.h"

#include "dialogs/DialogFixture.h"
#include "support/FreshLibrary.h"

class Scene
{
public:
    Scene();
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;
    // Every step was taken, and the library can be unloaded.
    ~Scene();

    // The one that is open.
    static Scene& Current() { return *m_current; }

    template <class Function>
    Function* Get(const char* name) const
    {
        return m_library.Get<Function>(name);
    }
    // Any function, for a caller that hands over plain numbers and addresses.
    void* GetAny(const char* name) const { return reinterpret_cast<void*>(GetProcAddress(m_library.Module(), name)); }
    // What the functions of a partner library do; all of them nothing at first.
    HostileActs& Partner(const std::string& library);

    void Initialise() const;
    // Writes the description of the symbol dialog, in which the buttons "Fill" and "Go" act on the fields of these lines.
    // Its output rule "Send" gives "<", the key and ">", its input rule "Take" takes a key.
    void Describe(const std::string& controls, const std::string& values, const std::string& rules = "") const;
    // Shows the symbol dialog for the key "key": result and text, as in `1 text`.
    std::string ShowSymbol();
    // Opens the browser for any entry.
    std::string OpenBrowser();
    // Asks for a text: 1.
    int AskForText() const;
    // The key of the symbol that this text begins.
    std::string FindSymbol(const std::string& begin) const;

    Scene& OnDialog(std::function<void(HWND)> act) { return On("The title", std::move(act)); }
    Scene& OnBrowser(std::function<void(HWND)> act) { return On("Catalogue", std::move(act)); }
    Scene& ClickOn(const std::string& button)
    {
        return OnDialog([button](HWND dialog) { robot::Click(robot::ChildWithText(dialog, button)); });
    }
    Scene& EndDialog(int button)
    {
        return OnDialog([button](HWND dialog) { robot::Press(GetDlgItem(dialog, button)); });
    }
    Scene& EndBrowser(int button)
    {
        return OnBrowser([button](HWND dialog) { robot::Press(GetDlgItem(dialog, button)); });
    }

    // The host gives up its reference to the library, and takes a new one before the scene ends.
    void Unload();
    void LoadAgain();
    // Calls every export with good arguments, and initialises the library again. The windows are ended by steps of the
    // caller: CancelEverything. The names and results of those that give something other than 0, line by line.
    std::string CallEverything() const;
    Scene& CancelEverything();
    // What CallEverything gives then.
    static const std::string everyAnswer;

    const TestFolder folder;
    robot::Robot robot;

private:
    Scene& On(const char* caption, std::function<void(HWND)> act)
    {
        robot.On(caption, std::move(act));
        return *this;
    }

    static Scene* m_current;

    FreshLibrary m_library;
    std::vector<HMODULE> m_partners;
};
