// After every export the host has its cursor, focus, window and current folder again, also when the export failed.
#include "dialogs/DialogFixture.h"
#include "support/Image.h"

#include <filesystem>
#include <set>

namespace
{

// A program's window that puts no focus back by itself, with a field in it.
class Host
{
public:
    Host()
    {
        WNDCLASSA kind = {};
        kind.lpfnWndProc = DefWindowProcA;
        kind.lpszClassName = "plain host";
        RegisterClassA(&kind);
        window = CreateWindowA("plain host", "host", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 0, 0, 300, 200, nullptr, nullptr,
                               nullptr, nullptr);
        field = CreateWindowA("Edit", "", WS_CHILD | WS_VISIBLE, 0, 0, 100, 20, window, nullptr, nullptr, nullptr);
    }
    Host(const Host&) = delete;
    Host& operator=(const Host&) = delete;
    ~Host() { DestroyWindow(window); }

    void Work() const
    {
        SetActiveWindow(window);
        SetFocus(field);
        SetCursor(own);
    }

    const HCURSOR own = LoadCursorA(nullptr, IDC_CROSS);
    HWND window;
    HWND field;
};

class HostState : public DialogFixture
{
protected:
    HostState()
    {
        folder.Write("lyt.ini",
                     "[global]\r\nCurrent Language=Test\r\n[lists]\r\nlist=a,b\r\n[LogLevel]\r\nlevel=1\r\n");
        SetDocument("doc.rtf");
        for (const char* name : {"lytInSym", "lytInPhr", "lytCdGrp", "lytRpGrp", "lytWzGrp", "lytWzPhr", "lytWzSym"})
            Describe({}, name);
        host.Work();
    }
    ~HostState() override { SetDllDirectoryA(nullptr); }

    void SetDocument(const std::string& name) const
    {
        initialise((folder.Path() + "\\" + name).c_str(), folder.Path().c_str(), folder.Path().c_str());
    }

    // Makes a description unreadable.
    void Spoil(const std::string& name) const { folder.Write(name + ".dlg", "no version\n"); }

    // Makes one call in one way: all steps are taken in it, and the host is as it was after it.
    template <class Function, class... Arguments>
    void Check(const std::string& way, const char* name, Arguments... arguments)
    {
        SCOPED_TRACE(std::string(name) + ": " + way);
        seen.insert(name);
        auto* const function = Call<Function>(name);
        ExpectHostAsBefore([&] { function(arguments...); });
        EXPECT_TRUE(robot.Done()) << robot.Log();
    }
    void ExpectHostAsBefore(const std::function<void()>& call) const
    {
        host.Work();
        const std::filesystem::path current = std::filesystem::current_path();
        try
        {
            call();
        }
        catch (...) // the log's failures leave its function
        {
        }
        EXPECT_EQ(GetFocus(), host.field);
        EXPECT_EQ(GetActiveWindow(), host.window);
        EXPECT_EQ(GetCursor(), host.own);
        EXPECT_TRUE(IsWindowEnabled(host.window));
        EXPECT_EQ(std::filesystem::current_path(), current);
    }

    // A user who comes to a window with the mouse, which changes the cursor.
    static void MoveMouse() { SetCursor(LoadCursorA(nullptr, IDC_HAND)); }
    HostState& Confirm() { return End(IDOK); }
    HostState& Cancel() { return End(IDCANCEL); }
    HostState& End(int button)
    {
        robot.On("",
                 [button](HWND dialog)
                 {
                     MoveMouse();
                     robot::Press(GetDlgItem(dialog, button));
                 });
        return *this;
    }
    HostState& AnswerMessage()
    {
        robot.When(
            "message", [] { return robot::IsMessageBox(robot::ActiveDialog()); }, MoveMouse);
        robot.AnswerMessage();
        return *this;
    }

