#include "controls/ClytDefaultControl.h"

#include "controls/ClytWindowControl.h"
#include "controls/TypeWords.h"
#include "environment/ClytEnvironment.h"

#include <iterator>

namespace
{

struct ButtonKind
{
    const char* textKey;
    DWORD style;
    UINT id;
};

// By kind: Cancel, OK.
constexpr ButtonKind buttonKinds[] = {
    {lytTypeOf(ClytKind::Cancel).captionKey, WS_TABSTOP, IDCANCEL},
    {lytTypeOf(ClytKind::Ok).captionKey, WS_TABSTOP | BS_DEFPUSHBUTTON, IDOK},
};

} // namespace

ClytDefaultControl::ClytDefaultControl(ClytPosition topLeft, ClytSize extent, int buttonKind)
    : ClytControl(CString(), topLeft, extent, CString())
{
    kind = buttonKind;
}

// A button that cannot be created goes unnoticed: the dialog can still be closed by its frame.
void ClytDefaultControl::CreateControl(ClytForm* owner)
{
    dialog = owner;
    if (kind < 0 || kind >= static_cast<int>(std::size(buttonKinds)))
        return;
    const ButtonKind& button = buttonKinds[kind];
    CWnd& window = owner->GetWindow();
    Create(lytEnvironment.GetText(lytButtonSection, button.textKey), button.style, lytLayoutRect(position, size),
           &window, button.id);
    if (const CWnd* child = window.GetDlgItem(static_cast<int>(button.id)))
    {
        child->ShowWindow(SW_SHOW);
        lytTakeDialogFont(*child, window);
    }
}

// A press moves the focus first, and the control that loses it reports that to the dialog. All of it is one command.
LRESULT ClytDefaultControl::WindowProc(UINT message, WPARAM wParam, LPARAM lParam)
{
    if (dialog == nullptr)
        return CButton::WindowProc(message, wParam, lParam);
    const ClytCounted inCommand = dialog->BeginCommand();
    return CButton::WindowProc(message, wParam, lParam);
}
