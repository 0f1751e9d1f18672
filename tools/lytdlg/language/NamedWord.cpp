#include "lytdlg/language/NamedWord.h"

#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/judge/StatementText.h"
#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/Words.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

constexpr char theMark = '\x02';
const CString markText(theMark);

bool IsMark(const CString& text)
{
    return text == markText;
}

// What the operands of an action are, in their order.
struct OperandForm
{
    ClytAction action;
    Meaning meanings[4];
    bool ClytType::*fits[2];
};

constexpr OperandForm operandForms[] = {
    {ClytAction::Visible, {Meaning::Control, Meaning::TextKey}, {}},
    {ClytAction::Active, {Meaning::Control, Meaning::TextKey}, {}},
    {ClytAction::Add, {Meaning::Control, Meaning::Control}, {&ClytType::isOpenList, &ClytType::takesItems}},
    {ClytAction::Delete, {Meaning::Control}, {&ClytType::hasItems}},
    {ClytAction::Up, {Meaning::Control}, {&ClytType::hasItems}},
    {ClytAction::Down, {Meaning::Control}, {&ClytType::hasItems}},
    {ClytAction::Fill, {Meaning::Control}, {&ClytType::isFilled}},
    {ClytAction::Dialog, {Meaning::Dialog, Meaning::Part, Meaning::Group}, {}},
    {ClytAction::Action, {Meaning::Library, Meaning::Function, Meaning::Group, Meaning::Part}, {}},
};

// Where a reader gives up at the mark, or right after it, and keeps nothing of it.
constexpr struct
{
    Section section;
    ClytDue due;
    Meaning meaning;
} unreadPlaces[] = {
    {Section::Layout, ClytDue::Operands, Meaning::TypeWord},
    {Section::Values, ClytDue::Value, Meaning::Control},
    {Section::Dependencies, ClytDue::StateSign, Meaning::Control},
    {Section::Dependencies, ClytDue::ConditionsSign, Meaning::State},
    {Section::Evaluation, ClytDue::EvaluationSign, Meaning::Control},
    {Section::Evaluation, ClytDue::MessageAfterValue, Meaning::Value},
    {Section::Input, ClytDue::StatementSign, Meaning::Statement},
    {Section::Output, ClytDue::FormatSign, Meaning::Control},
    {Section::Output, ClytDue::ListSeparator, Meaning::Item},
};

bool ClytType::*FitFor(ClytState state)
{
    return state == ClytState::Fill        ? &ClytType::isFilled
           : state == ClytState::DefButton ? &ClytType::isButton
                                           : nullptr;
}

// Reads one line as its section's statement.
class MarkedLine : public ClytDialogFile
{
public:
    MarkedLine(const Description& description, const SourceLine& line, std::string marked, std::string text)
        : ClytDialogFile("", m_sink),
          m_description(description),
          m_line(line),
          m_lines{std::move(marked)},
          m_text(std::move(text)),
          m_markColumn(static_cast<int>(m_lines.front().find(theMark)))
    {
    }

    NamedWord Find()
    {
        Read();
        if (m_word.meaning == Meaning::Nothing && m_sink.hasFailed)
            TakeUnread();
        if (m_word.meaning == Meaning::TextKey)
            m_word.scope = m_description.TextSection();
        if (m_word.meaning == Meaning::Message)
            m_word.scope = messageSection;
        return m_word;
    }

protected:
    bool TakeLine(char* buffer, UINT count, ClytSpan& place) override
    {
        if (m_next >= m_lines.size())
            return false;
        const std::string& line = m_lines[m_next++];
        const size_t length = std::min<size_t>(line.size(), count - 1);
        char* const end = std::copy_n(line.begin(), length, buffer);
        end[0] = '\n';
        end[1] = '\0';
        place = {m_line.number, 0, static_cast<int>(length)};
        return true;
    }

private:
    // Keeps the first failure.
    struct Sink : ErrorSink
    {
        void Tell(std::unique_ptr<ClytException> /*failure*/, const ClytSpan& at, ClytDue what) override
        {
            TellShortLine(at, what);
        }
        void TellShortLine(const ClytSpan& at, ClytDue what) override
        {
            if (!hasFailed)
            {
                place = at;
                due = what;
            }
            hasFailed = true;
        }

