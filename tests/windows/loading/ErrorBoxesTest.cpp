// While the library loads a partner or gathers its report, the system shows no box; the host's mode is back
// afterwards.
#include "dialogs/DialogFixture.h"
#include "support/ImportHook.h"

#include <map>

namespace
{

// What the host has set for itself.
constexpr DWORD hostMode = SEM_NOOPENFILEERRORBOX;
constexpr DWORD quietMode = hostMode | SEM_FAILCRITICALERRORS;

// The mode in which each library was loaded, or each function called.
std::map<std::string, DWORD> modes;

HMODULE WINAPI NoteLoad(const char* name)
{
    modes[name] = GetThreadErrorMode();
    return LoadLibraryA(name);
}

BOOL WINAPI NoteDisk(const char* root, ULARGE_INTEGER* available, ULARGE_INTEGER* total, ULARGE_INTEGER* free)
{
    modes["disk"] = GetThreadErrorMode();
    return GetDiskFreeSpaceExA(root, available, total, free);
}

HANDLE WINAPI NoteSearch(const char* mask, WIN32_FIND_DATAA* found)
{
    modes["files"] = GetThreadErrorMode();
    return FindFirstFileA(mask, found);
}

int WINAPI NoteLocale(LCID locale, LCTYPE type, char* text, int size)
{
    modes["locale"] = GetThreadErrorMode();
    return GetLocaleInfoA(locale, type, text, size);
}

class ErrorBoxes : public DialogFixture
{
protected:
    ErrorBoxes()
    {
        modes.clear();
        SetThreadErrorMode(hostMode, &m_ownMode);
    }
    ~ErrorBoxes() override
    {
        EXPECT_EQ(GetThreadErrorMode(), hostMode) << "the host's mode is not back";
        SetThreadErrorMode(m_ownMode, nullptr);
    }

    // Clicks one of the description's own buttons, which come after OK and Cancel.
    void Click(size_t index)
    {
        On([index](HWND dialog) { robot::Click(robot::ChildOfClass(dialog, "Button", index + 2)); });
    }
    static void ExpectQuiet(const std::vector<std::string>& names)
    {
        for (const std::string& name : names)
            EXPECT_EQ(modes[name], quietMode) << name;
    }

    HMODULE library = GetModuleHandleA("lyt64.dll");
    const ImportHook load{library, "LoadLibraryA", NoteLoad};

private:
    DWORD m_ownMode = 0;
};

} // namespace

TEST_F(ErrorBoxes, AreOffWhileTheCompanionIsSought)
{
    initialise("", "", "");
    ExpectQuiet({"lyt"});
}

TEST_F(ErrorBoxes, AreOffWhileTheSourceOfTheCatalogueIsSought)
{
    GuardedBuffer buffer(100);
    Call<decltype(lytGetSymbolfromTree)>("lytGetSymbolfromTree")("a", buffer.Data(), buffer.Size());
    ExpectQuiet({"lytsrc"});
}

TEST_F(ErrorBoxes, AreOffWhileTheLibrariesOfADescriptionAreSought)
{
    Description description;
    description.controls += "TextBox 10, 30, 60, 15, .Text\nListBox 10, 60, 60, 40, .List\n"
                            "PushButton 200, 10, 60, 20, \"Label\", .FillText\n"
                            "PushButton 200, 40, 60, 20, \"Label\", .FillList\n"
                            "PushButton 200, 70, 60, 20, \"Label\", .Act\n";
    description.values = "Text=FILLEDBY,no-text,F,,R\nList=FILLEDBY,no-list,S,N,R\n"
                         "FillText=FILL,Text\nFillList=FILL,List\nAct=ACTION,no-action,F,R,I\n";
    description.output += "$OUTPUT, R\n(\"x\")\n";
    Describe(description);
    Click(0);
    Click(1);
    Click(2);
    robot.AnswerMessage();
    PressOn(IDCANCEL);
    EXPECT_EQ(Show(), 0);
    ExpectQuiet({"no-text", "no-list", "no-action"});
}

TEST_F(ErrorBoxes, AreOffForTheWholeReport)
{
    const ImportHook disk(library, "GetDiskFreeSpaceExA", NoteDisk);
    const ImportHook search(library, "FindFirstFileA", NoteSearch);
    const ImportHook locale(library, "GetLocaleInfoA", NoteLocale);
    Call<decltype(lytSystemInfoInit)>("lytSystemInfoInit")(folder.Path().c_str());
    ExpectQuiet({"kernel32.dll", "LytRes64.dll", "disk", "files", "locale"});
}
