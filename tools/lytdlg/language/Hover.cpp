#include "lytdlg/language/Hover.h"

#include "commandline/Text.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/judge/Names.h"
#include "lytdlg/language/LanguageHelp.h"
#include "lytdlg/language/Places.h"
#include "lytdlg/text/Words.h"
#include "lytdlg/try/Act.h"
#include "lytdlg/try/DialogFacts.h"
#include "lytdlg/try/TrialRun.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

using commandline::Quoted;
using commandline::ToAnsi;
using commandline::ToUtf8;

// What is heard of a dialog that opens with the input of its first case, or without any. The look adds lines.
using Look = std::function<void(TrialDialog& dialog, TrialRun& run, std::vector<std::string>& lines)>;
std::string Tried(const Workspace& workspace, const std::string& path, const Look& look)
{
    const std::vector<GoldenCase> cases = CasesOf(workspace, path);
    const Setup setup = cases.empty() ? Setup{path} : cases.front().setup;
    std::vector<std::string> lines;
    try
    {
        TrialRun run(setup, true);
        run.Run({}, [&](TrialDialog& dialog) { look(dialog, run, lines); });
    }
    catch (const std::runtime_error&)
    {
        lines.clear();
    }
    std::string text;
    for (const std::string& line : lines)
        text += "\n- " + ToAnsi(line);
    if (text.empty())
        return "";
    return (setup.input.empty() ? "\nWhen it opens:\n" : "\nWith the input " + Quoted(setup.input) + ":\n") + text +
           "\n";
}

std::string TriedControl(const Workspace& workspace, const NamedWord& word)
{
    return Tried(workspace, word.home,
                 [&](TrialDialog& dialog, TrialRun& run, std::vector<std::string>& lines)
                 {
                     for (const Sentence& sentence : Explain(dialog, ControlNamed(dialog, word.text), run.recorder))
                         lines.push_back(sentence.text);
                     CString result;
                     if (dialog.ComposeNamedOutput(lytParentName, result) != 0)
                         lines.push_back("The result is " + Quoted(ToUtf8(result.GetString())) + ", by the rule" +
                                         InLine(run.recorder.LastOutput().line) + ".");
                 });
}

// The trace of each step of the scan that a statement made.
std::string TriedStatement(const Workspace& workspace, const NamedWord& word)
{
    return Tried(workspace, word.home,
                 [&](const TrialDialog& /*dialog*/, const TrialRun& run, std::vector<std::string>& lines)
                 {
                     bool isOwn = false;
                     for (const Event& event : run.events)
                     {
                         const bool isPart = event.text.starts_with("    ");
                         isOwn = isPart ? isOwn : event.text.find(" " + ToUtf8(word.text) + ": ") != std::string::npos;
                         if (isOwn && event.kind == EventKind::Trace)
                             lines.push_back(Trimmed(event.text));
                     }
                     if (lines.empty())
                         lines.emplace_back("The scan does not come here.");
                 });
}

std::string LinesOfRules(const std::vector<int>& lines)
{
    std::string text = lines.size() == 1 ? " the rule in line " : " the rules in the lines ";
    for (const int line : lines)
        text += (line == lines.front() ? "" : line == lines.back() ? " and " : ", ") + std::to_string(line);
    return text + ".\n";
}

std::string OutputOf(const Description& description, const std::string& name)
{
    std::vector<int> composing;
    std::vector<int> decided;
    for (const OutputGroup& group : description.outputs)
    {
        for (const ClytDialogOutput* rule : Records(group.rules))
        {
            if (std::ranges::any_of(rule->items, [&](const ClytOutputItem& item) { return item.text == name.c_str(); }))
                composing.push_back(rule->span.line);
            const std::vector<const ClytCtrlValList*> conditions = Records(rule->conditions);
            if (std::ranges::any_of(conditions, [&](const ClytCtrlValList* condition)
                                    { return condition->GetName() == name.c_str(); }))
                decided.push_back(rule->span.line);
        }
    }
    return (composing.empty() ? "" : "\nIts value goes out by" + LinesOfRules(composing)) +
           (decided.empty() ? "" : "\nIt decides" + LinesOfRules(decided));
}

