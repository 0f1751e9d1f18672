// A dialog: which child has the focus, which button is the default one, and how a modal run ends.
#pragma once

#include "Window.h"

#include <set>

namespace platform
{

class DialogWindow : public Window
{
public:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
    SIZE Adjusted(SIZE wanted) const override;

    // The next (previous) child that the tab key reaches, coming from one of the children or from none; null when
    // it reaches no child.
    Window* NextTabStop(const Window* from, bool backwards = false) const;
    // The child that an arrow key reaches: the next (previous) one of the group, or itself.
    Window* NextInGroup(Window& from, bool backwards) const;
    // Gives the focus to a child as the tab key does: an edit field is selected, and a push button becomes the default.
    void FocusChild(HWND child);
    // The child that holds the focus, itself or in one of its windows; null when no child does.
    Window* FocusedChild() const;
    // A button has become a default button, or has ceased to be one.
    void NoteButton(HWND button, bool isDefault);
    // Gives the focus to the first tab stop; without one, to a child of the first group, be it hidden or not.
    void FocusFirst();

    DLGPROC dialogProcedure = nullptr;
    int defaultId = IDOK;
    bool hasEnded = false;
    INT_PTR result = IDOK;

private:
    bool IsHandledByProgram(UINT message, WPARAM wParam, LPARAM lParam) const;
    LRESULT HandleDefault(UINT message, WPARAM wParam, LPARAM lParam);
    // The child after (before) one of the children, around the end.
    Window& Neighbour(const Window& child, bool backwards) const;
    // Gives the focus back to the control that had it before the dialog lost its activation; false when no control had it.
    bool RestoreSavedFocus();
    void MoveToControl(WPARAM wParam, LPARAM lParam);
    void MoveDefaultTo(HWND focused) const;
    HWND DefaultButton() const;

    std::set<HWND> m_defaultButtons; // in order of creation, as handles grow
    HWND m_savedFocus = nullptr;     // while the dialog is not active
};

// Whether a control wants one of these inputs, or is of one of these kinds (DLGC_...); what it wants may depend on the key.
bool HasCode(HWND window, UINT codes, WPARAM key = 0);

} // namespace platform
