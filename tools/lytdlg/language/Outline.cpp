#include "lytdlg/language/Outline.h"

#include "commandline/Text.h"
#include "lytdlg/judge/StatementText.h"
#include "lytdlg/language/FileWords.h"
#include "lytdlg/text/Words.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

Symbol HeaderSymbol(const Description& description, const SourceLine& line)
{
    constexpr const char* between = " ,\t";
    const std::string text = Trimmed(line.text.substr(0, EndOfStatement(line)));
    const size_t end = std::min(text.find_first_of(between), text.size());
    const size_t detail = std::min(text.find_first_not_of(between, end), text.size());
    return {SymbolKind::Header, text.substr(0, end), text.substr(detail), description.PlaceOf(line.number), 0};
}

// Of a statement that gives a name, or checks one.
Symbol StatementSymbol(const Description& description, const SourceLine& line)
{
    const std::vector<NamedWord> words = WordsIn(description, line.number);
    const auto isKey = [](const NamedWord& word) { return word.meaning == Meaning::TextKey; };
    auto named = std::ranges::find_if(words, &NamedWord::isDeclared);
    if (named == words.end() && line.section == Section::Layout)
        named = std::ranges::find_if(words, isKey);
    const ClytSpan place = description.PlaceOf(line.number);
    if (line.section == Section::Evaluation && !words.empty())
        return {SymbolKind::Check, words.front().text, words.back().text, place, line.number};
    const bool isControl =
        line.section == Section::Layout && !words.empty() && lytTypeOf(words.front().text).kind != ClytKind::Unknown;
    if (named == words.end() || (!isControl && line.section != Section::Input))
        return {};
    return {isControl ? SymbolKind::Control : SymbolKind::Statement, named->text, isControl ? words.front().text : "",
            place, line.number};
}

std::vector<Symbol> SymbolsIn(const Workspace& workspace, const std::string& path)
{
    std::vector<Symbol> symbols;
    const TextKind kind = KindOfText(path);
    if (kind == TextKind::Description)
    {
        const Description& description = workspace.DescriptionAt(path);
        for (const SourceLine& line : description.text.Lines())
            symbols.push_back(line.isHeader ? HeaderSymbol(description, line) : StatementSymbol(description, line));
        std::erase_if(symbols, [](const Symbol& symbol) { return symbol.name.empty(); });
    }
    else if (kind == TextKind::Texts)
    {
        for (const NamedWord& word : WordsOf(workspace, path))
            symbols.push_back({word.meaning == Meaning::TextSection ? SymbolKind::Header : SymbolKind::Text, word.text,
                               "", word.place, word.place.line});
    }
    else if (kind == TextKind::Cases)
    {
        for (const GoldenCase& one : CasesIn(workspace, path).cases)
            symbols.push_back({SymbolKind::Header, commandline::ToAnsi(one.name), "", {one.line, 0, 0}, 0});
    }
    return symbols;
}

} // namespace

std::vector<Symbol> OutlineOf(const Workspace& workspace, const std::string& path)
{
    std::vector<Symbol> outline;
    for (Symbol& symbol : SymbolsIn(workspace, path))
    {
        const bool isHeader = symbol.kind == SymbolKind::Header;
        if (isHeader && !outline.empty())
            outline.back().lastLine = symbol.place.line - 1;
        (isHeader || outline.empty() ? outline : outline.back().inner).push_back(std::move(symbol));
    }
    if (!outline.empty())
        outline.back().lastLine = static_cast<int>(commandline::LinesOf(workspace.BytesOf(path)).size());
    return outline;
}

std::vector<Fold> FoldsOf(const Workspace& workspace, const std::string& path)
{
    const std::vector<std::string> lines = commandline::LinesOf(workspace.BytesOf(path));
    std::vector<Fold> folds;
    const auto add = [&](int first, int last)
    {
        while (last > first && Trimmed(lines.at(static_cast<size_t>(last - 1))).empty())
            --last;
        if (last > first)
            folds.push_back({first, last});
    };
    for (const Symbol& section : OutlineOf(workspace, path))
        add(section.place.line, section.lastLine);
    if (KindOfText(path) != TextKind::Description)
        return folds;
    int opening = 0;
    for (const SwitchMark& mark : workspace.DescriptionAt(path).text.Marks())
    {
        if (!mark.isOpening && opening != 0)
            add(opening, mark.place.line);
        opening = mark.isOpening ? mark.place.line : 0;
    }
    return folds;
}

} // namespace lytdlg
