#include "lytdlg/judge/TextUses.h"

#include "lytdlg/judge/Names.h"
#include "lytdlg/text/LanguageFiles.h"

#include <cctype>

namespace lytdlg
{

namespace
{

class Collector
{
public:
    explicit Collector(const Description& description)
        : m_description(description), m_section(description.TextSection())
    {
    }

    std::vector<ShownText> Collect()
    {
        Add(TextRole::Title, m_description.title, m_description.dialogHeader.line, 0, nullptr);
        for (const ClytControlStatement& control : m_description.controls)
            AddControl(control);
        for (const ValueStatement& statement : m_description.values)
            AddStatement(statement);
        for (const EvaluationStatement& statement : m_description.evaluations)
        {
            if (!statement.messageKey.empty())
                m_uses.push_back(
                    {TextRole::Message, messageSection, statement.messageKey, MessagePlace(statement), nullptr});
        }
        return std::move(m_uses);
    }

private:
    void Add(TextRole role, const std::string& key, int line, int column, const ClytControlStatement* control)
    {
        if (!key.empty() && !m_section.empty())
            m_uses.push_back({role, m_section, key, m_description.PlaceOf(line, key, column), control});
    }

    void AddControl(const ClytControlStatement& control)
    {
        const Kind kind = KindOf(control);
        if (lytTypeOf(kind).hasCaption)
            Add(TextRole::Caption, control.text.GetString(), control.span.line,
                control.span.column + control.type.GetLength(), &control);
        else if (lytTypeOf(kind).isDefault)
            m_uses.push_back({TextRole::Button, lytButtonSection, lytTypeOf(kind).captionKey,
                              m_description.PlaceOf(control.span.line, control.type.GetString()), &control});
    }

    void AddStatement(const ValueStatement& statement)
    {
        const ClytControlStatement* control = m_description.FindControl(statement.name);
        if (control == nullptr || lytMeaningOf<ClytOption>(statement.values.front().c_str()) != ClytOption::Other)
            return;
        const Kind kind = KindOf(*control);
        const int after = statement.span.column + static_cast<int>(statement.name.size());
        if (kind == Kind::Button)
            AddAlternate(statement, *control, after);
        else if (lytTypeOf(kind).hasItems)
            AddItem(statement, *control, after);
    }

    void AddAlternate(const ValueStatement& statement, const ClytControlStatement& control, int after)
    {
        const auto meaning = lytMeaningOf<ClytAction>(statement.keyword.c_str());
        if ((meaning == ClytAction::Visible || meaning == ClytAction::Active) && statement.values.size() > 1)
            Add(TextRole::Alternate, statement.values[1], statement.span.line,
                after + static_cast<int>(statement.keyword.size() + statement.values[0].size()), &control);
    }

    void AddItem(const ValueStatement& statement, const ClytControlStatement& control, int after)
    {
        constexpr size_t firstItem = 4; // its place in a FILLEDBY statement of a combo box
        const auto meaning = lytMeaningOf<ClytKeyword>(statement.keyword.c_str());
        const bool isOpen = lytTypeOf(KindOf(control)).isOpenList;
        if (meaning == ClytKeyword::FilledBy)
        {
            if (!isOpen && statement.values.size() > firstItem)
                Add(TextRole::Item, statement.values[firstItem].substr(0, statement.values[firstItem].find('/')),
                    statement.span.line, after, &control);
        }
        else if (meaning != ClytKeyword::DoubleClick || !isOpen)
            Add(TextRole::Item, statement.keyword, statement.span.line, after, &control);
    }

    ClytSpan MessagePlace(const EvaluationStatement& statement) const
    {
        const std::string& line = m_description.text.Line(statement.span.line).text;
        const size_t colon = line.rfind(':');
        return m_description.PlaceOf(statement.span.line, statement.messageKey,
                                     colon != std::string::npos ? static_cast<int>(colon) : 0);
    }

    const Description& m_description;
    const std::string m_section;
    std::vector<ShownText> m_uses;
};

} // namespace

std::vector<ShownText> TextUsesOf(const Description& description)
{
    return Collector(description).Collect();
}

char MnemonicOf(const std::string& text)
{
    for (size_t place = text.find('&'); place != std::string::npos && place + 1 < text.size();
         place = text.find('&', place + 2))
    {
        if (text[place + 1] != '&')
            return static_cast<char>(std::tolower(static_cast<unsigned char>(text[place + 1])));
    }
    return '\0';
}

} // namespace lytdlg
