// Each kind of statement: the forms that it has, and the messages of those that it has not.
#include "Description.h"

#include "model/ClytControlDep.h"
#include "model/ClytDialogOutput.h"
#include "model/ClytInputPart.h"
#include "unit/Readings.h"

namespace
{

// The version and the words of the layout line.
std::string Header(const std::string& content)
{
    Description file(content + "\n");
    CString version;
    CStringList words;
    const auto read = [&]
    {
        EXPECT_EQ(file.ReadVersionHeader(version), 1);
        file.TakeTokens(words);
        return std::string(version.GetString()) + ": " + Joined(words);
    };
    return ReadOrRaised(read);
}

// The line that opens a dialog.
std::string Dialog(const std::string& content)
{
    Description file(content + "\n");
    int width = 0;
    int height = 0;
    CString title;
    CString lastText;
    const auto read = [&]
    {
        if (file.ReadDialogHeader(width, height, title, lastText) == 0)
            return std::string("no dialog");
        return std::to_string(width) + "x" + std::to_string(height) + " " + title.GetString() + " " +
               lastText.GetString();
    };
    return ReadOrRaised(read);
}

std::string Control(const std::string& line)
{
    Description file(line + "\n");
    ClytControlStatement statement;
    const auto read = [&]
    {
        if (file.ReadControlStatement(statement) == 0)
            return std::string("end");
        std::string shown = statement.type.GetString();
        for (const int number : {statement.x, statement.y, statement.width, statement.height})
            shown += " " + std::to_string(number);
        return shown + " '" + statement.text.GetString() + "' '" + statement.name.GetString() + "'";
    };
    return ReadOrRaised(read);
}

std::string Value(const std::string& line)
{
    Description file(line + "\n");
    CString name = "old";
    CString keyword = "old";
    CStringList values;
    values.AddTail("old");
    const auto read = [&]
    {
        if (file.ReadValueStatement(name, keyword, values) == 0)
            return std::string("end");
        return std::string(name.GetString()) + "|" + keyword.GetString() + "|" + Joined(values, " ");
    };
    return ReadOrRaised(read);
}

std::string Dependency(const std::string& line)
{
    Description file(line + "\n");
    ClytControlDep rule;
    const auto read = [&]
    {
        if (file.ReadDependencyStatement(rule) == 0)
            return std::string("end");
        return std::string(rule.controlName.GetString()) + "/" + rule.stateWord.GetText().GetString() + ": " +
               Shown(rule.conditions);
    };
    return ReadOrRaised(read);
}

std::string Evaluation(const std::string& line)
{
    Description file(line + "\n");
    ClytCtrlValList own;
    ClytCtrlValList other;
    CString messageKey;
    const auto read = [&]
    {
        if (file.ReadEvaluationStatement(own, other, messageKey) == 0)
            return std::string("end");
        return Shown(own) + "; " + Shown(other) + "; " + messageKey.GetString();
    };
    return ReadOrRaised(read);
}

std::string Output(const std::string& line)
{
    Description file(line + "\n");
    CString group;
    ClytDialogOutput rule;
    const auto read = [&]
    {
        if (file.ReadOutputStatement(group, rule) == 0)
            return std::string("end");
        if (!group.IsEmpty())
            return "group " + std::string(group.GetString()) + " " + Shown(rule.conditions);
        std::string shown = Shown(rule.conditions) + " = " + rule.format.GetString();
        for (const ClytOutputItem& item : rule.items)
            shown += std::string(", ") + item.text.GetString() + (item.action.IsEmpty() ? "" : ":") +
                     item.action.GetString();
        return shown;
    };
    return ReadOrRaised(read);
}

std::string Shown(const ClytScan& scan)
{
    std::string shown;
    if (scan.GetLength() != 0 || !scan.GetTarget().name.IsEmpty())
        shown += "[" + std::to_string(scan.GetLength()) + ">" + scan.GetTarget().name.GetString() + "]";
    for (const ClytSeparator& separator : scan.GetSeparators())
        shown += "['" + std::string(separator.text.GetString()) + "'>" + separator.target.name.GetString() + "]";
    return shown;
}

std::string Shown(const ClytControlFill& fill)
{
    std::string shown = fill.controlName.GetString();
    if (!fill.value.IsEmpty())
        shown += "=" + std::string(fill.value.GetString());
    if (!fill.action.GetText().IsEmpty())
    {
        shown += ":" + std::string(fill.action.GetText().GetString());
        for (const CString& operand : fill.operands)
            shown += "/" + std::string(operand.GetString());
    }
    return shown;
}

std::string Shown(const ClytDialogInput& statement)
{
    std::string shown = std::string(statement.name.GetString()) + ":" + Shown(statement.scanRule.scan);
    for (const ClytConditionFill& rule : statement.scanRule.rules)
    {
        shown += rule.values.IsEmpty() ? " " : " (" + Joined(rule.values, ",") + ")";
        shown += Shown(*rule.fills.GetHead());
    }
    if (!statement.conditions.IsEmpty() || !statement.falseTarget.name.IsEmpty())
        shown += Shown(statement.conditions) + " ? " + statement.trueTarget.name.GetString() + " : " +
                 statement.falseTarget.name.GetString();
    return shown;
}

void PassEvaluation(ClytDialogFile& file)
{
    ClytCtrlValList unused;
    CString key;
    EXPECT_EQ(file.ReadEvaluationStatement(unused, unused, key), 0);
}

// All parts of an input section, as the dialog reads them.
std::string Parts(const std::string& section)
{
    Description file(section);
    PassEvaluation(file);
    CString name;
    const auto read = [&]
    {
        std::string shown;
        while (file.ReadInputHeader(name) != 0)
        {
            ClytInputPart part;
            file.ReadInputPart(part);
            shown += "{" + std::string(name.GetString()) + "}";
            for (const ClytDialogInput& one : part.GetStatements())
                shown += Shown(one) + "\n";
        }
        return shown;
    };
    return ReadOrRaised(read);
}

// One statement that is not the first after its header.
std::string Input(const std::string& line)
{
    const std::string shown = Parts("$INPUT\nFirst: x = End\n" + line + "\n$OUTPUT\n");
    const size_t end = shown.find('\n');
    return end == std::string::npos ? shown : shown.substr(end + 1, shown.size() - end - 2);
}

// A file on a disk that fails after a number of lines.
class FailingDescription : public Description
{
public:
    FailingDescription(const std::string& content, int goodLines) : Description(content), m_goodLines(goodLines) {}