        bool hasFailed = false;
        ClytSpan place;
        ClytDue due = ClytDue::Token;
    };

    void Read()
    {
        switch (m_line.section)
        {
        case Section::Layout: ReadLayout(); break;
        case Section::Values: ReadValue(); break;
        case Section::Dependencies: ReadRule(); break;
        case Section::Evaluation: ReadCheck(); break;
        case Section::Input: ReadInput(); break;
        case Section::Output: ReadOutput(); break;
        default: break;
        }
    }

    void Take(Meaning meaning, bool ClytType::*fits = nullptr) { m_word = {meaning, "", {}, false, "", fits}; }
    void TakeIf(const CString& text, Meaning meaning, bool ClytType::*fits = nullptr)
    {
        if (IsMark(text))
            Take(meaning, fits);
    }
    void TakeScoped(Meaning meaning, const CString& scope)
    {
        Take(meaning);
        m_word.scope = scope.GetString();
    }
    void TakeDeclared(const CString& text, Meaning meaning)
    {
        TakeIf(text, meaning);
        m_word.isDeclared = m_word.isDeclared || IsMark(text);
    }
    void TakeFrom(const ClytCtrlValList& condition)
    {
        TakeIf(condition.GetName(), Meaning::Control, &ClytType::hasValue);
        for (const CString& value : condition.GetValues())
        {
            if (IsMark(value))
                TakeScoped(Meaning::Value, condition.GetName());
        }
    }
    void TakeFrom(const ClytConditions& conditions)
    {
        for (const ClytCtrlValList* condition : Records(conditions))
            TakeFrom(*condition);
    }
    // In place of the mark what is there, to know what the statement is.
    std::string Meant(const CString& text) const { return IsMark(text) ? m_text : text.GetString(); }

    void ReadLayout()
    {
        if (m_lines.front().find("Begin") < m_lines.front().find_first_of(",."))
        {
            int width = 0;
            int height = 0;
            CString title;
            CString last;
            static_cast<void>(ReadDialogHeader(width, height, title, last));
            TakeIf(title, Meaning::TextKey);
            return;
        }
        ClytControlStatement statement;
        static_cast<void>(ReadControlStatement(statement));
        TakeIf(statement.type, Meaning::TypeWord);
        TakeDeclared(statement.name, Meaning::Control);
        if (lytTypeOf(statement.type.GetString()).hasCaption)
            TakeIf(statement.text, Meaning::TextKey);
    }

    void ReadValue()
    {
        CString name;
        CString keyword;
        CStringList values;
        static_cast<void>(ReadValueStatement(name, keyword, values));
        TakeIf(name, Meaning::Control);
        if (values.IsEmpty())
            return;
        ValueStatement statement = {Meant(name), Meant(keyword), {}, {}};
        int index = IsMark(keyword) ? -1 : static_cast<int>(values.GetCount());
        for (const CString& value : values)
        {
            if (IsMark(value))
                index = static_cast<int>(statement.values.size());
            statement.values.push_back(Meant(value));
        }
        if (index < static_cast<int>(values.GetCount()))
            TakeOperand(statement, RoleOf(m_description, statement), index);
    }

