// What a user sees of a dialog at one moment.
#pragma once

#include "lytdlg/try/TrialDialog.h"

#include <optional>
#include <string>
#include <vector>

namespace lytdlg
{

struct ItemState
{
    std::string shown;
    std::string value;
    bool isMarked = false; // in a check list
};

// Texts are in the code page of the dialogs.
struct ControlState
{
    std::string name; // empty for one without
    std::string type;
    bool isEnabled = false;
    bool isShown = false;
    std::optional<std::string> value = {}; // none for a control without one, and for a list with nothing chosen
    std::string caption = {};              // of a control that has no value but a text
    bool isChosen = false;                 // an option button
    std::vector<ItemState> items = {};
    std::string lostText = {}; // that an input has put into a combo box's field beside the choice, which counts
};

struct DialogState
{
    std::string title;
    std::vector<ControlState> controls; // in layout order

    const ControlState* Find(const std::string& name) const;
};

// Reads an open dialog without changing it.
DialogState LookAt(const TrialDialog& dialog);
// The same for one control.
ControlState LookAt(const TrialDialog& dialog, ClytControl& control);

// The value of a control, without the side effects that asking a list without a choice has; nothing without a value.
std::optional<std::string> ValueOf(ClytControl& control);

// What becomes of a value that an input gives to a control.
enum class Taking
{
    Taken,
    Unknown,   // it is not one of its options, items or states
    OutOfReach // an item that an input cannot choose
};
Taking TakingOf(const ClytControl& control, const CString& value);

// A line for each control, in UTF-8: name, type, states, value or text, items.
std::string Describe(const DialogState& state);
std::string DescribeItems(const ControlState& state);
// Of a control that has one.
std::string DescribeLostText(const ControlState& state);

} // namespace lytdlg
