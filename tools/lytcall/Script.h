// The steps that a script takes on live windows: one a line, a word and its arguments.
//
//     # a comment
//     window "Properties of a value"
//     type "Name:" "volume"
//     expect edit2 "2"
//     press ok
//
// Reading finds every mistake of form, so that a script fails before a window opens and not in the middle.
#pragma once

#include <cstddef>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace lytcall
{

// A mistake in a script, told as "file:line:column: error: what; the way out".
class ScriptError : public std::runtime_error
{
public:
    ScriptError(const std::string& file, int line, int column, const std::string& message);
};

enum class TargetKind
{
    Caption, // the control with that caption, or the one after the label with it
    Number,  // #3: the third control of the window
    Type,    // edit2: the second edit field
    Focus    // the control with the focus
};

// Which control a step means.
struct Target
{
    TargetKind kind = TargetKind::Focus;
    std::string name; // the caption, or the word of the type
    size_t number = 1;
};

struct Step
{
    int line = 0;
    int column = 0;
    std::string word;
    Target target;
    std::vector<std::string> arguments; // after the target
    bool isState = false;               // `expect` compares a state, not a text
};

// One word of the script language, its arguments and what it does, for reading and for help.
struct StepForm
{
    const char* word;
    // One letter an argument: c control, t text, n number, s state, k key, b button of a message; those after a '?' may
    // be left out.
    const char* shape;
    const char* arguments;
    const char* meaning;
};

// Every word of the language, in the order of the help.
const std::vector<StepForm>& StepForms();
// The words that name a type of control, a state, a key and a button of a message box.
const std::vector<std::string>& TypeWords();
const std::vector<std::string>& StateWords();
const std::vector<std::string>& KeyWords();
const std::vector<std::string>& ButtonWords();

// Reads a whole script; raises ScriptError at the first mistake.
std::vector<Step> ReadScript(const std::string& fileName, std::string_view text);

} // namespace lytcall