    // The index of a value, or -1 for the keyword.
    void TakeOperand(const ValueStatement& statement, Role role, int index)
    {
        const bool isKeyword = index < 0 || (statement.keyword.empty() && statement.values.size() == 1);
        switch (role)
        {
        case Role::Nothing:
        case Role::Option: Take(isKeyword ? Meaning::Option : Meaning::Nothing); break;
        case Role::Item:
            index < 0 ? Take(Meaning::TextKey) : TakeScoped(Meaning::Value, statement.name.c_str());
            m_word.isDeclared = index >= 0;
            break;
        case Role::DoubleClick: Take(isKeyword ? Meaning::Keyword : Meaning::Control, &ClytType::isButton); break;
        case Role::Source: TakeSource(statement, index); break;
        case Role::Action: TakeAction(statement, isKeyword ? -1 : index); break;
        case Role::OptionValue: TakeOptionValue(statement); break;
        default:
            index < 0 ? Take(Meaning::Keyword) : TakeScoped(Meaning::Value, statement.name.c_str());
            m_word.isDeclared = index >= 0 && role != Role::Default;
            break;
        }
    }

    void TakeOptionValue(const ValueStatement& statement)
    {
        const ClytControlStatement* option = m_description.FindControl(statement.name);
        const ClytControlStatement* group = option != nullptr ? GroupOf(m_description, *option) : nullptr;
        TakeScoped(Meaning::Value, group != nullptr ? group->name : CString(statement.name.c_str()));
        m_word.isDeclared = true;
    }

    void TakeSource(const ValueStatement& statement, int index)
    {
        using enum Meaning;
        static constexpr Meaning meanings[] = {Library, Function, Function, Group, TextKey};
        const bool isField = KindOfControl(m_description, statement.name) == Kind::Field;
        if (index < 0)
            Take(Keyword);
        else if (index < static_cast<int>(std::size(meanings)) && !(isField && index == 2))
            Take(meanings[index]);
        if (m_word.meaning == Function)
            m_word.scope = statement.values.front();
    }

    void TakeAction(const ValueStatement& statement, int index)
    {
        const auto action = lytMeaningOf<ClytAction>(statement.keyword.c_str());
        const auto* const form = std::ranges::find(operandForms, action, &OperandForm::action);
        if (index < 0)
            Take(Meaning::Keyword);
        else if (form != std::end(operandForms) && index < static_cast<int>(std::size(form->meanings)))
            Take(form->meanings[index], index < 2 ? form->fits[index] : nullptr);
        if (m_word.meaning == Meaning::Function)
            m_word.scope = statement.values.front();
    }

    void ReadRule()
    {
        ClytControlDep rule;
        static_cast<void>(ReadDependencyStatement(rule));
        TakeIf(rule.controlName, Meaning::Control, FitFor(rule.stateWord.GetMeaning()));
        TakeIf(rule.stateWord.GetText(), Meaning::State);
        TakeFrom(rule.conditions);
    }

    void ReadCheck()
    {
        ClytCtrlValList own;
        ClytCtrlValList other;
        CString key;
        static_cast<void>(ReadEvaluationStatement(own, other, key));
        TakeFrom(own);
        TakeFrom(other);
        TakeIf(key, Meaning::Message);
        if (m_word.meaning == Meaning::Nothing)
            m_word.scope = own.GetName().GetString();
    }

    void ReadInput()
    {
        // The reader of a part begins at its header, and reads the line after it otherwise than others.
        Tokenize(lytWordOf(Section::Input), DelimitersOf(Section::Input));
        const bool isFirst = m_line.number > 1 && m_description.text.Line(m_line.number - 1).isHeader;
        if (!isFirst)
            m_lines.insert(m_lines.begin(), ";");
        m_lines.emplace_back(lytWordOf(Section::Output));
        CString part;
        static_cast<void>(ReadInputHeader(part));
        ClytInputPart read;
        ReadInputPart(read);
        for (const ClytDialogInput* statement : Records(read.GetStatements()))
            TakeFrom(*statement);
        if (m_word.meaning == Meaning::Statement)
            m_word.scope = PartOf(m_line.number);
    }

    std::string PartOf(int line) const
    {
        std::string name;
        for (const lytdlg::InputPart& part : m_description.inputs)
        {
            if (part.header.line <= line)
                name = part.name;
        }
        return name;
    }

