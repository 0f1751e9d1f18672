#include "lytcall/Script.h"

namespace lytcall
{

const std::vector<StepForm>& StepForms()
{
    static const std::vector<StepForm> forms = {
        {"window", "?t", "[\"CAPTION\"]", "wait until a window (with that caption) is the active one"},
        {"closed", "", "", "wait until that window is gone"},
        {"message", "?t", "[\"TEXT\"]", "wait for a message box, print its text, and compare it"},
        {"answer", "?b", "[BUTTON]", "answer the message box: ok, cancel, yes, no, abort, retry, ignore"},
        {"focus", "c", "CONTROL", "move the focus there"},
        {"type", "ct", "CONTROL \"TEXT\"", "type in place of what the field holds"},
        {"append", "ct", "CONTROL \"TEXT\"", "type behind what the field holds"},
        {"enter", "t", "\"TEXT\"", "type where the focus is; what is selected there is replaced"},
        {"key", "k?n", "KEY [TIMES]", "press a key, where the focus is; alt+X is an access key"},
        {"press", "c", "CONTROL", "click on it with the mouse"},
        {"select", "c?t", "CONTROL \"ITEM\"", "click on an item of a list, combo box or tree (tree: \"A/B/C\")"},
        {"doubleclick", "c?t", "CONTROL [\"ITEM\"]", "double click on it, or on an item of it"},
        {"check", "c?t", "CONTROL [\"ITEM\"]", "set the mark of a check box, option or item, unless it is set"},
        {"uncheck", "c?t", "CONTROL [\"ITEM\"]", "take the mark off, unless it is off"},
        {"drop", "c", "CONTROL", "open the list of a combo box"},
        {"lift", "c", "CONTROL", "close it"},
        {"expand", "ct", "CONTROL \"ITEM\"", "open a branch of a tree"},
        {"collapse", "ct", "CONTROL \"ITEM\"", "close a branch of a tree"},
        {"resize", "nn", "WIDTH HEIGHT", "size the window, in pixels"},
        {"read", "c", "CONTROL", "print its text, state or chosen item"},
        {"items", "c", "CONTROL", "print the items of a list, combo box or tree"},
        {"show", "", "", "print every control of the window"},
        {"expect", "cs", "CONTROL \"TEXT\"|STATE",
         "compare what `read` prints, or its state, and stop unless it agrees"},
        {"shot", "t", "\"FILE\"", "save a picture of the window"},
    };
    return forms;
}

const std::vector<std::string>& TypeWords()
{
    static const std::vector<std::string> words = {"edit",  "text",  "button", "check", "option", "list",
                                                   "combo", "group", "tree",   "ok",    "cancel"};
    return words;
}

const std::vector<std::string>& StateWords()
{
    static const std::vector<std::string> words = {"enabled", "disabled",  "visible", "hidden",
                                                   "checked", "unchecked", "focused"};
    return words;
}

const std::vector<std::string>& KeyWords()
{
    static const std::vector<std::string> words = {"tab",    "return",   "escape", "space",     "up",
                                                   "down",   "left",     "right",  "home",      "end",
                                                   "pageup", "pagedown", "delete", "backspace", "f4"};
    return words;
}

const std::vector<std::string>& ButtonWords()
{
    static const std::vector<std::string> words = {"ok", "cancel", "abort", "retry", "ignore", "yes", "no"};
    return words;
}

} // namespace lytcall
