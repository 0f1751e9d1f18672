// The answers about a place of a description.
#include "commandline/Text.h"
#include "lytdlg/language/LanguageHelp.h"
#include "lytdlg/serve/Server.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Uri.h"
#include "lytdlg/try/CaseRun.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

constexpr const char* runCommand = "lytdlg.run";
constexpr const char* testCommand = "lytdlg.test";

Json LensFor(int line, Json command, Json data)
{
    const TextPosition begin = {std::max(0, line - 1), 0};
    Json lens = {{"range", JsonOf(TextRange{begin, begin})}};
    if (!command.is_null())
        lens["command"] = std::move(command);
    if (!data.is_null())
        lens["data"] = std::move(data);
    return lens;
}

std::string TitleOfCases(const std::vector<GoldenCase>& cases)
{
    const auto hasPassed = [](const GoldenCase& one) { return RunCase(one).differences.empty(); };
    const auto passed = static_cast<size_t>(std::ranges::count_if(cases, hasPassed));
    const std::string all = std::to_string(cases.size()) + (cases.size() == 1 ? " case" : " cases");
    return passed == cases.size() ? all + " passed" : std::to_string(passed) + " of " + all + " passed";
}

} // namespace

const Description& Server::DescriptionIn(const Json& params) const
{
    const std::string path = PathIn(params);
    static const Description none("", "", {});
    const bool isDescription = KindOfText(path) == TextKind::Description;
    return isDescription ? m_workspace->DescriptionAt(path) : none;
}

NamedWord Server::WordIn(const Json& params) const
{
    const TextPosition position = PositionFrom(params.at("position"));
    const Description& description = DescriptionIn(params);
    // As references have it: an item of the output that names a control is one.
    const int line = std::clamp(position.line, 0, static_cast<int>(description.text.Lines().size())) + 1;
    for (NamedWord& word : WordsIn(description, line))
    {
        if (word.place.column <= position.character && position.character <= word.place.column + word.place.length)
            return std::move(word);
    }
    return {};
}

Json Server::LocationOf(const std::string& path, const ClytSpan& place) const
{
    return {{"uri", UriFor(path)}, {"range", JsonOf(RangeOf(place))}};
}

Json Server::Completion(const Json& params)
{
    const TextPosition position = PositionFrom(params.at("position"));
    const Description& description = DescriptionIn(params);
    Json items = Json::array();
    if (position.line < 0 || position.line >= static_cast<int>(description.text.Lines().size()))
        return items;
    const Proposals proposals =
        ProposalsAt(description, m_workspace->SurroundingsAt(PathIn(params)), position.line + 1, position.character);
    for (const Proposal& proposal : proposals.all)
    {
        Proposal taken = proposal;
        if (!m_takesSnippets && taken.isSnippet)
        {
            taken.insert = taken.label;
            taken.isSnippet = false;
        }
        if (m_takesSnippets || proposal.kind != ProposalKind::Snippet)
            items.push_back(JsonOf(taken, RangeOf(proposals.place)));
    }
    return items;
}

Json Server::Hover(const Json& params)
{
    const std::string path = PathIn(params);
    const TextPosition position = PositionFrom(params.at("position"));
    const NamedWord word = WordIn(params);
    const Section section = DescriptionIn(params).text.Line(word.place.line).section;
    std::string text = HelpOn(word, section);
    if (text.empty())
        text = commandline::ToUtf8(ExplanationOf(*m_workspace, path, word));
    for (const Finding& finding : m_diagnostics.Of(path))
    {
        const TextRange range = RangeOf(finding.place);
        if (range.begin <= position && position <= range.end)
            text += (text.empty() ? "" : "\n\n---\n\n") + ("```text\n" + Explanation(*finding.rule)) + "```\n";
    }
    if (text.empty())
        return {};
    Json hover = {{"contents", {{"kind", "markdown"}, {"value", text}}}};
    if (word.meaning != Meaning::Nothing)
        hover["range"] = JsonOf(RangeOf(word.place));
    return hover;
}

Json Server::Definition(const Json& params)
{
    Json locations = Json::array();
    for (const TextPlace& found : PlacesOf(*m_workspace, PathIn(params), WordIn(params)))
    {
        if (found.isDeclared)
            locations.push_back(LocationOf(found.path, found.place));
    }
    return locations;
}

Json Server::References(const Json& params)
{
    const bool hasDeclaration = params.at("context").at("includeDeclaration").get<bool>();
    Json locations = Json::array();
    for (const TextPlace& found : PlacesOf(*m_workspace, PathIn(params), WordIn(params)))
    {
        if (hasDeclaration || !found.isDeclared)
            locations.push_back(LocationOf(found.path, found.place));
    }
    return locations;
}

Json Server::Highlights(const Json& params)
{
    Json highlights = Json::array();
    const NamedWord word = WordIn(params);
    if (word.meaning == Meaning::Nothing)
        return highlights;
    for (const NamedWord& found : WordsLike(DescriptionIn(params), word))
        highlights.push_back({{"range", JsonOf(RangeOf(found.place))}});
    return highlights;
}

