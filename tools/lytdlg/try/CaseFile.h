// Test cases as a person writes them: a dialog, what is done to it, and what is expected.
//
//     # a comment
//     dialog: ../dialogs/lytInSym.dlg        paths are relative to the file's folder
//
//     case: a unit needs decimal places
//     input: S1:area(2,m2)
//     set Digits = ""
//     expect Unit disabled
//     ok
//     expect message "Please enter the decimal places, 0 to 9."
//     expect refused
//
// What comes before the first `case:` is for all cases of the file; a file without one is a single case.
#pragma once

#include "lytdlg/try/TrialEnvironment.h"
#include "script/LineReader.h"
#include "script/Script.h"

namespace lytdlg
{

enum class ExpectationKind
{
    Value,   // NAME = "text"
    State,   // NAME enabled, disabled, shown, hidden
    Items,   // NAME items "a", "b"
    Title,   // title = "text"
    Message, // message "text"
    Result,  // result = "text"
    Error,   // error NUMBER
    Ending   // confirmed, cancelled, refused, open, not opened
};

struct Expectation
{
    ExpectationKind kind = ExpectationKind::Ending;
    std::string name = {};     // of a control, in the code page of the dialogs
    std::string expected = {}; // as the file would have it, in UTF-8
    std::string place = {};    // "file:line:column: error: ", of the name
};

// A line of a case that is an act or an expectation.
struct CaseStep
{
    int line = 0;
    bool isAct = false;
    script::Step act = {};
    Expectation expectation = {};
};

struct GoldenCase
{
    std::string name; // as `case:` has it, or that of the file
    std::string file;
    int line = 0; // where it begins
    Setup setup;
    std::vector<CaseStep> steps;
};

// A name in the text of a file: a dialog, without its folder and extension, or a control of the case's dialog.
struct CaseName
{
    bool isDialog = false;
    std::string text;
    std::string dialog; // its path
    int line = 0;
    size_t column = 0; // from 0; the name comes there or after it
};

// All that can be read of a file. A line with a mistake is left out.
struct CaseText
{
    std::vector<GoldenCase> cases;
    std::vector<CaseName> names; // in UTF-8
    std::vector<script::FileError> mistakes;
};
CaseText ReadCaseText(const std::string& file, const std::vector<std::string>& lines);

// Raises script::FileError, with place and hint, at the first mistake.
std::vector<GoldenCase> ReadCases(const std::string& file, const std::vector<std::string>& lines);

// The words that may begin a line: of headers and acts, and `expect`.
std::vector<std::string> CaseWords();

// An expectation as a line of a file has it.
std::string Describe(const Expectation& expectation);

} // namespace lytdlg
