// What is seen of a dialog at one moment: a record of the window and of each control, with all that a drawing of it needs.
#pragma once

#include <windows.h>

#include <array>
#include <string>
#include <vector>

namespace lytdlg
{

class TrialDialog;

// Pixels, within what it is the place of.
struct Area
{
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Area&) const = default;
};

struct SeenItem
{
    std::string text;
    bool isMarked = false;
};

// An item of a tree that no closed branch hides.
struct SeenNode
{
    std::string text;
    std::string path; // as an act names it
    int level = 0;
    bool isOpen = false;
    bool hasInner = false;
    bool isChosen = false;
};

// Texts are in the library's code page; captions have the marks of their access keys.
struct SeenControl
{
    std::string type; // the word of the layout
    std::string name;
    int line = 0; // of its statement
    std::string text;
    Area place;  // in the window
    Area inside; // in the control: what its frame leaves
    Area field;  // in the control: the field of a combo box that takes free text
    bool hasWindow = false;
    bool isShown = false;
    bool isEnabled = false;
    bool isDefault = false;
    bool isChecked = false;
    bool hasFocus = false;
    int tabNumber = 0; // from 1, in the order of the Tab key; 0 for a control that it never reaches
    std::vector<SeenItem> items;
    std::vector<SeenNode> nodes;
    int chosen = -1;
    int topItem = 0;
    Area firstItem;       // in the inside: the place of the top item
    int selectedFrom = 0; // the characters of a field that are selected
    int selectedTo = 0;
};

struct SeenDialog
{
    int WidthOf(const std::string& shown) const;

    std::string title;
    int width = 0;
    int height = 0;
    Area client; // in the window
    int pixelsPerInch = 96;
    int textHeight = 0;
    std::array<int, 256> advances{}; // of the dialog's font, by character
    std::vector<SeenControl> controls;
};

// Reads an open dialog without changing it.
SeenDialog See(const TrialDialog& dialog);
// The same of a window without a description, such as the catalogue. Its controls have the types of the layout that look
// like them; a tree is a "Tree".
SeenDialog See(HWND window);

// Holds for as long as it lives.
// The resolution of the screen that dialogs are opened on.
class Resolution
{
public:
    // Throws std::runtime_error when the screen cannot have it.
    explicit Resolution(int pixelsPerInch);
    Resolution(const Resolution&) = delete;
    Resolution& operator=(const Resolution&) = delete;
    ~Resolution();

private:
    int m_before;
};

// Of the screen as it is.
int PixelsPerInch();

} // namespace lytdlg
