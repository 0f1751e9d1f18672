// What happens while a dialog is tried, in its order.
#pragma once

#include <string>
#include <vector>

namespace lytdlg
{

enum class EventKind
{
    Message, // the text of a message box, in the code page of the dialogs
    Dialog,  // a nested dialog was opened or closed
    Trace    // what the dialog did silently
};

struct Event
{
    EventKind kind = EventKind::Message;
    std::string text = {}; // in UTF-8 but for messages

    friend bool operator==(const Event&, const Event&) = default;
};

using EventLog = std::vector<Event>;

} // namespace lytdlg
