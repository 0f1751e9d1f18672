// The families of rules: one for each section and a few more, each a source. Judge.cpp has the order in which they judge.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

// Sections, lines, marks, and the form of statements.
void ApplySectionRules(const Case& judged);
void ApplyLineRules(const Case& judged);
void ApplyMarkRules(const Case& judged);
void ApplyStatementRules(const Case& judged);
void ApplyWordRules(const Case& judged);
// $LAYOUT, $VALUES, $DEPENDANCES and $EVALUATION.
void ApplyLayoutRules(const Case& judged);
void ApplyValueRules(const Case& judged);
void ApplyContentRules(const Case& judged);
void ApplyActionRules(const Case& judged);
void ApplyDependencyRules(const Case& judged);
void ApplyConditionRules(const Case& judged);
void ApplyEvaluationRules(const Case& judged);
// $INPUT: the way of a scan, its separators, and where the pieces go.
void ApplyScanRules(const Case& judged);
void ApplySeparatorRules(const Case& judged);
void ApplyFillRules(const Case& judged);
// $OUTPUT: groups, their rules, and formats.
void ApplyOutputGroupRules(const Case& judged);
void ApplyOutputRules(const Case& judged);
void ApplyFormatRules(const Case& judged);
// What the calls that open a dialog by its name pass to it, and look for in its answer.
void ApplyNamedRules(const Case& judged);
// Language files, the texts that the description shows, the letters that lead to a control, and the places of controls.
void ApplyLanguageFileRules(const Case& judged);
void ApplyTextRules(const Case& judged);
void ApplyMnemonicRules(const Case& judged);
void ApplyGeometryRules(const Case& judged);
// The libraries that it calls.
void ApplyPartnerRules(const Case& judged);
// The last word is the library's: what it refuses is a finding, unless one that is there says why.
void ApplyLibraryVerdict(const Case& judged);
// The dialog is tried: texts are composed and read back, and rules are examined for what they lock.
void ApplyTrialRules(const Case& judged);

// Remarks at the end of a line silence a rule there:
//
//     Rate = 60   ; lytdlg: ignore value-not-in-list the list is filled later
//
// A reason must follow the rule's name. Errors are not silenced, since the library still refuses the file. Takes
// away what the remarks silence, and adds what is wrong with the remarks themselves.
void ApplyIgnores(const Description& description, Findings& findings);

} // namespace lytdlg