    void TakeFrom(const ClytDialogInput& statement)
    {
        TakeDeclared(statement.name, Meaning::Statement);
        TakeFrom(statement.conditions);
        if (!statement.conditions.IsEmpty())
            TakeIf(statement.trueTarget.name, Meaning::Statement);
        TakeIf(statement.falseTarget.name, Meaning::Statement);
        const ClytScan& scan = statement.scanRule.scan;
        TakeIf(scan.GetTarget().name, Meaning::Statement);
        for (const ClytSeparator* separator : Records(scan.GetSeparators()))
            TakeIf(separator->target.name, Meaning::Statement);
        for (const ClytConditionFill* rule : Records(statement.scanRule.rules))
        {
            for (const ClytControlFill* fill : Records(rule->fills))
                TakeFrom(*fill);
        }
    }

    void TakeFrom(const ClytControlFill& fill)
    {
        TakeIf(fill.controlName, Meaning::Control, &ClytType::hasValue);
        TakeIf(fill.action.GetText(), Meaning::Fill);
        if (IsMark(fill.value))
            TakeScoped(Meaning::Value, fill.controlName);
    }

    void ReadOutput()
    {
        CString group;
        ClytDialogOutput rule;
        static_cast<void>(ReadOutputStatement(group, rule));
        TakeFrom(rule.conditions);
        for (const ClytOutputItem& item : rule.items)
            TakeIf(item.text, Meaning::Item, &ClytType::hasValue);
        // Of a condition that is not closed, the name is before its bracket.
        const size_t bracket = m_lines.front().rfind('(', static_cast<size_t>(m_markColumn));
        if (m_word.meaning == Meaning::Nothing && rule.format.IsEmpty() && bracket != std::string::npos)
            m_condition = Trimmed(m_lines.front().substr(0, bracket));
    }

    void TakeUnread()
    {
        const bool isAlone = m_lines.front().find_first_not_of(" \t") == static_cast<size_t>(m_markColumn);
        for (const auto& unread : unreadPlaces)
        {
            if (unread.section == m_line.section && unread.due == m_sink.due &&
                (m_sink.place.column == m_markColumn || isAlone))
            {
                const std::string scope = m_word.scope;
                const Meaning meaning = m_condition.empty() ? unread.meaning : Meaning::Value;
                Take(meaning, m_line.section == Section::Output ? &ClytType::hasValue : nullptr);
                m_word.scope = !m_condition.empty()                   ? m_condition
                               : unread.meaning == Meaning::Statement ? PartOf(m_line.number)
                                                                      : scope;
                m_word.isDeclared = unread.meaning == Meaning::Statement;
            }
        }
    }

    const Description& m_description;
    const SourceLine& m_line;
    std::vector<std::string> m_lines;
    size_t m_next = 0;
    const std::string m_text; // that the mark is in place of
    const int m_markColumn;
    std::string m_condition; // the control of a condition that is open
    Sink m_sink;
    NamedWord m_word;
};

NamedWord HeaderWord(const SourceLine& line, size_t index)
{
    NamedWord word;
    const bool hasName = index == 1;
    word.meaning = index == 0                                   ? Meaning::SectionWord
                   : hasName && line.section == Section::Layout ? Meaning::TextSection
                   : hasName && line.section == Section::Input  ? Meaning::Part
                   : hasName && line.section == Section::Output ? Meaning::Group
                                                                : Meaning::Nothing;
    word.isDeclared = word.meaning == Meaning::Part || word.meaning == Meaning::Group;
    return word;
}

