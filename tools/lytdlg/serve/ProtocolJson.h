// What the service has, in the words of the protocol.
#pragma once

#include "lytdlg/language/Completion.h"
#include "lytdlg/language/Edits.h"
#include "lytdlg/language/Hints.h"
#include "lytdlg/language/Outline.h"

#include "lytdlg/text/TextFile.h"

#include <nlohmann/json.hpp>

namespace lytdlg
{

// The JSON library calls these by their names. What is read raises a Json::exception where something else is there.
void from_json(const Json& json, TextPosition& position);
void from_json(const Json& json, TextRange& range);
void to_json(Json& json, const TextPosition& position);
void to_json(Json& json, const TextRange& range);
void to_json(Json& json, const TextEdit& edit);
void to_json(Json& json, const Symbol& symbol);
void to_json(Json& json, const Fold& fold);
void to_json(Json& json, const Hint& hint);
void to_json(Json& json, const Proposals& proposals);
Json JsonOf(const Finding& finding, const std::string& uri);

// The kinds of words that an editor colours, and words in five numbers each.
Json TokenLegend();
Json TokensOf(const std::vector<NamedWord>& words);

} // namespace lytdlg
