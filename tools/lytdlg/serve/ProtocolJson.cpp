#include "lytdlg/serve/ProtocolJson.h"

#include "commandline/Text.h"

#include <algorithm>

namespace lytdlg
{

using commandline::ToUtf8;

void from_json(const Json& json, TextPosition& position)
{
    position = {json.at("line").get<int>(), json.at("character").get<int>()};
}

void from_json(const Json& json, TextRange& range)
{
    range = {json.at("start").get<TextPosition>(), json.at("end").get<TextPosition>()};
}

void to_json(Json& json, const TextPosition& position)
{
    json = {{"line", position.line}, {"character", position.character}};
}

void to_json(Json& json, const TextRange& range)
{
    json = {{"start", range.begin}, {"end", range.end}};
}

void to_json(Json& json, const TextEdit& edit)
{
    json = {{"range", edit.range}, {"newText", ToUtf8(edit.text)}};
}

void to_json(Json& json, const Symbol& symbol)
{
    const TextRange line = RangeOf(symbol.place);
    const TextPosition end = std::max(line.end, TextPosition{symbol.lastLine, 0});
    json = {{"name", ToUtf8(symbol.name)},
            {"detail", ToUtf8(symbol.detail)},
            {"kind", symbol.kind},
            {"range", TextRange{{line.begin.line, 0}, end}},
            {"selectionRange", line}};
    if (!symbol.inner.empty())
        json["children"] = symbol.inner;
}

void to_json(Json& json, const Fold& fold)
{
    json = {{"startLine", fold.first - 1}, {"endLine", fold.last - 1}};
}

void to_json(Json& json, const Hint& hint)
{
    json = {{"position", hint.position}, {"label", ToUtf8(hint.text)}, {"paddingLeft", true}};
}

void to_json(Json& json, const Proposals& proposals)
{
    constexpr int asSnippet = 2;
    json = Json::array();
    for (const Proposal& proposal : proposals.all)
    {
        json.push_back({{"label", ToUtf8(proposal.label)},
                        {"kind", proposal.kind},
                        {"textEdit", TextEdit{RangeOf(proposals.place), proposal.insert}}});
        if (!proposal.detail.empty())
            json.back()["detail"] = ToUtf8(proposal.detail);
        if (proposal.isSnippet)
            json.back()["insertTextFormat"] = asSnippet;
    }
}

Json JsonOf(const Finding& finding, const std::string& uri)
{
    const std::string number = finding.number.empty() ? "" : " (message " + finding.number + ")";
    const std::string hint = finding.hint.empty() ? "" : "\nhint: " + finding.hint;
    Json json = {{"range", RangeOf(finding.place)},
                 {"severity", static_cast<int>(finding.rule->level) + 1},
                 {"code", finding.rule->id},
                 {"source", "lytdlg"},
                 {"message", ToUtf8(WholeMessageOf(finding) + number + hint)}};
    for (const Finding& other : finding.more)
        json["relatedInformation"].push_back(
            {{"location", {{"uri", uri}, {"range", RangeOf(other.place)}}}, {"message", ToUtf8(other.message)}});
    return json;
}

Json TokenLegend()
{
    // In the order of the meanings.
    return {{"tokenTypes", {"comment",   "keyword", "type",       "string",   "string",   "string",   "variable",
                            "keyword",   "keyword", "enumMember", "keyword",  "keyword",  "function", "namespace",
                            "namespace", "class",   "class",      "function", "variable", "keyword"}},
            {"tokenModifiers", {"declaration"}}};
}

Json TokensOf(const std::vector<NamedWord>& words)
{
    Json numbers = Json::array();
    ClytSpan before = {1, 0, 0};
    for (const NamedWord& word : words)
    {
        const int lines = word.place.line - before.line;
        for (const int number : {lines, lines == 0 ? word.place.column - before.column : word.place.column,
                                 word.place.length, static_cast<int>(word.meaning), word.isDeclared ? 1 : 0})
            numbers.push_back(number);
        before = word.place;
    }
    return {{"data", std::move(numbers)}};
}

} // namespace lytdlg
