// The language of scripts: what a user does to live windows, one act a line, a word and its arguments.
//
//     # a comment
//     window "Properties of a value"
//     type "Name:" "volume"
//     set Digits = 2
//     press ok
//
// Reading finds every mistake of form, so that a script fails before a window opens and not in the middle.
#pragma once

#include "script/LineReader.h"

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace script
{

enum class TargetKind
{
    Caption, // the control with that caption, or the one after the label with it
    Number,  // #3: the third control of the window
    Type,    // edit2: the second edit field
    Focus,   // the control with the focus
    Name     // of the description
};

// Which control a step means.
struct Target
{
    TargetKind kind = TargetKind::Focus;
    std::string name = {}; // the caption, the word of the type, or the name
    size_t number = 1;

    // As a script has it, but for the quotes of a caption.
    std::string Written() const;
};

// Texts are in UTF-8.
struct Step
{
    std::string place = {}; // "file:line:column: error: ", empty for one of the command line
    std::string word = {};
    Target target = {};
    std::vector<std::string> arguments = {}; // after the target
    bool isState = false;                    // `expect` compares a state, not a text

    // The first argument, empty without one.
    std::string Argument() const { return arguments.empty() ? "" : arguments.front(); }
};

// As a script has it.
std::string Describe(const Step& step);

// What steps know of the windows beside themselves.
struct Stage
{
    HWND window = nullptr; // the one that the last `window` step met
    // The control that the program knows by the name, or null; for a program that knows the descriptions.
    std::function<HWND(const std::string& name)> named = {};
    // Saves a picture of the window; false when it cannot.
    bool (*savePicture)(HWND window, const std::string& fileName) = nullptr;
};

// One word of the language, its arguments and what it does.
struct StepForm
{
    const char* word;
    // One letter an argument: c control, t text, n number, s state, k key, b button of a message; those after a '?' may
    // be left out.
    const char* shape;
    const char* arguments;
    const char* meaning;
    // An act changes something; the others look, and say where a call's windows are.
    bool isAct;
    // Whether the step can be taken; asked again and again until it can or its time is up.
    bool (*ready)(const Stage& stage, const Step& step);
    // Takes the step. What it posts reaches the windows before the next step is asked. Raises std::runtime_error with
    // the reason when it cannot be taken after all.
    void (*act)(Stage& stage, const Step& step);
};

// Every word of the language, in the order of the help; each has what it does.
const std::vector<StepForm>& StepForms();
const StepForm& FormOf(const Step& step);
// The words that begin an act.
const std::vector<std::string>& ActWords();
// Why a step could not be taken in time, and what to do about it.
std::string ReasonOf(const Stage& stage, const Step& step);
// The words that name a button of a message box.
const std::vector<std::string>& ButtonWords();
const std::vector<std::string>& KeyWords();

// Who takes the steps.
enum class Player
{
    OfWindows,     // for programs that see only windows: a control has no name
    OfDescriptions // for programs that also know the description, and take acts only
};

// Reads what follows the word of a step; raises FileError at a mistake. Null for a word that the player does not have.
const StepForm* FindForm(const std::string& word, Player player);
Step ReadStep(const StepForm& form, LineReader& line, Player player);
// Reads a whole script.
std::vector<Step> ReadScript(const std::string& fileName, const std::string& content, Player player);

// The language as `help script` prints it.
std::string Help();

} // namespace script
