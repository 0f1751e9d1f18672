// The live dialog of a description. It starts from an empty template and, while its window initialises, reads the
// description into a sized window, live controls and rules.
#pragma once

#include "dialog/ClytDialogRules.h"

#include <afxwin.h>

class ClytDialog : public CDialog, public ClytDialogRules
{
public:
    // Opens nothing: the work happens inside DoModal, which gives 1 (OK), 2 (Cancel) or 3 (the construction failed and
    // the user was told). Only after 1 is there a result.
    ClytDialog(const CString& descriptionFile, const CString& defineList);

    // Leaves no dialog deaf to the keyboard: the focus of a control that a rule disables goes to the next tab stop.
    void RunDependencies() override;

    // Return and the OK button. The dialog stays open when a default-button rule has the key, when no output rule
    // holds, and when an evaluation refuses.
    void OnOK() override;

    CWnd& GetWindow() override { return *this; }
    std::optional<CString> ShowNested(const CString& descriptionFile) override;

protected:
    BOOL OnInitDialog() override;
    // Every command runs the rules first, so that a control's own handler sees what they made of its change.
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnCancel() override;
    afx_msg void OnDestroy();

    void SizeWindow(int width, int height, const CString& windowCaption) override;
    std::unique_ptr<ClytControl> MakeControl(const CString& type, const CString& name, ClytPosition position,
                                             ClytSize size, const CString& label) override;
    void CreateControlWindow(ClytControl& control) override;

    DECLARE_MESSAGE_MAP()

private:
    static void TakeScale();
    static CString FocusName();

    bool m_isDying = false; // the window is being destroyed, and its controls with it
};
