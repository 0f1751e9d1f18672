// Checks a description by all rules.
#pragma once

#include "lytdlg/judge/Description.h"
#include "lytdlg/judge/Finding.h"
#include "lytdlg/judge/FolderTexts.h"
#include "lytdlg/judge/PartnerLibraries.h"
#include "lytdlg/text/LanguageFiles.h"

#include <functional>
#include <memory>
#include <optional>

namespace lytdlg
{

// What is around a description. Read once for all descriptions of a folder.
struct Surroundings
{
    std::string folder; // of the description, without a `\` or `/` at its end; empty for a text alone
    std::shared_ptr<PartnerLibraries> partners;
    LanguageFiles texts;
    FolderTexts descriptions;
};

Surroundings SurroundingsOf(const std::string& folder, const std::vector<std::string>& partners);

// Asked before each trial whether to give the judgement up, which raises JudgementGivenUp.
using GiveUpQuestion = std::function<bool()>;
struct JudgementGivenUp
{
};

struct Case
{
    const Description& description;
    const Surroundings& surroundings;
    Findings& findings;
    GiveUpQuestion isGivenUp = {};
};

// Adds a finding in a language file. The line is the whole one that the place is in.
Finding& AddIn(const Case& judged, RuleName rule, const LanguageFile& file, const ClytSpan& place,
               const std::string& line, const std::string& message, const std::string& hint);
// All of the line that holds a key.
ClytSpan WholeLineOf(const LanguageKey& key);

// The file that a finding is in, and its line there.
const std::string& PathOf(const Finding& finding, const Description& description);
const std::string& LineOf(const Finding& finding, const Description& description);

// All findings on a description, in the order of its lines.
Findings Judge(const Description& description, const Surroundings& surroundings, const GiveUpQuestion& isGivenUp = {});
// The same without those for which the dialog is tried, which takes nearly all of the time.
Findings JudgeUntried(const Description& description, const Surroundings& surroundings);

// Why the library refuses a description, and at which line of the file.
struct Refusal
{
    std::string number; // of its message; empty for a failure of the class library
    std::string words;  // what it shows, as far as that needs no language file
    std::string argument;
    int line = 0;
};

// Constructs the dialog, without texts and with an empty input; nothing when the library accepts it. Messages on the way
// are answered.
std::optional<Refusal> RefusalOf(const Description& description);

} // namespace lytdlg
