#include "lytdlg/language/MarkedLine.h"

#include "lytdlg/judge/Lists.h"
#include "lytdlg/language/ValueOperands.h"
#include "lytdlg/text/LanguageFiles.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

const CString markText(theMark);

bool IsMark(const CString& text)
{
    return text == markText;
}

// What may follow a word that ends its line too early, so that the reader takes the statement. The shortest come first.
constexpr struct
{
    Section section;
    const char* text;
} endings[] = {
    {Section::Layout, " 1, 2, 3, 4, \"x\", .x"},
    {Section::Values, "=x"},
    {Section::Dependencies, ")"},
    {Section::Dependencies, "=x(x)"},
    {Section::Dependencies, "/x=x(x)"},
    {Section::Evaluation, ":x"},
    {Section::Evaluation, "=x:x"},
    {Section::Input, ":(1"},
    {Section::Output, ")"},
    {Section::Output, ")=(\"x\",x)"},
    {Section::Output, "(x)=(\"x\",x)"},
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
          m_text(std::move(text))
    {
    }

    // Nothing when the reader keeps nothing of the word.
    NamedWord Find()
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
        if (m_word.meaning == Meaning::TextKey)
            m_word.scope = m_description.TextSection();
        if (m_word.meaning == Meaning::Message)
            m_word.scope = messageSection;
        return m_word;
    }
    bool HasFailed() const { return m_sink.hasFailed; }

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
    struct Sink : ErrorSink
    {
        void Tell(std::unique_ptr<ClytException> /*failure*/, const ClytSpan& /*at*/, ClytDue /*what*/) override
        {
            hasFailed = true;
        }
        void TellShortLine(const ClytSpan& /*at*/, ClytDue /*what*/) override { hasFailed = true; }

        bool hasFailed = false;
    };

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
            m_word = OperandOf(m_description, statement, index);
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
    }

    const Description& m_description;
    const SourceLine& m_line;
    std::vector<std::string> m_lines;
    size_t m_next = 0;
    const std::string m_text; // that the mark is in place of
    Sink m_sink;
    NamedWord m_word;
};

} // namespace

NamedWord WordUnderMark(const Description& description, const SourceLine& line, const std::string& marked,
                        const std::string& text)
{
    MarkedLine whole(description, line, marked, text);
    const NamedWord word = whole.Find();
    if (word.meaning != Meaning::Nothing || !whole.HasFailed())
        return word;
    for (const auto& ending : endings)
    {
        if (ending.section != line.section)
            continue;
        MarkedLine ended(description, line, marked.substr(0, marked.find(theMark) + 1) + ending.text, text);
        NamedWord found = ended.Find();
        if (found.meaning != Meaning::Nothing && !ended.HasFailed())
            return found;
    }
    return word;
}

} // namespace lytdlg
