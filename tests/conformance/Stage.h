// A dialog on which the conformance program acts, and the record of the messages of its windows.
//
// Every message that matters is printed when it arrives, indented under the message inside which it was sent; so the
// record shows the order and what was absent, and not results alone.
#pragma once

#include "robot/WindowRobot.h"

#include <afxcmn.h>

#include <cstdint>
#include <functional>
#include <list>
#include <map>
#include <memory>
#include <string>

// Texts that were added one after the other, as a number of 64 bits.
class Digest
{
public:
    void Add(const std::string& text)
    {
        for (const char ch : text + "\n")
            m_value = (m_value ^ static_cast<unsigned char>(ch)) * 0x100000001B3U;
    }
    uint64_t Value() const { return m_value; }

private:
    uint64_t m_value = 0xCBF29CE484222325U;
};

// Prints one line of the record.
void Print(const char* format, ...) __attribute__((format(printf, 1, 2)));
// From then on lines are added to the digest instead; null prints again.
void PrintInto(Digest* digest);

// Prints a message for as long as it is handled; `id` is the window's.
class RecordedMessage
{
public:
    RecordedMessage(int id, UINT message, WPARAM wParam, LPARAM lParam);
    RecordedMessage(const RecordedMessage&) = delete;
    RecordedMessage& operator=(const RecordedMessage&) = delete;
    ~RecordedMessage();

private:
    bool m_isPrinted;
};

// A window of the class library that records its messages.
template <class WINDOW>
class Recorded : public WINDOW
{
public:
    using WINDOW::WINDOW;

protected:
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override
    {
        const RecordedMessage recorded(this->GetDlgCtrlID(), message, wParam, lParam);
        return WINDOW::WindowProc(message, wParam, lParam);
    }
};

class Stage : public Recorded<CDialog>
{
public:
    // The title is the window's.
    explicit Stage(std::string title);

    // Adds a control; it is made, in this order, when the dialog opens.
    template <class WINDOW>
    WINDOW& Add(int id, const std::string& windowClass, const std::string& text, DWORD style, int height = 20,
                DWORD exStyle = 0)
    {
        auto window = std::make_unique<Recorded<WINDOW>>();
        WINDOW& added = *window;
        m_controls.push_back({std::move(window), id, windowClass, text, style, height, exStyle});
        return added;
    }
    CButton& Button(int id, const std::string& text, DWORD style = 0);
    CButton& Ok();
    CButton& Cancel();
    CEdit& Edit(int id);
    CListBox& List(int id);
    CCheckListBox& CheckList(int id);
    CComboBox& Combo(int id, DWORD style);
    CStatic& Static(int id, const std::string& text);
    CTreeCtrl& Tree(int id);

    // One that was added.
    CWnd& Control(int id);
    // The name of an item of a tree, and the item of a name. "none" is no item; the topmost ones are below "root".
    std::string NameOf(HTREEITEM item) const;
    HTREEITEM ItemNamed(const std::string& name) const;

    // Prints a line when the dialog opens, below its title.
    void Note(const std::string& line) { m_notes.push_back(line); }
    // Acts when everything that the act before led to has been handled.
    void Act(const std::string& title, std::function<void()> act);
    // An act on the topmost dialog.
    void Look(std::function<void()> look);
    // Opens the dialog, acts, and prints what it gives. What is never closed is closed by the robot.
    void Run();

    // What a button's command does beyond the record.
    std::map<int, std::function<void()>> onClick;
    // What happens when the controls are there and the dialog is not shown yet.
    std::function<void()> onOpen;
    // The items of trees by their names, and their pictures.
    std::map<std::string, HTREEITEM, std::less<>> items;
    CImageList pictures;

protected:
    BOOL OnInitDialog() override;
    BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;
    void OnOK() override {}
    void OnCancel() override {}

private:
    struct Added
    {
        std::unique_ptr<CWnd> window;
        int id;
        std::string windowClass;
        std::string text;
        DWORD style;
        int height;
        DWORD exStyle;
    };

    std::string m_title;
    std::list<std::string> m_notes;
    std::list<Added> m_controls;
    robot::Robot m_robot{120000};
};

// A dialog with a field and a button, which closes it.
class Inner : public Recorded<CDialog>
{
public:
    explicit Inner(int editId);

    // What happens while it opens; false when it is not to have the focus.
    std::function<bool(HWND dialog)> onOpen;

protected:
    BOOL OnInitDialog() override;

private:
    int m_editId;
    Recorded<CEdit> m_edit;
    Recorded<CButton> m_ok;
};

// A key of the keyboard, down and up.
void Strike(UINT key);

// Of the sequences from one number to before another; a shown one prints every act and state.
void Generated(unsigned begin, unsigned end, bool isShown);
void Meddled(unsigned begin, unsigned end, bool isShown);
