// The window half of a control: the sequence in which its window comes into being, and the states that all windows
// share. A control class derives from it and adds what differs.
#pragma once

#include "environment/ClytException.h"
#include "model/ClytForm.h"

#include <afxwin.h>

// What gives a window its size: the layout statement, or its own text with or without room for a check mark.
enum class ClytFit
{
    ToLayout,
    ToCaption,
    ToCaptionWithMargin
};

// The rectangle of a layout statement. Lengths beyond any window are cut, so that nothing overflows.
CRect lytLayoutRect(ClytPosition position, ClytSize size);
// Gives a control's window the font of the dialog, or none when the dialog has none.
void lytTakeDialogFont(const CWnd& window, const CWnd& dialog);
// Sizes a control's window to its text as displayed, in the dialog's font, and moves it to the position.
void lytFitToCaption(const CWnd& window, const CWnd& dialog, ClytPosition position, const char* caption, ClytFit fit);
// "ACTIVE" enables or disables a window; any other word shows or hides it.
void lytSetWindowState(const CWnd& window, ClytState state, int on);

template <class WINDOW>
class ClytWindowControl : public WINDOW, public ClytControl
{
public:
    using ClytControl::ClytControl;

    void SetState(const ClytStateWord& word, int on) override { lytSetWindowState(*this, word.GetMeaning(), on); }
    int IsActive() override { return this->IsWindowEnabled() ? 1 : 0; }
    int HasContent() override { return 1; }
    int IsVisible() override { return this->IsWindowVisible() ? 1 : 0; }

protected:
    // `create` makes the window at the rectangle and under the parent that it is given, and returns false when it cannot:
    // that raises 202. The option flags come after it, where each class wants them.
    template <class CREATE>
    void CreateCommon(ClytForm* owner, ClytFit fit, CREATE create)
    {
        CWnd& parent = owner->GetWindow();
        if (!create(lytLayoutRect(position, size), &parent))
            lytRaise(lytError("WindowNotMade"), CString(), name);
        dialog = owner;
        lytTakeDialogFont(*this, parent);
        if (fit != ClytFit::ToLayout)
            lytFitToCaption(*this, parent, position, caption, fit);
        this->ShowWindow(SW_SHOW);
    }

    // The option words reach the window through SetState, so that a class's own idea of a state holds for them too.
    void ApplyOptionFlags()
    {
        if (hidden != 0 || invisible != 0)
            SetState(ClytState::Visible, 0);
        if (displayOnly != 0 || inactive != 0)
            SetState(ClytState::Active, 0);
    }
};
