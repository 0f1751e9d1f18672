#include "lytdlg/serve/ProtocolJson.h"

#include "commandline/Text.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

// The numbers of the protocol.
int SeverityOf(Level level)
{
    return level == Level::Error ? 1 : level == Level::Warning ? 2 : 3;
}

int NumberOf(SymbolKind kind)
{
    switch (kind)
    {
    case SymbolKind::Header: return 3;    // Namespace
    case SymbolKind::Control: return 8;   // Field
    case SymbolKind::Statement: return 6; // Method
    case SymbolKind::Check: break;
    }
    return 24; // Event
}

Json PositionJson(const TextPosition& position)
{
    return {{"line", position.line}, {"character", position.character}};
}

} // namespace

TextPosition PositionFrom(const Json& json)
{
    return {json.at("line").get<int>(), json.at("character").get<int>()};
}

TextRange RangeFrom(const Json& json)
{
    return {PositionFrom(json.at("start")), PositionFrom(json.at("end"))};
}

Json JsonOf(const TextRange& range)
{
    return {{"start", PositionJson(range.begin)}, {"end", PositionJson(range.end)}};
}

Json JsonOf(const TextEdit& edit)
{
    return {{"range", JsonOf(edit.range)}, {"newText", commandline::ToUtf8(edit.text)}};
}

Json JsonOf(const std::vector<TextEdit>& edits)
{
    Json all = Json::array();
    for (const TextEdit& edit : edits)
        all.push_back(JsonOf(edit));
    return all;
}

Json JsonOf(const Finding& finding, const std::string& uri)
{
    const std::string number = finding.number.empty() ? "" : " (message " + finding.number + ")";
    const std::string hint = finding.hint.empty() ? "" : "\nhint: " + finding.hint;
    Json json = {{"range", JsonOf(RangeOf(finding.place))},
                 {"severity", SeverityOf(finding.rule->level)},
                 {"code", finding.rule->id},
                 {"source", "lytdlg"},
                 {"message", commandline::ToUtf8(WholeMessageOf(finding) + number + hint)}};
    for (const Finding& other : finding.more)
        json["relatedInformation"].push_back({{"location", {{"uri", uri}, {"range", JsonOf(RangeOf(other.place))}}},
                                              {"message", commandline::ToUtf8(other.message)}});
    return json;
}

Json JsonOf(const Symbol& symbol)
{
    const TextRange line = RangeOf(symbol.place);
    const TextPosition end = {std::max(line.end.line, symbol.lastLine), 0};
    Json json = {{"name", commandline::ToUtf8(symbol.name)},
                 {"detail", commandline::ToUtf8(symbol.detail)},
                 {"kind", NumberOf(symbol.kind)},
                 {"range", JsonOf(TextRange{{line.begin.line, 0}, std::max(line.end, end)})},
                 {"selectionRange", JsonOf(line)}};
    for (const Symbol& inner : symbol.inner)
        json["children"].push_back(JsonOf(inner));
    return json;
}

Json JsonOf(const Fold& fold)
{
    return {{"startLine", fold.first - 1}, {"endLine", fold.last - 1}};
}

} // namespace lytdlg
