// A description in the making: the test gives the lines of its sections, opens it through the DLL, and acts on the live
// window as a user does.
#pragma once

#include "robot/WindowRobot.h"
#include "support/TestFolder.h"

#include <functional>
#include <map>
#include <string>
#include <vector>

using Texts = std::vector<std::string>;

// What the class library says of an argument that is missing or out of range.
inline constexpr const char* invalidArgument = "An argument is missing or out of range.";

// An input part that hands the whole text to one control.
inline Texts InputTo(const std::string& fill)
{
    return {"Start: (\"#\", End, \"Rest\", End = " + fill};
}

// One description file. A layout line `type name` gets a place of its own and a caption that reads like the name; any
// longer line stands as it is. The other sections hold the lines of the language.
struct Description
{
    Texts layout = {};
    Texts values = {};
    Texts rules = {};
    Texts evaluation = {};
    Texts input = {};
    Texts output = {"(\"done\")"};
    // OK and Cancel stand below the controls.
    bool hasButtons = true;
};

class Form
{
public:
    // Acts on the dialog; what it posts is handled before the next step.
    using Step = std::function<void()>;

    struct Outcome
    {
        int answer = 0;        // of the export: 0 cancelled or failed, 1 or 2 after OK
        std::string text = {}; // what the dialog gave back; empty after 0
        Texts messages = {};   // of the message boxes, in order
    };

    Form();

    Description main;
    std::map<std::string, Description> dialogs; // further ones, for "DIALOG", by name
    std::map<std::string, std::string> texts;   // of the section TEXTS; a control's caption goes by its name

    // Steps are taken in order, each when the dialog of that name is the active one; the last one closes the dialog.
    Form& Then(Step step) { return In("Main", std::move(step)); }
    Form& In(const std::string& name, Step step);
    // Releases a key of the keyboard, and acts once that was handled, whatever dialog is there.
    Form& Release(UINT key, Step step);
    // Answers the message box that the last step brought up.
    Form& Message();
    Form& Ok(const std::string& name = "Main");
    Form& Cancel(const std::string& name = "Main");

    // Opens the main dialog on the input, and fails the test when a step was not reached.
    Outcome Open(const std::string& input = "");

    // The window of a control by its name, in the active dialog.
    HWND operator[](const std::string& name) const;
    const TestFolder& Folder() const { return folder; }

private:
    void Write() const;
    void WriteDescription(const std::string& name, const Description& description) const;

    TestFolder folder;
    std::vector<std::function<void(robot::Robot&)>> steps;
};
