#include "lytdlg/language/Outline.h"

#include "lytdlg/judge/Lists.h"
#include "lytdlg/judge/StatementText.h"

namespace lytdlg
{

namespace
{

Symbol HeaderSymbol(const Description& description, const SourceLine& line)
{
    Symbol symbol;
    symbol.place = description.PlaceOf(line.number);
    const std::string text = line.text.substr(0, EndOfStatement(line));
    const size_t end = text.find_first_of(" ,\t", static_cast<size_t>(symbol.place.column));
    symbol.name = text.substr(static_cast<size_t>(symbol.place.column), end - static_cast<size_t>(symbol.place.column));
    const size_t detail = text.find_first_not_of(" ,\t", std::min(end, text.size()));
    symbol.detail = detail != std::string::npos ? text.substr(detail, text.find_last_not_of(" \t") + 1 - detail) : "";
    return symbol;
}

class Outliner
{
public:
    explicit Outliner(const Description& description) : m_description(description) {}

    std::vector<Symbol> Make()
    {
        for (const SourceLine& line : m_description.text.Lines())
        {
            if (!line.isHeader)
                continue;
            End(line.number - 1);
            m_symbols.push_back(HeaderSymbol(m_description, line));
        }
        End(static_cast<int>(m_description.text.Lines().size()));
        for (const ClytControlStatement& control : m_description.controls)
        {
            const CString& name = control.name.IsEmpty() ? control.text : control.name;
            Add(SymbolKind::Control, name, control.type.GetString(), control.span.line);
        }
        for (const EvaluationStatement& check : m_description.evaluations)
            Add(SymbolKind::Check, check.own.GetName(), check.messageKey, check.span.line);
        for (const lytdlg::InputPart& input : m_description.inputs)
        {
            for (const ClytDialogInput* statement : Records(input.part->GetStatements()))
                Add(SymbolKind::Statement, statement->name, "", statement->span.line);
        }
        return std::move(m_symbols);
    }

private:
    void End(int line)
    {
        if (!m_symbols.empty())
            m_symbols.back().lastLine = line;
    }

    // To the section that the line is in.
    void Add(SymbolKind kind, const CString& name, const std::string& detail, int line)
    {
        Symbol symbol = {kind, name.GetString(), detail, m_description.PlaceOf(line), line, {}};
        if (symbol.name.empty())
            symbol.name = detail;
        for (Symbol& section : m_symbols)
        {
            if (!symbol.name.empty() && section.place.line <= line && line <= section.lastLine)
            {
                section.inner.push_back(std::move(symbol));
                return;
            }
        }
    }

    const Description& m_description;
    std::vector<Symbol> m_symbols;
};

} // namespace

std::vector<Symbol> OutlineOf(const Description& description)
{
    return Outliner(description).Make();
}

std::vector<Fold> FoldsOf(const Description& description)
{
    std::vector<Fold> folds;
    const auto add = [&](int first, int last)
    {
        while (last > first && description.PlaceOf(last).length == 0)
            --last;
        if (last > first)
            folds.push_back({first, last});
    };
    for (const Symbol& section : OutlineOf(description))
        add(section.place.line, section.lastLine);
    int opening = 0;
    for (const SwitchMark& mark : description.text.Marks())
    {
        if (!mark.isOpening && opening != 0)
            add(opening, mark.place.line);
        opening = mark.isOpening ? mark.place.line : 0;
    }
    return folds;
}

} // namespace lytdlg