// The word that is in the line from a column on, or that would be there.
NamedWord ReadWord(const Description& description, const SourceLine& line, ClytSpan place, size_t index)
{
    // The name of a control begins after its point; of an item and its key, the key is a name.
    const auto column = static_cast<size_t>(place.column);
    std::string text = line.text.substr(column, static_cast<size_t>(place.length));
    if (line.section == Section::Layout && text.starts_with('.'))
    {
        text.erase(0, 1);
        ++place.column;
        --place.length;
    }
    std::string marked = line.text;
    marked.replace(static_cast<size_t>(place.column), static_cast<size_t>(place.length), 1, theMark);
    NamedWord word = line.isHeader ? HeaderWord(line, index) : MarkedLine(description, line, marked, text).Find();
    if (word.meaning == Meaning::TextKey && line.section == Section::Values)
        place.length = static_cast<int>(std::min(text.find('/'), text.size()));
    word.place = place;
    word.text = text.substr(0, static_cast<size_t>(place.length));
    return word;
}

std::vector<LineToken> TokensIn(const SourceLine& line)
{
    return line.number > 0 ? TokensOf(line.text, line.section) : std::vector<LineToken>();
}

ClytSpan PlaceIn(const SourceLine& line, const LineToken& token)
{
    return {line.number, token.column, static_cast<int>(token.text.size())};
}

} // namespace

NamedWord WordAt(const Description& description, int line, int column)
{
    const SourceLine& whole = description.text.Line(line);
    const size_t length = whole.text.size();
    if (line < 1 || column < 0 || static_cast<size_t>(column) > length || length >= ClytDialogFile::lineSize ||
        static_cast<size_t>(column) > EndOfStatement(whole))
        return {};
    const std::vector<LineToken> tokens = TokensIn(whole);
    for (size_t index = 0; index < tokens.size(); ++index)
    {
        const ClytSpan place = PlaceIn(whole, tokens[index]);
        if (place.column <= column && column <= place.column + place.length)
            return ReadWord(description, whole, place, index);
    }
    return ReadWord(description, whole, {line, column, 0}, tokens.size());
}

std::vector<NamedWord> WordsIn(const Description& description, int line)
{
    const SourceLine& whole = description.text.Line(line);
    std::vector<NamedWord> words;
    if (whole.text.size() >= ClytDialogFile::lineSize)
        return words;
    const std::vector<LineToken> tokens = TokensIn(whole);
    for (size_t index = 0; index < tokens.size(); ++index)
    {
        if (tokens[index].text.empty())
            continue;
        NamedWord word = ReadWord(description, whole, PlaceIn(whole, tokens[index]), index);
        if (word.meaning == Meaning::Item && description.FindControl(word.text) != nullptr)
            word.meaning = Meaning::Control;
        if (word.meaning != Meaning::Nothing && word.meaning != Meaning::Item)
            words.push_back(std::move(word));
    }
    return words;
}

std::vector<NamedWord> AllWordsIn(const Description& description)
{
    std::vector<NamedWord> words;
    for (const SourceLine& line : description.text.Lines())
        std::ranges::move(WordsIn(description, line.number), std::back_inserter(words));
    return words;
}

bool IsSame(const NamedWord& left, const NamedWord& right)
{
    if (left.meaning != right.meaning)
        return false;
    switch (left.meaning)
    {
    case Meaning::TextKey:
    case Meaning::Message:
    case Meaning::TextSection:
    case Meaning::Dialog:
    case Meaning::Library: return IsSameName(left.text, right.text) && IsSameName(left.scope, right.scope);
    default: return left.text == right.text && left.scope == right.scope;
    }
}

std::vector<NamedWord> WordsLike(const Description& description, const NamedWord& word)
{
    std::vector<NamedWord> words;
    const std::string wanted = FoldedName(word.text);
    for (const SourceLine& line : description.text.Lines())
    {
        if (FoldedName(line.text).find(wanted) == std::string::npos)
            continue;
        for (NamedWord& found : WordsIn(description, line.number))
        {
            if (IsSame(found, word))
                words.push_back(std::move(found));
        }
    }
    return words;
}

} // namespace lytdlg