    char* ReadString(char* buffer, UINT count) override
    {
        if (m_goodLines-- == 0)
            AfxThrowFileException(CFileException::genericException, 0, "disk");
        return Description::ReadString(buffer, count);
    }

private:
    int m_goodLines;
};

struct Kind
{
    const char* name;
    std::string (*read)(const std::string& text);
};

// GoogleTest prints it where a test fails.
void PrintTo(const Kind& kind, std::ostream* stream)
{
    *stream << kind.name;
}

class EachStatement : public WithErrorTexts, public testing::WithParamInterface<Kind>
{
};

INSTANTIATE_TEST_SUITE_P(, EachStatement,
                         testing::ValuesIn<Kind>({{"Header", Header},
                                                  {"Dialog", Dialog},
                                                  {"Control", Control},
                                                  {"Value", Value},
                                                  {"Dependency", Dependency},
                                                  {"Evaluation", Evaluation},
                                                  {"Output", Output},
                                                  {"Input", Input},
                                                  {"Parts", Parts}}),
                         [](const auto& kind) { return std::string(kind.param.name); });

using Statement = WithErrorTexts;

} // namespace

TEST_P(EachStatement, HasTheFormsOfTheTable)
{
    ExpectReadings("dlgfile/readings.cases", GetParam().name, GetParam().read);
}

TEST_F(Statement, OfAnInputIsFoundByTheLaterOfTwoNames)
{
    Description file("$INPUT\nA: x = One\nA: x = Two\n$OUTPUT\n");
    PassEvaluation(file);
    CString name;
    EXPECT_EQ(file.ReadInputHeader(name), 1);
    ClytInputPart part;
    file.ReadInputPart(part);
    EXPECT_EQ(part.GetStatements().GetCount(), 2);
    ASSERT_NE(part.Find("A"), nullptr);
    EXPECT_EQ(part.Find("A")->falseTarget.name, "Two");
    EXPECT_EQ(part.Find("B"), nullptr);
}

TEST_F(Statement, OfAnInputOnAFailingDiskRaises206)
{
    FailingDescription file("$INPUT\nA: x = End\nB: x = End\n$OUTPUT\n", 2);
    PassEvaluation(file);
    CString name;
    EXPECT_EQ(file.ReadInputHeader(name), 1);
    ClytInputPart part;
    EXPECT_EQ(RaisedMessage([&] { file.ReadInputPart(part); }), "The file could not be read or written: disk\n206 ''");
}