std::string TextsListed(const LanguageFiles& files, const std::string& section, const std::string& key)
{
    std::string list;
    for (const LanguageText& each : TextsOfKey(files, section, key))
        list += "- " + each.language + ": " + each.text + "\n";
    return list;
}

std::string AboutControl(const Workspace& workspace, const NamedWord& word)
{
    const Description& description = workspace.DescriptionAt(word.home);
    const ClytControlStatement* control = description.FindControl(word.text);
    if (control == nullptr)
        return "no control is called " + InQuotes(word.text);
    const ClytType& type = lytTypeOf(KindOf(*control));
    std::string text = "**" + word.text + "**: " + type.name;
    if (type.hasSize)
        text += ", at " + std::to_string(control->x) + ", " + std::to_string(control->y) + ", " +
                std::to_string(control->width) + " wide and " + std::to_string(control->height) + " high";
    text += "\n";
    for (const ShownText& shown : TextUsesOf(description))
    {
        if (shown.control == control)
            text += "\n" + TextsListed(workspace.SurroundingsAt(word.home).texts, shown.section, shown.key);
    }
    return text + OutputOf(description, word.text) + TriedControl(workspace, word);
}

// The lines that say something of the word.
std::string SayingsOf(const Description& description, const NamedWord& word)
{
    constexpr size_t most = 20;
    std::string lines;
    int last = 0;
    size_t count = 0;
    for (const NamedWord& found : WordsLike(description, word))
    {
        if (found.place.line == last || ++count > most)
            continue;
        last = found.place.line;
        lines += std::to_string(last) + ": " + Trimmed(description.text.Line(last).text) + "\n";
    }
    return lines.empty() ? "" : "\n```lytdlg\n" + lines + (count > most ? "...\n" : "") + "```\n";
}

const char* KindOfName(Meaning meaning)
{
    switch (meaning)
    {
    case Meaning::Statement: return "a statement of the input";
    case Meaning::Part: return "a part of the input";
    case Meaning::Group: return "a group of the output";
    case Meaning::Dialog: return "a dialog";
    case Meaning::Library: return "a library";
    case Meaning::Function: return "a function of a library";
    case Meaning::Value: return "a value of ";
    case Meaning::TextSection: return "a section of the language files";
    default: return "";
    }
}

} // namespace

std::string ExplanationOf(const Workspace& workspace, const NamedWord& word)
{
    if (word.meaning == Meaning::TextKey || word.meaning == Meaning::Message)
    {
        const std::string texts = TextsListed(workspace.SurroundingsAt(word.home).texts, word.scope, word.text);
        return texts.empty() ? "no language file has the text " + InQuotes(word.text) : texts;
    }
    const std::string kind = KindOfName(word.meaning);
    std::string text;
    if (word.meaning == Meaning::Control)
        text = AboutControl(workspace, word);
    else if (!kind.empty())
        text = "**" + word.text + "**: " + kind + (word.meaning == Meaning::Value ? word.scope : "") + "\n";
    if (word.meaning == Meaning::Statement)
        text += TriedStatement(workspace, word);
    const bool hasLines = !text.empty() && KindOfText(word.home) == TextKind::Description;
    return hasLines ? text + SayingsOf(workspace.DescriptionAt(word.home), word) : text;
}

HoverText HoverAt(const Workspace& workspace, const Diagnostics& diagnostics, const std::string& path,
                  const TextPosition& position)
{
    HoverText hover = {NameAt(workspace, path, position), ""};
    if (KindOfText(path) == TextKind::Description)
        hover.text = HelpOn(hover.word, workspace.DescriptionAt(path).text.Line(hover.word.place.line).section);
    if (hover.text.empty())
        hover.text = ToUtf8(ExplanationOf(workspace, hover.word));
    for (const Finding& finding : diagnostics.Of(path))
    {
        const TextRange range = RangeOf(finding.place);
        if (range.begin <= position && position <= range.end)
            hover.text +=
                (hover.text.empty() ? "" : "\n\n---\n\n") + ("```text\n" + Explanation(*finding.rule)) + "```\n";
    }
    return hover;
}

} // namespace lytdlg
