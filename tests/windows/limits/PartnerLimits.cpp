// What partner libraries do besides: they call back, close the dialog, vanish, or are not partner libraries at all.
#include "Limit.h"
#include "Ways.h"

#include "support/Modules.h"

#include <cstring>
#include <fstream>
#include <thread>

namespace
{

// ---- calls back into the library

void CancelEverything(Scene& scene)
{
    scene.CancelEverything();
}

// Takes back what was to be done: the act is done once.
void CallEverythingOnce(HostileActs& acts)
{
    acts = {};
    EXPECT_EQ(Scene::Current().CallEverything(), Scene::everyAnswer);
}

int CallBack(const char* /*parameter*/, char* text, int /*size*/)
{
    CallEverythingOnce(Scene::Current().Partner("hostile"));
    std::strcpy(text, "after all");
    return 0;
}

void CallingText(Scene& scene)
{
    scene.Partner("hostile").text = CallBack;
    EXPECT_EQ(FillText(scene, CancelEverything), "1 after all");
}

void CallingAction(Scene& scene)
{
    scene.Partner("hostile").text = CallBack;
    EXPECT_EQ(Act(scene, CancelEverything), "2 key");
}

void CallingItem(Scene& scene)
{
    scene.Partner("hostile").next = [](char* display, int, char* value, int)
    {
        CallEverythingOnce(Scene::Current().Partner("hostile"));
        std::strcpy(display, "after all");
        std::strcpy(value, "after all");
        return 1;
    };
    EXPECT_EQ(FillList(scene, CancelEverything), Texts{"after all"});
}

void ServeAfterCalling(Scene& scene)
{
    scene.Partner("lytsrc").treeNext = [](lytTreeRecord* record)
    {
        CallEverythingOnce(Scene::Current().Partner("lytsrc"));
        record->nType = LYT_TREE_SYMBOL;
        std::strcpy(record->szKey, "outer");
        return static_cast<int32_t>(1);
    };
}

void CallingRecord(Scene& scene)
{
    ServeAfterCalling(scene);
    EXPECT_EQ(scene.CancelEverything().EndBrowser(IDOK).OpenBrowser(), "1 S/outer/");
}

void CallingLookup(Scene& scene)
{
    ServeAfterCalling(scene);
    EXPECT_EQ(scene.CancelEverything().FindSymbol("o"), "1 outer");
}

void CallingVersion(Scene& scene)
{
    scene.Partner("LytRes64").version = [](char* text)
    {
        Scene& current = Scene::Current();
        current.EndDialog(IDOK);
        EXPECT_EQ(current.ShowSymbol(), "2 key");
        std::strcpy(text, "after all");
    };
    EXPECT_EQ(VersionLine(scene), "after all");
}

// ---- failures with the library's own frames in between

// The message came once, the dialog works, and nothing is left of what the library did in between.
void ExpectFailureOf(Scene& scene, Steps between)
{
    const HWND active = GetActiveWindow();
    EXPECT_EQ(FillText(scene, between), "2 key");
    EXPECT_EQ(scene.robot.Messages().size(), 1U);
    EXPECT_EQ(GetActiveWindow(), active);
    HANDLE context = nullptr;
    EXPECT_TRUE(GetCurrentActCtx(&context));
    EXPECT_EQ(context, nullptr);
    std::thread([&] { EXPECT_EQ(scene.AskForText(), 1); }).join();
}

int ShowForNoBuffer(const char* /*parameter*/, char* /*text*/, int /*size*/)
{
    Scene::Current().Partner("hostile") = {};
    auto* const noBuffer = reinterpret_cast<char*>(intptr_t{16});
    return Scene::Current().Get<decltype(lytSymbolPropertyDialog)>("lytSymbolPropertyDialog")("key", noBuffer, 300);
}

void CallingWithoutABuffer(Scene& scene)
{
    scene.Partner("hostile").text = ShowForNoBuffer;
    ExpectFailureOf(scene, [](Scene& current) { current.EndDialog(IDOK).robot.AnswerMessage(); });
}

LRESULT CALLBACK FailLater(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_APP)
        RaiseException(0xE0001234, 0, 0, nullptr);
    return DefWindowProcA(window, message, wParam, lParam);
}