Json Server::PrepareRename(const Json& params)
{
    const NamedWord word = WordIn(params);
    ExpectRenamable(word);
    return {{"range", JsonOf(RangeOf(word.place))}, {"placeholder", commandline::ToUtf8(word.text)}};
}

Json Server::Rename(const Json& params)
{
    const std::string name = commandline::ToAnsi(params.at("newName").get<std::string>());
    return WorkspaceEdit(RenamingOf(*m_workspace, PathIn(params), WordIn(params), name));
}

Json Server::Links(const Json& params)
{
    const Description& description = DescriptionIn(params);
    const std::filesystem::path folder = PathOf(PathIn(params)).parent_path();
    Json links = Json::array();
    for (const ValueStatement& statement : description.values)
    {
        if (lytMeaningOf<ClytAction>(statement.keyword.c_str()) != ClytAction::Dialog)
            continue;
        for (const NamedWord& word : WordsIn(description, statement.span.line))
        {
            const std::filesystem::path file = word.meaning == Meaning::Dialog
                                                   ? FileIn(folder, commandline::ToUtf8(word.text) + ".dlg")
                                                   : std::filesystem::path();
            if (!file.empty())
                links.push_back({{"range", JsonOf(RangeOf(word.place))}, {"target", UriFor(PlainPath(file.string()))}});
        }
    }
    return links;
}

Json Server::Tokens(const Json& params)
{
    return TokensOf(DescriptionIn(params));
}

// The first language's text after each key.
Json Server::Hints(const Json& params)
{
    const Description& description = DescriptionIn(params);
    const LanguageFiles& files = m_workspace->SurroundingsAt(PathIn(params)).texts;
    const TextRange range = RangeFrom(params.at("range"));
    Json hints = Json::array();
    for (const ShownText& shown : TextUsesOf(description))
    {
        const TextRange place = RangeOf(shown.place);
        const NamedWord key = {Meaning::TextKey, shown.key, {}, false, shown.section};
        const std::vector<LanguageText> texts = TextsOfKey(files, key);
        if (shown.role == TextRole::Button || place.begin < range.begin || range.end < place.begin || texts.empty())
            continue;
        TextPosition after = place.end;
        after.character += description.IsQuoted(shown.place) ? 1 : 0;
        hints.push_back({{"position", JsonOf(TextRange{after, after})["start"]},
                         {"label", commandline::ToUtf8(texts.front().text)},
                         {"paddingLeft", true}});
    }
    return hints;
}

Json Server::Lenses(const Json& params)
{
    const Description& description = DescriptionIn(params);
    Json lenses = Json::array();
    if (!description.hasDialogHeader)
        return lenses;
    const std::string path = PathIn(params);
    const int line = description.dialogHeader.line;
    lenses.push_back(LensFor(line, {{"title", "run"}, {"command", runCommand}, {"arguments", {UriFor(path)}}}, Json()));
    if (!CasesOf(*m_workspace, path).empty())
        lenses.push_back(LensFor(line, Json(), UriFor(path)));
    return lenses;
}

// The cases are carried out when the editor shows the line.
Json Server::ResolvedLens(const Json& params)
{
    Json lens = params;
    const std::string uri = params.at("data").get<std::string>();
    lens["command"] = {{"title", TitleOfCases(CasesOf(*m_workspace, PlainPath(PathOfUri(uri))))},
                       {"command", testCommand},
                       {"arguments", {uri}}};
    return lens;
}

Json Server::Draw(const Json& params)
{
    Setup setup{PathIn(params)};
    setup.input = commandline::ToAnsi(params.value("input", ""));
    setup.language = commandline::ToAnsi(params.value("language", ""));
    setup.defines = m_defines;
    std::string acts;
    for (const Json& act : params.value("acts", Json::array()))
        acts += act.get<std::string>() + "\n";
    const DrawnTrial drawn = DrawAfter(setup, acts, params.value("dpi", 0));
    if (drawn.outcome.ending == Ending::NotOpened)
        throw std::runtime_error(
            "the library refuses the dialog: " +
            commandline::ToUtf8(drawn.outcome.failureNumber + ": " + drawn.outcome.failureMessage));
    return JsonOf(drawn);
}

// Reports how far it is, if the client asks for that.
Json Server::ExecuteCommand(const Json& params)
{
    if (params.at("command") != checkFolderCommand)
        throw std::runtime_error(std::string("there is no such command; write ") + checkFolderCommand);
    const std::string folder = PlainPath(PathOfUri(params.at("arguments").at(0).get<std::string>()));
    const std::vector<std::filesystem::path> files = FilesBelow(PathOf(folder), {".dlg"});
    const auto report = [&](Json value)
    {
        if (params.contains("workDoneToken"))
            Notify("$/progress", {{"token", params["workDoneToken"]}, {"value", std::move(value)}});
    };
    report({{"kind", "begin"}, {"title", "check"}, {"percentage", 0}});
    for (size_t index = 0; index < files.size(); ++index)
    {
        const std::string path = PlainPath(files[index].string());
        m_diagnostics.Include(path);
        JudgeText(path);
        report({{"kind", "report"}, {"message", path}, {"percentage", (index + 1) * 100 / files.size()}});
    }
    report({{"kind", "end"}});
    return {};
}

} // namespace lytdlg