    void CheckDialogs();
    void CheckGroups();
    void CheckTree();
    void CheckWizard();
    void CheckTexts();
    void CheckLog();
    void CheckEnvironment();
    void CheckReport();

    const Host host;
    std::set<std::string> seen; // the exports that were called
    GuardedBuffer buffer{200};
    GuardedBuffer second{200};
};

void HostState::CheckDialogs()
{
    using Dialog = decltype(lytSymbolPropertyDialog);
    for (const char* name : {"lytSymbolPropertyDialog", "lytPhrasePropertyDialog"})
    {
        Confirm().Check<Dialog>("confirmed", name, "key", buffer.Data(), buffer.Size());
        Confirm().Check<Dialog>("confirmed with a short buffer", name, "key", buffer.Data(), 2);
        Cancel().Check<Dialog>("cancelled", name, "key", buffer.Data(), buffer.Size());
        Check<Dialog>("no buffer", name, "key", nullptr, 0);
    }
    initialise("", "C:\\nowhere", folder.Path().c_str());
    for (const char* name : {"lytSymbolPropertyDialog", "lytPhrasePropertyDialog"})
        AnswerMessage().Check<Dialog>("no description", name, "key", buffer.Data(), buffer.Size());
    SetDocument("doc.rtf");
}

void HostState::CheckGroups()
{
    using Group = decltype(lytGroupPropertyDialog);
    const auto check = [this](const char* way, int kind, int firstSize)
    {
        Check<Group>(way, "lytGroupPropertyDialog", kind, "(abc)/1d", buffer.Data(), firstSize, second.Data(),
                     second.Size());
    };
    for (const int kind : {0, 1})
    {
        Confirm();
        check("confirmed", kind, buffer.Size());
        Confirm().AnswerMessage();
        check("result too long", kind, 3);
        Cancel();
        check("cancelled", kind, buffer.Size());
        check("no buffer", kind, 0);
        Spoil(kind == 0 ? "lytCdGrp" : "lytRpGrp");
        AnswerMessage();
        check("wrong description", kind, buffer.Size());
    }
}

void HostState::CheckTree()
{
    using Tree = decltype(lytOpenTreeView);
    for (const char* name : {"lytOpenTreeView", "lytOpenTreeViewPara"})
    {
        Confirm().Check<Tree>("confirmed", name, "W", buffer.Data(), buffer.Size());
        Cancel().Check<Tree>("cancelled", name, "P", buffer.Data(), buffer.Size());
        Confirm().AnswerMessage().Cancel().Check<Tree>("refused", name, "", buffer.Data(), buffer.Size());
        Check<Tree>("no buffer", name, "W", nullptr, 0);
    }
    Check<decltype(lytGetSymbolfromTree)>("found", "lytGetSymbolfromTree", "a", buffer.Data(), buffer.Size());
    Check<decltype(lytTreeStartChildNode)>("found", "lytTreeStartChildNode", "a");
    Check<decltype(lytTreeReadChildNode)>("read", "lytTreeReadChildNode", buffer.Data(), buffer.Size(), second.Data(),
                                          second.Size());
}

void HostState::CheckWizard()
{
    const auto check = [this](const char* way)
    { Check<decltype(lytWizard)>(way, "lytWizard", buffer.Data(), buffer.Size()); };
    Confirm().Confirm();
    check("confirmed");
    Confirm().Cancel();
    check("dialog cancelled");
    Cancel();
    check("catalogue cancelled");
    for (const char* name : {"lytWzGrp", "lytWzPhr", "lytWzSym"})
        Spoil(name);
    Confirm().AnswerMessage();
    check("wrong description");
}

void HostState::CheckTexts()
{
    using FromIni = decltype(lytGetTextFromIniFile);
    Check<FromIni>("found", "lytGetTextFromIniFile", "lists/list", buffer.Data(), buffer.Size());
    AnswerMessage().Check<FromIni>("no section", "lytGetTextFromIniFile", "list", buffer.Data(), buffer.Size());
    Check<decltype(lytGetTextForKey)>("found", "lytGetTextForKey", "TEXTS", "Title", "", buffer.Data(), buffer.Size());
    Check<decltype(lytListFromIniStart)>("found", "lytListFromIniStart", "lists/list");
    Check<decltype(lytListFromIniNext)>("read", "lytListFromIniNext", buffer.Data(), 10, second.Data(), 10);
}

void HostState::CheckLog()
{
    Check<decltype(lytWriteToLogFile)>("written", "lytWriteToLogFile", "text", 1);
    SetDocument("no folder\\doc.rtf");
    Check<decltype(lytWriteToLogFile)>("failed", "lytWriteToLogFile", "text", 1);
    SetDocument("doc.rtf");
}

void HostState::CheckEnvironment()
{
    Check<decltype(lytInitialiseEnvironment)>("done", "lytInitialiseEnvironment", "", folder.Path().c_str(),
                                              folder.Path().c_str());
    Check<decltype(lytSetDialogDefine)>("done", "lytSetDialogDefine", "A");
    Check<decltype(lytGetInitializationPath)>("read", "lytGetInitializationPath", buffer.Data(), buffer.Size());
    Check<decltype(lytGetCurrentDocName)>("read", "lytGetCurrentDocName", buffer.Data(), buffer.Size());
}

void HostState::CheckReport()
{
    Check<decltype(lytSystemInfoInit)>("gathered", "lytSystemInfoInit", folder.Path().c_str());
    Check<decltype(lytSystemInfoRead)>("read", "lytSystemInfoRead", 0, buffer.Data(), buffer.Size());
    Check<decltype(lytSystemInfoRead)>("read beyond the end", "lytSystemInfoRead", 100000, buffer.Data(),
                                       buffer.Size());
    Check<decltype(FreeGlobalObject)>("done", "FreeGlobalObject");
}

// Lets a meddling partner be found.
void Provide(const std::string& partner)
{
    char program[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, program, sizeof program);
    const std::string path = program;
    SetDllDirectoryA((path.substr(0, path.rfind('\\')) + "\\meddlers\\" + partner).c_str());
}

} // namespace

