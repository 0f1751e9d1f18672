// What a description says line by line, read once more to explain a dialog.
#pragma once

#include "lytdlg/try/Recorder.h"
#include "lytdlg/try/TrialDialog.h"

#include <string>
#include <vector>

namespace lytdlg
{

struct ControlFact
{
    std::string name;
    std::string type;
    int line = 0;
};

// A statement of $VALUES.
struct ValueFact
{
    std::string name;
    std::string keyword;
    std::vector<std::string> values;
    int line = 0;
};

// Texts are in the code page of the dialogs, lines are of the file.
struct DialogFacts
{
    std::vector<ControlFact> controls;
    std::vector<ValueFact> values;
    std::vector<std::string> parts;  // of the input
    std::vector<std::string> groups; // of the output

    DialogFacts() = default;
    // Reads a description that the library takes; raises what the library raises for any other.
    DialogFacts(const std::string& file, const std::string& defines);

    // The last statement that gives the control this option word, or null.
    const ValueFact* OptionOf(const std::string& control, const std::string& word) const;
    // The statement of that keyword, such as FILLEDBY.
    const ValueFact* StatementOf(const std::string& control, const std::string& keyword) const;
};

// The line of the file that the library refuses while it reads the description; 0 when it reads it to the end.
int RefusedLine(const std::string& file, const std::string& defines);

struct Sentence
{
    std::string text; // in UTF-8
    int line = 0;     // of the statement that it is about; 0 for none
};

// Why a control of an open dialog is hidden, disabled or empty, or that it is not, in plain sentences.
std::vector<Sentence> Explain(const TrialDialog& dialog, ClytControl& control, const Recorder& recorder);
// The part of it that is about the value: what filled and emptied the control, or why nothing did.
std::vector<Sentence> ExplainValue(const TrialDialog& dialog, ClytControl& control, const Recorder& recorder);

// A rule that was tried for a control, as it came out last.
struct TriedRule
{
    RuleRecord record;
    bool decides = false; // the control is shown or enabled as the rule has it
};
std::vector<TriedRule> RulesAbout(const TrialDialog& dialog, ClytControl& control, const Recorder& recorder);

std::string InLine(int line);

} // namespace lytdlg
