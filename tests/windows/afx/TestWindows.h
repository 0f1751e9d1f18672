// Windows for the tests of the class library.
#pragma once

#include <afxwin.h>

#include <string>
#include <vector>

// A hidden top-level window that keeps a record of what reaches it.
class RecordingWindow : public CWnd
{
public:
    RecordingWindow();

    std::vector<std::string> record;
    int destroyed = 0;

protected:
    void Note(const std::string& what) { record.push_back(what); }
    afx_msg void OnSize(UINT kind, int width, int height);
    afx_msg void OnLButtonDown(UINT flags, CPoint point);
    afx_msg void OnKeyDown(UINT key, UINT count, UINT flags);
    afx_msg void OnDestroy();
    afx_msg void OnChosen() { Note("chosen"); }
    afx_msg void OnNotification(NMHDR* header, LRESULT* result);
    afx_msg LRESULT OnQuestion(WPARAM wParam, LPARAM lParam);
    void PostNcDestroy() override { ++destroyed; }

    DECLARE_MESSAGE_MAP()
};

constexpr UINT questionMessage = WM_APP + 1;
constexpr UINT failMessage = WM_APP + 2; // wParam tells what is raised
constexpr UINT nestMessage = WM_APP + 3;

// The same with handlers that fail.
class FailingWindow : public RecordingWindow
{
public:
    int paints = 0;

protected:
    afx_msg LRESULT OnFail(WPARAM wParam, LPARAM lParam);
    afx_msg LRESULT OnPaintFails(WPARAM wParam, LPARAM lParam);
    afx_msg void OnChosen();

    DECLARE_MESSAGE_MAP()
};

// The dialogs of templates.rc.
constexpr UINT emptyTemplate = 200;
constexpr UINT filledTemplate = 201;

// A dialog over the templates of this program that does what the test tells it.
class ScriptedDialog : public CDialog
{
public:
    explicit ScriptedDialog(UINT templateId) : CDialog(templateId) {}

    enum class Init
    {
        Plain,
        EndAtOnce,
        Raise
    };
    Init init = Init::Plain;
    std::vector<std::string> record;
    bool unicode = false;

protected:
    BOOL OnInitDialog() override;
    void OnOK() override;
    void OnCancel() override;
};
