#include "DescriptionRecords.h"

#include "dlgfile/ReadAll.h"

namespace
{

// One line of what was read; texts are given with their length, so that no two lines look alike by chance.
class Record
{
public:
    explicit Record(const char* kind) : m_text(kind) {}

    Record& Add(const CString& text)
    {
        m_text += " " + std::to_string(text.GetLength()) + ":" + text.GetString();
        return *this;
    }
    Record& Add(int number)
    {
        m_text += " " + std::to_string(number);
        return *this;
    }
    Record& Add(const CStringList& texts)
    {
        Add(static_cast<int>(texts.GetCount()));
        for (POSITION place = texts.GetHeadPosition(); place != nullptr;)
            Add(texts.GetNext(place));
        return *this;
    }
    Record& Add(const std::vector<ClytOutputItem>& items)
    {
        Add(static_cast<int>(items.size()));
        for (const ClytOutputItem& item : items)
            Add(item.text).Add(item.action);
        return *this;
    }
    Record& Add(const ClytCtrlValList& condition) { return Add(condition.GetName()).Add(condition.GetValues()); }
    template <class RECORD>
    Record& Add(const ClytOwnedList<RECORD>& records)
    {
        Add(static_cast<int>(records.GetCount()));
        for (POSITION place = records.GetHeadPosition(); place != nullptr;)
            Add(*records.GetNext(place));
        return *this;
    }
    Record& Add(const ClytTarget& target) { return Add(target.name); }
    Record& Add(const ClytSeparator& separator) { return Add(separator.text).Add(separator.target); }
    Record& Add(const ClytConditionFill& rule) { return Add(rule.values).Add(rule.fills); }
    Record& Add(const ClytControlFill& fill)
    {
        Add(fill.controlName).Add(fill.value).Add(fill.action.GetText());
        for (const CString& operand : fill.operands)
            Add(operand);
        return *this;
    }
    Record& Add(const ClytDialogInput& statement)
    {
        const ClytScan& scan = statement.scanRule.scan;
        return Add(statement.name)
            .Add(scan.GetLength())
            .Add(scan.GetTarget())
            .Add(scan.GetSeparators())
            .Add(statement.scanRule.rules)
            .Add(statement.conditions)
            .Add(statement.trueTarget)
            .Add(statement.falseTarget);
    }

    std::string Line() const { return m_text + "\n"; }

private:
    std::string m_text;
};

class RecordingSink final : public ErrorSink
{
public:
    explicit RecordingSink(std::string& heard) : m_heard(heard) {}

    void Tell(std::unique_ptr<ClytException> failure, const ClytSpan& place, ClytDue /*due*/) override
    {
        m_heard += Record("failure")
                       .Add(failure->GetNumber())
                       .Add(failure->GetPrefix().Get())
                       .Add(failure->GetArgument())
                       .Add(place.line)
                       .Line();
    }
    void TellShortLine(const ClytSpan& place, ClytDue /*due*/) override
    {
        m_heard += Record("short").Add(place.line).Line();
    }

private:
    std::string& m_heard;
};

class Records : public ClytDescriptionVisitor
{
public:
    Records(const std::string& fileName, const std::string& defines) : m_sink(m_heard), m_file(defines.c_str(), m_sink)
    {
        if (m_file.Open(fileName.c_str(), CFile::modeRead) == 0)
            throw std::runtime_error("cannot open " + fileName);
    }

    std::string All()
    {
        lytReadAll(m_file, *this);
        m_file.Close();
        return m_heard;
    }

    void LayoutHeader(const CString& version, const CStringList& words) { Keep("version", version, words); }
    void DialogHeader(bool isRead, int width, int height, const CString& title, const CString& lastText)
    {
        Keep("dialog", isRead ? 1 : 0, width, height, title, lastText);
    }
    void Control(const ClytControlStatement& control)
    {
        Keep("control", control.type, control.x, control.y, control.width, control.height, control.text, control.name);
    }
    void Value(const CString& name, const CString& keyword, const CStringList& values)
    {
        Keep("value", name, keyword, values);
    }
    void Dependency(std::unique_ptr<ClytControlDep>& rule)
    {
        Keep("dependency", rule->controlName, rule->stateWord.GetText(), rule->conditions);
        rule.reset();
    }
    void EvaluationHeader(const CStringList& words) { Keep("header", words); }
    void Evaluation(const ClytControlEval& statement)
    {
        Keep("evaluation", statement.ownValues, statement.otherValues, statement.messageKey);
    }
    void InputPart(const CString& name, const std::unique_ptr<ClytInputPart>& part)
    {
        Keep("part", name, part->GetStatements());
    }
    void Output(const CString& group, std::unique_ptr<ClytDialogOutput>& rule)
    {
        Keep("output", group, rule->conditions, rule->format, rule->items);
        rule.reset();
    }

private:
    template <class... Parts>
    void Keep(const char* kind, const Parts&... parts)
    {
        Record record(kind);
        record.Add(m_file.GetLineNumber());
        (record.Add(parts), ...);
        m_heard += record.Line();
    }

    std::string m_heard;
    RecordingSink m_sink;
    ClytDialogFile m_file;
};

} // namespace

std::string RecordsOf(const std::string& fileName, const std::string& defines)
{
    return Records(fileName, defines).All();
}
