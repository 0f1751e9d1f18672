// Judges a description by every rule there is. The rules come in families, one for each section and a few more; a family
// is a source with its rules and one function, and a row in the table of Judge.cpp.
#pragma once

#include "lytdlg/judge/Description.h"
#include "lytdlg/judge/Finding.h"
#include "lytdlg/judge/FolderTexts.h"
#include "lytdlg/judge/PartnerLibraries.h"
#include "lytdlg/text/LanguageFiles.h"

#include <memory>

namespace lytdlg
{

// What stands round a description. Read once for all descriptions of a folder.
struct Surroundings
{
    std::string folder; // of the description, without a `\` or `/` at its end; empty for a text alone
    std::shared_ptr<PartnerLibraries> partners;
    LanguageFiles texts;
    FolderTexts descriptions;
};

Surroundings SurroundingsOf(const std::string& folder, const std::vector<std::string>& partners);

struct Case
{
    const Description& description;
    const Surroundings& surroundings;
    Findings& findings;
};

struct Family
{
    std::vector<const Rule*> rules;
    void (*judge)(const Case& judged);
};

// The file that a finding is in, and its line there.
const std::string& PathOf(const Finding& finding, const Description& description);
const std::string& LineOf(const Finding& finding, const Description& description);

const std::vector<Family>& Families();
// Null when there is no rule of that id.
const Rule* FindRule(const std::string& id);
std::vector<std::string> RuleNames();

// All findings on a description, in the order of its lines.
Findings Judge(const Description& description, const Surroundings& surroundings);

} // namespace lytdlg