int ShowAboveAFailure(const char* /*parameter*/, char* /*text*/, int /*size*/)
{
    Scene::Current().Partner("hostile") = {};
    HWND window = CreateWindowA("Static", "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    SetWindowLongPtrA(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(FailLater));
    PostMessageA(window, WM_APP, 0, 0);
    Scene::Current().ShowSymbol();
    return 0;
}

void FailingBelowADialog(Scene& scene)
{
    scene.Partner("hostile").text = ShowAboveAFailure;
    ExpectFailureOf(scene, [](Scene& current) { current.robot.AnswerMessage(); });
}

// ---- closing the dialog

void ClosingText(Scene& scene)
{
    scene.Partner("hostile").text = [](const char*, char*, int)
    {
        EndDialog(robot::ActiveDialog(), IDOK);
        return 0;
    };
    scene.Describe("", "Key=FILLEDBY,hostile,Text\nFill=FILL,Key\n");
    EXPECT_EQ(scene.ClickOn("Fill").ShowSymbol(), "0 as it was");
}

void DestroyingText(Scene& scene)
{
    scene.Partner("hostile").text = [](const char*, char*, int)
    {
        DestroyWindow(robot::ActiveDialog());
        return 0;
    };
    scene.Describe("", "Key=FILLEDBY,hostile,Text\nFill=FILL,Key\n");
    EXPECT_EQ(scene.ClickOn("Fill").ShowSymbol(), "0 as it was");
}

// ---- vanishing

void TakeAway(const char* library)
{
    while (HMODULE module = GetModuleHandleA(library))
        FreeLibrary(module);
}

void VanishingText(Scene& scene)
{
    EXPECT_EQ(FillText(scene), "1 as it was");
    TakeAway("hostile");
    scene.Partner("hostile").text = [](const char*, char* text, int)
    {
        std::strcpy(text, "again");
        return 0;
    };
    EXPECT_EQ(FillText(scene), "1 again");
}

void VanishingItems(Scene& scene)
{
    EXPECT_EQ(FillList(scene), Texts{});
    TakeAway("hostile");
    EXPECT_EQ(FillList(scene), Texts{});
    EXPECT_NE(GetModuleHandleA("hostile"), nullptr);
}

void VanishingCatalogue(Scene& scene)
{
    EXPECT_EQ(scene.FindSymbol("k"), "0 as it was");
    TakeAway("lytsrc");
    EXPECT_EQ(scene.FindSymbol("k"), "0 as it was");
    EXPECT_NE(GetModuleHandleA("lytsrc"), nullptr);
}

// ---- files that are no libraries

void ExpectNoLibrary(Scene& scene, const std::string& file)
{
    EXPECT_EQ(FillText(scene, NoSteps, file), "2 key");
    EXPECT_EQ(FillList(scene, NoSteps, file), Texts{});
    EXPECT_EQ(Act(
                  scene, [](Scene& current) { current.robot.AnswerMessage(); }, file),
              "2 key");
    EXPECT_EQ(scene.robot.Messages(), Texts{"238\nE233 '" + file + "'"});
}

void OtherMachine(Scene& scene)
{
    ExpectNoLibrary(scene, scene.folder.Write("other.dll", LibraryOfAnotherMachine(ProgramFolder() + "\\hostile.dll")));
}

// Puts a library for another kind of processor in the place of one beside the program, for its own lifetime.
class OtherMachineInPlaceOf
{
public:
    explicit OtherMachineInPlaceOf(const std::string& name)
        : m_file(ProgramFolder() + "\\" + name + ".dll"), m_kept(m_file + ".kept")
    {
        TakeAway(name.c_str());
        // What a run that was ended here has left.
        MoveFileExA(m_kept.c_str(), m_file.c_str(), MOVEFILE_REPLACE_EXISTING);
        EXPECT_TRUE(MoveFileA(m_file.c_str(), m_kept.c_str()));
        std::ofstream(m_file, std::ios::binary) << LibraryOfAnotherMachine(m_kept);
    }
    OtherMachineInPlaceOf(const OtherMachineInPlaceOf&) = delete;
    OtherMachineInPlaceOf& operator=(const OtherMachineInPlaceOf&) = delete;
    ~OtherMachineInPlaceOf() { EXPECT_TRUE(MoveFileExA(m_kept.c_str(), m_file.c_str(), MOVEFILE_REPLACE_EXISTING)); }

private:
    const std::string m_file;
    const std::string m_kept;
};

void CatalogueOfOtherMachine(Scene& scene)
{
    const OtherMachineInPlaceOf other("lytsrc");
    EXPECT_EQ(scene.FindSymbol("k"), "0 as it was");
    EXPECT_EQ(scene.EndBrowser(IDCANCEL).OpenBrowser(), "0 as it was");
    EXPECT_EQ(GetModuleHandleA("lytsrc"), nullptr);
}

void ResourcesOfOtherMachine(Scene& scene)
{
    const OtherMachineInPlaceOf other("LytRes64");
    EXPECT_EQ(VersionLine(scene), NoVersion());
}

void NoLibraryAtAll(Scene& scene)
{
    ExpectNoLibrary(scene, scene.folder.Write("broken.dll", "MZ, and nothing after it"));
}

constexpr Limit partnerRows[] = {
    {"text of a field", "calls every function of the library", "each works as usual; its windows are above the dialog",
     CallingText},
    {"text of an action", "the same", "the same", CallingAction},
    {"items of a list", "the same", "the same", CallingItem},
    {"catalogue that is being shown", "the same", "the same; what the outer run delivers is the catalogue",
     CallingRecord},
    {"catalogue in `lytGetSymbolfromTree`", "the same", "the same", CallingLookup},
    {"resource library", "shows a dialog of the library", "it works as usual", CallingVersion},
    {"text of a field", "shows a dialog of the library, and passes an invalid pointer as the buffer",
     "a message as for any failure in it; the library releases what it held for the inner call", CallingWithoutABuffer},
    {"text of a field", "shows a dialog of the library, and raises an exception in a window below it",
     "the same; the inner dialog is gone", FailingBelowADialog},
    {"text of a field", "ends the dialog, with OK", "the dialog is cancelled when the function returns", ClosingText},
    {"text of a field", "destroys the dialog's window", "the same", DestroyingText},
    {"data library of a field", "is freed between two calls", "it is loaded again", VanishingText},
    {"data library of a list", "the same", "the same", VanishingItems},
    {"catalogue", "the same", "the same", VanishingCatalogue},
    {"data library", "is built for another kind of processor",
     "as if missing: a field stays as it was and a list is emptied, without a message; an action shows message 233",
     OtherMachine},
    {"catalogue", "the same", "as if missing: it has no entries, and no message says so", CatalogueOfOtherMachine},
    {"resource library", "the same", "as if missing: the report leaves its version blank", ResourcesOfOtherMachine},
    {"data library", "is not a library", "as if built for another kind of processor", NoLibraryAtAll},
};

} // namespace

const LimitTable partnerLimits = {
    "What partner libraries do",
    "A partner may call the library from inside its functions, on the same thread.",
    "who",
    partnerRows,
};