// Comes first: a process that has no companion yet gets it by any call.
TEST_F(HostState, IsKeptFromACompanionThatMeddles)
{
    ASSERT_EQ(GetModuleHandleA("lyt"), nullptr);
    Provide("lyt");
    Check<decltype(lytListFromIniStart)>("first call", "lytListFromIniStart", "");
    ASSERT_NE(GetModuleHandleA("lyt"), nullptr);
}

TEST_F(HostState, IsKeptFromAResourceLibraryThatMeddles)
{
    Provide("LytRes64");
    Check<decltype(lytSystemInfoInit)>("gathered", "lytSystemInfoInit", "");
    std::string lines;
    for (int index = 0; Call<decltype(lytSystemInfoRead)>("lytSystemInfoRead")(index, buffer.Data(), 200) == 1; ++index)
        lines += buffer.Text() + "\n";
    EXPECT_NE(lines.find("LYT Resolve Version            : 1.0\n"), std::string::npos) << "the library was not called";
}

TEST_F(HostState, IsAsBeforeAfterEveryExportOnEveryWayOut)
{
    CheckDialogs();
    CheckGroups();
    CheckTree();
    CheckWizard();
    CheckTexts();
    CheckLog();
    CheckEnvironment();
    CheckReport();
    EXPECT_EQ(seen, Image(GetModuleHandleA("lyt64.dll")).ExportedNames());
}

TEST_F(HostState, HasNoFocusAfterADialogIfItHadNone)
{
    SetFocus(nullptr);
    ASSERT_EQ(GetActiveWindow(), host.window);
    PressOn(IDCANCEL);
    Show("key");
    EXPECT_EQ(GetFocus(), nullptr);
    EXPECT_EQ(GetActiveWindow(), host.window);
}
