// What the service has, in the words of the protocol.
#pragma once

#include "lytdlg/language/Completion.h"
#include "lytdlg/language/DrawnTrial.h"
#include "lytdlg/language/Edits.h"
#include "lytdlg/language/Outline.h"

#include <nlohmann/json.hpp>

namespace lytdlg
{

using Json = nlohmann::ordered_json;

// Raise a Json::exception where something else is there.
TextPosition PositionFrom(const Json& json);
TextRange RangeFrom(const Json& json);

Json JsonOf(const TextRange& range);
Json JsonOf(const TextEdit& edit);
Json JsonOf(const std::vector<TextEdit>& edits);
Json JsonOf(const Finding& finding, const std::string& uri);
Json JsonOf(const Symbol& symbol);
Json JsonOf(const Fold& fold);
Json JsonOf(const Proposal& proposal, const TextRange& range);
Json JsonOf(const DrawnTrial& drawn);

// The kinds of words that an editor colours, and the words of a description in five numbers each.
Json TokenLegend();
Json TokensOf(const Description& description);

} // namespace lytdlg
