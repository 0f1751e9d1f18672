// Calls that come while another is under way, a host or a thread that ends meanwhile, and a process without free slots.
#include "Limit.h"
#include "Scene.h"

#include "commandline/Program.h"

#include <algorithm>
#include <thread>

namespace
{

void OnAnotherThread(const std::function<void()>& act)
{
    std::thread(act).join();
}

void ExpectRefused(Scene& scene)
{
    OnAnotherThread([&] { EXPECT_EQ(scene.CallEverything(), ""); });
}

// The document that the library knows is the scene's own.
void ExpectNothingDone(Scene& scene)
{
    GuardedBuffer name(300);
    scene.Get<decltype(lytGetCurrentDocName)>("lytGetCurrentDocName")(name.Data(), name.Size());
    EXPECT_EQ(name.Text(), scene.folder.Path() + "\\doc.rtf");
    EXPECT_FALSE(scene.folder.Has("doc.log"));
}

void CallBesideADialog(Scene& scene)
{
    scene.OnDialog([&](HWND) { ExpectRefused(scene); }).EndDialog(IDOK);
    EXPECT_EQ(scene.ShowSymbol(), "2 key");
    ExpectNothingDone(scene);
}

void CallBesideABrowser(Scene& scene)
{
    scene.OnBrowser([&](HWND) { ExpectRefused(scene); }).EndBrowser(IDCANCEL);
    EXPECT_EQ(scene.OpenBrowser(), "0 as it was");
    ExpectNothingDone(scene);
}

void CallBesideAMessage(Scene& scene)
{
    scene.robot.When(
        "message", [] { return robot::IsMessageBox(robot::ActiveDialog()); }, [&] { ExpectRefused(scene); });
    scene.robot.AnswerMessage();
    char buffer[10] = "";
    EXPECT_EQ(scene.Get<decltype(lytGetTextFromIniFile)>("lytGetTextFromIniFile")("no slash", buffer, 10), 0);
    ExpectNothingDone(scene);
}

void CallOnAnotherThreadBetweenDialogs(Scene& scene)
{
    scene.EndDialog(IDOK);
    scene.ShowSymbol();
    OnAnotherThread([&] { EXPECT_EQ(scene.AskForText(), 1); });
}

void CallAboveADialog(Scene& scene)
{
    scene.OnDialog([&](HWND) { EXPECT_EQ(scene.CallEverything(), Scene::everyAnswer); });
    scene.CancelEverything().EndDialog(IDOK);
    EXPECT_EQ(scene.ShowSymbol(), "2 key");
}

void ReleaseBelowADialog(Scene& scene)
{
    scene.OnDialog([&](HWND) { scene.Get<decltype(FreeGlobalObject)>("FreeGlobalObject")(); }).EndDialog(IDOK);
    EXPECT_EQ(scene.ShowSymbol(), "2 key");
    GuardedBuffer name(300, "old");
    EXPECT_EQ(scene.Get<decltype(lytGetCurrentDocName)>("lytGetCurrentDocName")(name.Data(), name.Size()), 0);
}

void ReleaseBelowABrowser(Scene& scene)
{
    scene.OnBrowser([&](HWND) { scene.Get<decltype(FreeGlobalObject)>("FreeGlobalObject")(); }).EndBrowser(IDOK);
    scene.robot.AnswerMessage();
    scene.EndBrowser(IDCANCEL);
    EXPECT_EQ(scene.OpenBrowser(), "0 as it was");
    EXPECT_EQ(scene.robot.Messages(), Texts{"no value present"});
}

// ---- a host that quits

void ExpectQuitLeft()
{
    MSG message{};
    EXPECT_TRUE(PeekMessageA(&message, nullptr, WM_QUIT, WM_QUIT, PM_REMOVE));
    EXPECT_EQ(message.wParam, 7U);
}

void QuitBelowADialog(Scene& scene)
{
    scene.OnDialog([](HWND) { PostQuitMessage(7); });
    EXPECT_EQ(scene.ShowSymbol(), "0 as it was");
    ExpectQuitLeft();
}

void QuitBelowABrowser(Scene& scene)
{
    scene.OnBrowser([](HWND) { PostQuitMessage(7); });
    EXPECT_EQ(scene.OpenBrowser(), "0 as it was");
    ExpectQuitLeft();
}

void QuitBelowANestedDialog(Scene& scene)
{
    scene.Describe("", "Go=DIALOG,lytInPhr,Take,Send\n");
    scene.ClickOn("Go").OnDialog([](HWND) { PostQuitMessage(7); });
    EXPECT_EQ(scene.ShowSymbol(), "0 as it was");
    ExpectQuitLeft();
}

// ---- a thread that dies

// Set once the thread below has a dialog up.
HANDLE isUp = nullptr;

void CALLBACK TellThatItIsUp(HWND /*window*/, UINT /*message*/, UINT_PTR /*timer*/, DWORD /*time*/)
{
    if (robot::ActiveDialog() != nullptr)
        SetEvent(isUp);
}

void CALLBACK EndThread(HWND window, UINT message, UINT_PTR timer, DWORD time)
{
    TellThatItIsUp(window, message, timer, time);
    if (robot::ActiveDialog() != nullptr)
        ExitThread(0);
}

DWORD WINAPI ShowOnThisThread(void* tick)
{
    SetTimer(nullptr, 0, 10, reinterpret_cast<TIMERPROC>(tick));
    Scene::Current().ShowSymbol();
    return 1;
}

// Shows a dialog on another thread, which ends before the dialog does.
void LoseAThread(Scene& scene, TIMERPROC tick, bool isKilled)
{
    isUp = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    const HANDLE thread = CreateThread(nullptr, 0, ShowOnThisThread, reinterpret_cast<void*>(tick), 0, nullptr);
    const DWORD patience = commandline::Patience(60'000);
    EXPECT_EQ(WaitForSingleObject(isUp, patience), WAIT_OBJECT_0);
    if (isKilled)
    {
        EXPECT_EQ(scene.CallEverything(), "");
        EXPECT_TRUE(TerminateThread(thread, 0));
    }
    EXPECT_EQ(WaitForSingleObject(thread, patience), WAIT_OBJECT_0);
    CloseHandle(thread);
    CloseHandle(isUp);
}

// The library works as if the thread had never been.
void ExpectWorking(Scene& scene)
{
    OnAnotherThread([&] { EXPECT_EQ(scene.AskForText(), 1); });
    scene.Describe("", "Go=DIALOG,lytInPhr,Take,Send\n");
    scene.ClickOn("Go").OnDialog([&](HWND) { ExpectRefused(scene); }).EndDialog(IDOK).EndDialog(IDOK);
    EXPECT_EQ(scene.ShowSymbol(), "1 <key>");
}

void EndBelowADialog(Scene& scene)
{
    LoseAThread(scene, EndThread, false);
    ExpectWorking(scene);
}

void KillBelowADialog(Scene& scene)
{
    LoseAThread(scene, TellThatItIsUp, true);
    ExpectWorking(scene);
}

// ---- a process without free slots

// Takes every free slot of a kind, for its own lifetime.
template <auto TAKE, auto GIVE>
class EverySlot
{
public:
    EverySlot()
    {
        for (DWORD slot = TAKE(); slot != TLS_OUT_OF_INDEXES; slot = TAKE())
            m_taken.push_back(slot);
    }
    EverySlot(const EverySlot&) = delete;
    EverySlot& operator=(const EverySlot&) = delete;
    ~EverySlot() { std::ranges::for_each(m_taken, GIVE); }

private:
    std::vector<DWORD> m_taken;
};
using EveryFiberSlot = EverySlot<[] { return FlsAlloc(nullptr); }, FlsFree>;
using EveryThreadSlot = EverySlot<TlsAlloc, TlsFree>;

// The first exception of a library that has just been loaded.
void ExpectFailureTold(Scene& scene)
{
    scene.Initialise();
    scene.folder.Write("lytInSym.dlg", "no version\n");
    scene.robot.AnswerMessage();
    EXPECT_EQ(scene.ShowSymbol(), "0 as it was");
}

void LoadWithoutFiberSlots(Scene& scene)
{
    scene.Unload();
    const EveryFiberSlot taken;
    scene.LoadAgain();
    ExpectFailureTold(scene);
}

void UseWithoutFiberSlots(Scene& scene)
{
    scene.Unload();
    scene.LoadAgain();
    const EveryFiberSlot taken;
    ExpectFailureTold(scene);
}

void LoadWithoutSlots(Scene& scene)
{
    scene.Unload();
    {
        const EveryFiberSlot fibers;
        const EveryThreadSlot threads;
        EXPECT_EQ(LoadLibraryA((ProgramFolder() + "\\..\\lyt64.dll").c_str()), nullptr);
        EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_DLL_INIT_FAILED));
    }
    scene.LoadAgain();
    ExpectFailureTold(scene);
}

