#include "dialog/ClytDialog.h"

#include "controls/ClytGroupBoxControl.h"
#include "controls/ClytPushButtonControl.h"
#include "environment/ClytEnvironment.h"
#include "environment/ClytException.h"
#include "environment/ProcessState.h"
#include "model/ClytObserver.h"
#include "model/ClytScale.h"
#include "res/resource.h"

#include <algorithm>
#include <utility>

namespace
{

// What DoModal gives when the construction failed.
constexpr int constructionFailed = 3;

// The length that gives a client area of the wanted length, when a window of the wanted length has this client area;
// scaled and cut to an integer. A description cannot make a window longer than the limit.
int OuterLength(int wanted, int client, float factor)
{
    constexpr float limit = 1 << 30;
    const float length = (2.0F * static_cast<float>(wanted) - static_cast<float>(client)) * factor;
    return static_cast<int>(std::clamp(length, -limit, limit));
}

} // namespace

BEGIN_MESSAGE_MAP(ClytDialog, CDialog)
    ON_WM_DESTROY()
END_MESSAGE_MAP()

ClytDialog::ClytDialog(CString descriptionFile, const CString& defineList)
    : CDialog(IDD_PROPERTIES), file(defineList), fileName(std::move(descriptionFile))
{
    lytTreeConfirmCount = 0;
}

CString ClytDialog::GetTextSection() const
{
    return sectionList.IsEmpty() ? CString() : sectionList.GetHead();
}

ClytControl* ClytDialog::FindControl(const CString& name) const
{
    ClytControl* control = nullptr;
    controlMap.Lookup(name, control);
    return control;
}

BOOL ClytDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    TakeScale();
    try
    {
        if (TryReadDescription())
            return TRUE;
    }
    catch (...)
    {
        // The handler of the message reports the failure. Half a dialog is of no use.
        isOver = true;
        EndDialog(constructionFailed);
        throw;
    }
    EndDialog(constructionFailed);
    return FALSE;
}

bool ClytDialog::TryReadDescription()
{
    try
    {
        ReadDescription();
        return true;
    }
    catch (CException* e)
    {
        const ClytCaught failure(e);
        isOver = true;
        ShowFailure(*failure);
        return false;
    }
}

void ClytDialog::TakeScale()
{
    const CClientDC screen(nullptr);
    const int pixelsPerInch = screen.GetDeviceCaps(LOGPIXELSX);
    for (const ClytResolution& scale : lytResolutions)
    {
        if (scale.pixelsPerInch != pixelsPerInch)
            continue;
        lytScaleX = scale.x;
        lytScaleY = scale.y;
        return;
    }
    lytScaleX = 1.0F;
    lytScaleY = 1.0F;
    lytRaise(lytError("Resolution"));
}

// Two passes: the first shows how much of the raw size the frame takes, the second adds it.
void ClytDialog::Resize(int width, int height)
{
    SetWindowPos(nullptr, 0, 0, width, height, SWP_HIDEWINDOW | SWP_NOACTIVATE | SWP_NOREDRAW);
    CRect client;
    GetClientRect(&client);
    SetWindowPos(nullptr, 0, 0, OuterLength(width, client.Width(), lytScaleX),
                 OuterLength(height, client.Height(), lytScaleY), SWP_HIDEWINDOW | SWP_FRAMECHANGED);
}

void ClytDialog::ApplyInput(const CString& partName)
{
    ClytInputPart* part = nullptr;
    if (!inputMap.Lookup(partName, part))
        lytRaise(lytError("EndTooSoon"), CString(), partName);
    Scan(*part, lytInputKey);
    // Emptied, so that no nested dialog scans the same text.
    lytInputKey.Empty();
    for (ClytControl& control : controlList)
        control.SaveState();
}

int ClytDialog::RunInput(const CString& partName, const CString& text)
{
    ClytInputPart* part = nullptr;
    if (!inputMap.Lookup(partName, part))
    {
        lytTellMissing(ClytMissing::InputPart, partName);
        return 0;
    }
    Scan(*part, text);
    return 1;
}

void ClytDialog::Scan(const ClytInputPart& part, const CString& text)
{
    const ClytCounted inCommand = BeginCommand();
    const ClytCounted scan(scanDepth);
    part.Run(text, lytStartName);
}

// A command before which the rules fail is not carried out, except for Cancel: no description can keep the user in its
// dialog.
BOOL ClytDialog::OnCommand(WPARAM wParam, LPARAM lParam)
{
    const ClytCounted inCommand = BeginCommand();
    const bool isCancel = LOWORD(wParam) == IDCANCEL;
    if (CommandRunsRules() && !RunRules() && !isCancel)
        return TRUE;
    lytCommandSeen = 1;
    return CDialog::OnCommand(wParam, lParam);
}

const ClytControlDep* ClytDialog::FindDefaultButtonRule(const CString& focusName) const
{
    for (const ClytControlDep& rule : dependencyList)
    {
        if (rule.stateWord.GetMeaning() != ClytState::DefButton)
            continue;
        for (const ClytCtrlValList& condition : rule.conditions)
        {
            if (condition.GetName() == focusName)
                return &rule;
        }
    }
    return nullptr;
}

void ClytDialog::OnOK()
{
    if (const ClytControlDep* rule = FindDefaultButtonRule(FocusName()))
    {
        lytGiveReturnKey(*rule->GetControl(), *this);
        return;
    }
    if (ComposeResult() == 0)
        return;
    // The commands that the closing window sends belong to this one.
    ++openCommands;
    CDialog::OnOK();
}

std::optional<CString> ClytDialog::Show(const CString& description, const CString& input)
{
    return ClytDialog(lytEnvironment.GetDescriptionFile(description), lytEnvironment.GetDialogDefine()).Ask(input);
}

std::optional<CString> ClytDialog::Ask(const CString& input)
{
    lytInputKey = input;
    if (DoModal() != IDOK)
        return {};
    return result;
}

std::optional<CString> ClytDialog::ShowNested(const CString& description, const CString& input)
{
    return Show(description, input);
}

// A quit message or a partner that ends the dialog cancels it without OnCancel.
INT_PTR ClytDialog::DoModal()
{
    const INT_PTR ending = CDialog::DoModal();
    if (ending == IDCANCEL)
        RestoreTree();
    return ending;
}

void ClytDialog::OnCancel()
{
    RestoreTree();
    ++openCommands;
    CDialog::OnCancel();
}

// After a confirmation in the wizard the tree keeps its place for the next step.
void ClytDialog::RestoreTree()
{
    if (lytTreeConfirmCount == -1)
        return;
    lytTreeConfirmCount = 0;
    lytRestoreTreeChoice();
}

void ClytDialog::OnDestroy()
{
    isOver = true;
    CDialog::OnDestroy();
}

// The name of the control that has the focus; empty for any other window, such as the edit field inside a combo box.
CString ClytDialog::FocusName()
{
    const CWnd* focus = FromHandlePermanent(::GetFocus());
    const auto* control = dynamic_cast<const ClytControl*>(focus);
    if (control == nullptr || dynamic_cast<const ClytGroupBoxControl*>(focus) != nullptr)
        return {};
    return control->GetName();
}
