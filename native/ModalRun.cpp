// Modal runs: a dialog from its template, and the loop that serves it until it has ended.
#include "Desktop.h"
#include "DialogTemplates.h"
#include "DialogWindow.h"
#include "FaultPlan.h"
#include "MemoryWindows.h"
#include "MessageQueue.h"
#include "Metrics.h"

#include <algorithm>
#include <utility>

namespace platform
{

namespace
{

int starvedRuns = 0;

std::vector<DialogTemplate>& Templates()
{
    static std::vector<DialogTemplate> templates;
    return templates;
}

int UnitsToX(int units)
{
    return MulDiv(units, CurrentMetrics().baseUnits.cx, 4);
}

int UnitsToY(int units)
{
    return MulDiv(units, CurrentMetrics().baseUnits.cy, 8);
}

HWND Create(const char* className, const char* text, DWORD style, const RECT& units, HWND above, int id)
{
    const HWND window = CreateWindowExA(0, className, text, style, UnitsToX(units.left), UnitsToY(units.top),
                                        UnitsToX(units.right), UnitsToY(units.bottom), above,
                                        reinterpret_cast<HMENU>(static_cast<INT_PTR>(id)), nullptr, nullptr);
    SendMessageA(window, WM_SETFONT, reinterpret_cast<WPARAM>(DialogFont()), FALSE);
    return window;
}

// Null when the dialog or one of its controls cannot be created.
HWND CreateFromTemplate(const DialogTemplate& source, HWND owner)
{
    const HWND dialog = Create("#32770", source.caption, source.style, {0, 0, source.width, source.height}, owner, 0);
    if (dialog == nullptr)
        return nullptr;
    // The template gives the size of the client area.
    Window& window = *Desktop::Get().Find(dialog);
    const SIZE frame = window.Frame();
    window.place.right += frame.cx;
    window.place.bottom += frame.cy;
    for (const TemplateItem& item : source.items)
    {
        if (Create(item.className, item.text, item.style | WS_CHILD | WS_VISIBLE,
                   {item.x, item.y, item.width, item.height}, dialog, item.id) == nullptr)
        {
            DestroyWindow(dialog);
            return nullptr;
        }
        if (item.style == (BS_DEFPUSHBUTTON | WS_TABSTOP))
            static_cast<DialogWindow&>(window).defaultId = item.id;
    }
    return dialog;
}

// Without a message, a key, or a timer to come, the run would never end.
void RunUntilEnd(const DialogWindow& dialog)
{
    MSG message{};
    bool isShown = false;
    while (!dialog.hasEnded && IsWindow(dialog.handle))
    {
        // The dialog shows when what was there before it has been handled.
        if (!isShown && IsIdle())
        {
            isShown = true;
            ShowWindow(dialog.handle, SW_SHOW);
            continue;
        }
        if (!TakeMessage(message))
        {
            ++starvedRuns;
            EndDialog(dialog.handle, IDCANCEL);
            return;
        }
        // The runs further out end by it, too, and then the loop of the program.
        if (message.message == WM_QUIT)
        {
            PostQuitMessage(static_cast<int>(message.wParam));
            return;
        }
        if (TakeDialogKey(dialog.handle, message))
            continue;
        TranslateKey(message);
        Dispatch(message);
    }
}

// A dialog that ends while it opens still takes the focus.
void Open(DialogWindow& dialog, LPARAM parameter)
{
    if (SendMessageA(dialog.handle, WM_INITDIALOG, 0, parameter) != FALSE)
        dialog.FocusFirst();
    if (!dialog.hasEnded)
        SetActiveWindow(dialog.handle);
}

constexpr int messageTextId = 0xFFFF;

INT_PTR MessageProcedure(HWND box, UINT message, WPARAM wParam, LPARAM /*lParam*/)
{
    if (message == WM_COMMAND && (LOWORD(wParam) == IDOK || LOWORD(wParam) == IDCANCEL))
        EndDialog(box, IDOK);
    return FALSE;
}

// Gives `notCreated` without a dialog.
INT_PTR RunModal(const DialogTemplate& source, HWND owner, DLGPROC procedure, LPARAM parameter, INT_PTR notCreated)
{
    Window* above = Desktop::Get().Find(owner);
    const HWND root = above != nullptr ? above->Root().handle : nullptr;
    if (GetCapture() != nullptr)
        SendMessageA(GetCapture(), WM_CANCELMODE, 0, 0);
    EnableWindow(root, FALSE);
    const HWND window = CreateFromTemplate(source, root);
    if (window == nullptr)
    {
        EnableWindow(root, TRUE);
        return notCreated;
    }
    const std::shared_ptr<Window> held = Desktop::Get().Hold(window);
    auto& dialog = static_cast<DialogWindow&>(*held);
    dialog.dialogProcedure = procedure;
    Open(dialog, parameter);
    RunUntilEnd(dialog);
    return DestroyWindow(window) != FALSE ? dialog.result : 0;
}

} // namespace

DialogTemplates::DialogTemplates(std::vector<DialogTemplate> templates)
{
    std::ranges::move(templates, std::back_inserter(Templates()));
}

const DialogTemplate* DialogTemplates::Find(int id)
{
    const auto found = std::ranges::find(Templates(), id, &DialogTemplate::id);
    return found != Templates().end() ? &*found : nullptr;
}

int TakeStarvedRuns()
{
    return std::exchange(starvedRuns, 0);
}

size_t CountWindows()
{
    return Desktop::Get().Count();
}

} // namespace platform

using namespace platform;

INT_PTR DialogBoxParamA(HINSTANCE /*instance*/, LPCSTR name, HWND owner, DLGPROC procedure, LPARAM parameter)
{
    const PlatformAtWork working;
    const DialogTemplate* source = DialogTemplates::Find(static_cast<int>(reinterpret_cast<INT_PTR>(name)));
    return source != nullptr ? RunModal(*source, owner, procedure, parameter, -1) : -1;
}

// The dialog stays until its run notices, but is gone for the user.
BOOL EndDialog(HWND dialog, INT_PTR result)
{
    const std::shared_ptr<Window> held = Desktop::Get().Hold(dialog);
    auto* ending = dynamic_cast<DialogWindow*>(held.get());
    if (ending == nullptr)
        return FALSE;
    ending->hasEnded = true;
    ending->result = result;
    const HWND owner = ending->owner != nullptr ? ending->owner->handle : nullptr;
    EnableWindow(owner, TRUE);
    if (ending->FocusedChild() != nullptr)
        SetFocus(dialog);
    ending->style &= ~DWORD{WS_VISIBLE};
    if (GetActiveWindow() == dialog)
    {
        SetActiveWindow(owner != nullptr ? owner : Desktop::Get().SuccessorOf(*ending));
        if (ending->IsFocused())
            SetFocus(nullptr);
    }
    return TRUE;
}

int MessageBoxA(HWND owner, LPCSTR text, LPCSTR caption, UINT /*type*/)
{
    const PlatformAtWork working;
    const DialogTemplate box{0,
                             caption,
                             WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME,
                             120,
                             60,
                             {{"Static", text, messageTextId, SS_LEFT, 10, 10, 100, 20},
                              {"Button", "OK", IDOK, BS_DEFPUSHBUTTON | WS_TABSTOP, 35, 40, 50, 14}}};
    return static_cast<int>(RunModal(box, owner, MessageProcedure, 0, 0));
}
