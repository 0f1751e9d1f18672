#include "support/DescriptionRecords.h"

#include "dlgfile/ClytDialogFile.h"
#include "model/ClytControlDep.h"
#include "model/ClytDialogOutput.h"
#include "model/ClytInputPart.h"

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

    void Tell(std::unique_ptr<ClytException> failure, const ClytSpan& place) override
    {
        m_heard += Record("failure")
                       .Add(failure->GetNumber())
                       .Add(failure->GetPrefix().Get())
                       .Add(failure->GetArgument())
                       .Add(place.line)
                       .Line();
    }
    void TellShortLine(const ClytSpan& place) override { m_heard += Record("short").Add(place.line).Line(); }

private:
    std::string& m_heard;
};

// Reads every section in turn, as a dialog does.
class Reading
{
public:
    Reading(const std::string& fileName, const std::string& defines) : m_sink(m_heard), m_file(defines.c_str(), m_sink)
    {
        if (m_file.Open(fileName.c_str(), CFile::modeRead) == 0)
            throw std::runtime_error("cannot open " + fileName);
    }

    std::string All()
    {
        ReadHead();
        ReadControls();
        ReadValues();
        ReadDependencies();
        ReadEvaluations();
        ReadInputs();
        ReadOutputs();
        m_file.Close();
        return m_heard;
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

    void ReadHead()
    {
        CString version;
        CStringList words;
        const int hasLayout = m_file.ReadVersionHeader(version);
        m_file.TakeTokens(words);
        Keep("version", hasLayout, version, words);
        int width = 0;
        int height = 0;
        CString title;
        CString lastText;
        const int isDialog = m_file.ReadDialogHeader(width, height, title, lastText);
        Keep("dialog", isDialog, width, height, title, lastText);
    }

    void ReadControls()
    {
        ClytControlStatement control;
        while (m_file.ReadControlStatement(control) != 0)
            Keep("control", control.type, control.x, control.y, control.width, control.height, control.text,
                 control.name);
    }

    void ReadValues()
    {
        CString name;
        CString keyword;
        CStringList values;
        while (m_file.ReadValueStatement(name, keyword, values) != 0)
            Keep("value", name, keyword, values);
    }

    void ReadDependencies()
    {
        for (int more = 1; more != 0;)
        {
            ClytControlDep rule;
            more = m_file.ReadDependencyStatement(rule);
            Keep("dependency", rule.controlName, rule.stateWord.GetText(), rule.conditions);
        }
    }

    void ReadEvaluations()
    {
        CStringList words;
        m_file.TakeTokens(words);
        Keep("header", words);
        for (int more = 1; more != 0;)
        {
            ClytCtrlValList own;
            ClytCtrlValList other;
            CString key;
            more = m_file.ReadEvaluationStatement(own, other, key);
            Keep("evaluation", own, other, key);
        }
    }

    void ReadInputs()
    {
        CString name;
        while (m_file.ReadInputHeader(name) != 0)
        {
            ClytInputPart part;
            m_file.ReadInputPart(part);
            Keep("part", name, part.GetStatements());
        }
        Keep("group", name);
    }

    void ReadOutputs()
    {
        CString name;
        for (int more = 1; more != 0;)
        {
            ClytDialogOutput rule;
            more = m_file.ReadOutputStatement(name, rule);
            Keep("output", name, rule.conditions, rule.format, rule.items);
        }
    }

    std::string m_heard;
    RecordingSink m_sink;
    ClytDialogFile m_file;
};

} // namespace

std::string RecordsOf(const std::string& fileName, const std::string& defines)
{
    return Reading(fileName, defines).All();
}
