// The rules as text: a list, one explained, and the page of them all.
#pragma once

#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

std::string RuleList();
std::string Explanation(const Rule& rule);
// In Markdown, as docs/lytdlg-rules.md holds it.
std::string RulePage();

} // namespace lytdlg