constexpr Limit momentRows[] = {
    {"any function", "is called on another thread while a dialog is up",
     "refused: it returns 0, if anything, and does nothing; the dialog continues", CallBesideADialog},
    {"any function", "the same while the catalogue is up", "the same", CallBesideABrowser},
    {"any function", "the same while a message is up", "the same", CallBesideAMessage},
    {"any function", "is called on another thread while no window is open", "it works as on the first thread",
     CallOnAnotherThreadBetweenDialogs},
    {"any function", "is called on the same thread while a dialog is up, by a timer for instance",
     "it works as usual; its windows are above the dialog", CallAboveADialog},
    {"host", "posts a quit message while a dialog is up",
     "the dialog is cancelled, and the message waits for the host's own loop", QuitBelowADialog},
    {"host", "the same while the catalogue is up", "the same", QuitBelowABrowser},
    {"host", "the same while a dialog is above another", "the same; both are cancelled", QuitBelowANestedDialog},
    {"`FreeGlobalObject`", "is called while a dialog is up",
     "the dialog continues with what it has read, and returns its result; nothing that it looks up later is found",
     ReleaseBelowADialog},
    {"`FreeGlobalObject`", "is called while the catalogue is up",
     "its entries are gone: OK is refused with message 222, Cancel ends it", ReleaseBelowABrowser},
    {"thread of the host", "ends while a dialog is up",
     "calls on other threads are no longer refused, and every function works; the memory of the call is lost",
     EndBelowADialog},
    {"thread of the host", "is terminated while a dialog is up", "the same", KillBelowADialog},
    {"`LoadLibrary`", "finds all fiber-local slots of the process taken",
     "the library uses a thread-local slot, and works", LoadWithoutFiberSlots},
    {"`LoadLibrary`", "finds all thread-local slots taken, too",
     "refused: it returns null; it works again when a slot is free", LoadWithoutSlots},
    {"any function", "is called when all slots were taken after `LoadLibrary`", "it works as usual",
     UseWithoutFiberSlots},
};

} // namespace

const LimitTable momentLimits = {
    "Calls at the wrong time",
    "Calls should come from one thread, one at a time. This is what happens otherwise. The host must not free the\n"
    "library while a call is under way: the code of the call would be gone, and the process would end. `LytStop`\n"
    "of the macros raises an error then.",
    "what",
    momentRows,
};
