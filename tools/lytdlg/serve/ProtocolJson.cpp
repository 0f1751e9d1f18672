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

int NumberOf(ProposalKind kind)
{
    switch (kind)
    {
    case ProposalKind::Word: return 14;   // Keyword
    case ProposalKind::Control: return 6; // Variable
    case ProposalKind::Value: return 12;  // Value
    case ProposalKind::Text: return 1;    // Text
    case ProposalKind::Name: return 18;   // Reference
    case ProposalKind::File: return 17;   // File
    case ProposalKind::Snippet: break;
    }
    return 15; // Snippet
}

constexpr const char* tokenKinds[] = {"keyword",    "type",     "variable",  "string",
                                      "enumMember", "function", "namespace", "class"};

// The place in that list.
int TokenKindOf(Meaning meaning)
{
    switch (meaning)
    {
    case Meaning::TypeWord: return 1;
    case Meaning::Control: return 2;
    case Meaning::TextSection:
    case Meaning::TextKey:
    case Meaning::Message: return 3;
    case Meaning::Value: return 4;
    case Meaning::Statement:
    case Meaning::Function: return 5;
    case Meaning::Part:
    case Meaning::Group: return 6;
    case Meaning::Dialog:
    case Meaning::Library: return 7;
    default: return 0;
    }
}

Json JsonOfControl(const DrawnControl& control, int number)
{
    const SeenControl& seen = control.seen;
    Json json = {
        {"target", seen.name.empty() ? "#" + std::to_string(number) : commandline::ToUtf8(seen.name)},
        {"type", commandline::ToUtf8(seen.type)},
        {"place",
         {{"x", seen.place.left}, {"y", seen.place.top}, {"width", seen.place.width}, {"height", seen.place.height}}},
        {"text", commandline::ToUtf8(seen.text)},
        {"value", control.value ? Json(commandline::ToUtf8(*control.value)) : Json()},
        {"items", Json::array()},
        {"enabled", seen.isEnabled},
        {"shown", seen.isShown}};
    for (const SeenItem& item : seen.items)
        json["items"].push_back(commandline::ToUtf8(item.text));
    return json;
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

Json JsonOf(const Proposal& proposal, const TextRange& range)
{
    constexpr int asSnippet = 2;
    Json json = {{"label", commandline::ToUtf8(proposal.label)},
                 {"kind", NumberOf(proposal.kind)},
                 {"textEdit", JsonOf(TextEdit{range, proposal.insert})}};
    if (!proposal.detail.empty())
        json["detail"] = commandline::ToUtf8(proposal.detail);
    if (proposal.isSnippet)
        json["insertTextFormat"] = asSnippet;
    return json;
}

Json JsonOf(const DrawnTrial& drawn)
{
    Json json = {{"svg", drawn.svg}, {"outcome", WordOf(drawn.outcome.ending)}};
    if (drawn.outcome.ending == Ending::Confirmed)
        json["result"] = commandline::ToUtf8(drawn.outcome.text);
    json["messages"] = Json::array();
    for (const std::string& message : drawn.messages)
        json["messages"].push_back(commandline::ToUtf8(message));
    json["controls"] = Json::array();
    int number = 0;
    for (const DrawnControl& control : drawn.controls)
    {
        if (control.seen.hasWindow)
            json["controls"].push_back(JsonOfControl(control, ++number));
    }
    return json;
}

Json TokenLegend()
{
    return {{"tokenTypes", tokenKinds}, {"tokenModifiers", {"declaration"}}};
}

Json TokensOf(const Description& description)
{
    Json numbers = Json::array();
    ClytSpan before = {1, 0, 0};
    for (const SourceLine& line : description.text.Lines())
    {
        for (const NamedWord& word : WordsIn(description, line.number))
        {
            const int lines = word.place.line - before.line;
            for (const int number : {lines, lines == 0 ? word.place.column - before.column : word.place.column,
                                     word.place.length, TokenKindOf(word.meaning), word.isDeclared ? 1 : 0})
                numbers.push_back(number);
            before = word.place;
        }
    }
    return {{"data", std::move(numbers)}};
}

} // namespace lytdlg
