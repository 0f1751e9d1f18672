// Each kind of statement: the forms that it has, and the messages of those that it has not.
#include "Description.h"

#include "model/ClytControlDep.h"
#include "model/ClytDialogOutput.h"
#include "model/ClytInputPart.h"

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

class Statement : public WithErrorTexts
{
};

const std::string noControl = " 0 0 0 0 '' ''";

} // namespace

TEST_F(Statement, OfTheVersionIsAboveEverythingElse)
{
    ExpectEach(Header, {
                           {"$VERSION 1\n$LAYOUT", "1: $LAYOUT"},
                           {"$VERSION abc\n$LAYOUT", "abc: $LAYOUT"},
                           {"$VERSION 1\n$LAYOUT TEXTS, more (x): y", "1: $LAYOUT|TEXTS|more||x||y"},
                           {"Begin Dialog\n\n; note\nText 1 (2) \"x\n$VERSION 1\nBegin\n$LAYOUT", "1: $LAYOUT"},
                           // The layout's word may itself be the version.
                           {"$VERSION $LAYOUT\nBegin Dialog", "$LAYOUT: $VERSION|$LAYOUT"},
                           {"$version 1\n$LAYOUT", "213 ''"},
                           {"\n$VERSION 1 2\n$LAYOUT", "212 '2'"},
                           {"$VERSION\n$LAYOUT", "212 '1'"},
                           {"", "214 ''"},
                           {"$VERSION 1\nanything", "214 ''"},
                           {"$VERSION \"1", "210 ''"},
                           {"$VERSION 1\n$LAYOUT \"x", "210 ''"},
                       });
}

TEST_F(Statement, OfADialogHasSevenWords)
{
    ExpectEach(Dialog, {
                           {"Begin Dialog Box 200, 100, \"TITLE_KEY\", .Main", "200x100 TITLE_KEY .Main"},
                           {"Begin Dialog Box 200 100 \"T\" .M", "200x100 T .M"},
                           {"\n  \n; note\nBegin,Dialog,x,1,2,T,M", "1x2 T M"},
                           {"Begin Dialog Box wide -7 T M", "0x-7 T M"},
                           {"Begin Dialog Box 99999999999 -99999999999 T M", "2147483647x-2147483648 T M"},
                           {"Begin Dialog 200, 100, \"T\", .M", "212 '1'"},
                           {"\nBegin Dialog Box 200, 100, \"T\", .M, x", "212 '2'"},
                           {"Begin Dialog Box (200, 100), \"T\", .M", "212 '1'"},
                           {"Begin Window Box 200, 100, \"T\", .M", "no dialog"},
                           // The words are counted before the second one is looked at.
                           {"Begin Window 200, 100, \"T\", .M", "212 '1'"},
                           {"Begin", "212 '1'"},
                       });
    ExpectAll(Dialog, "215 ''",
              {", Begin Dialog Box 200 100 T .M", "(Begin Dialog Box 200 100 T .M)", "\"\" Begin Dialog Box 200 100 T",
               ",\nBegin Dialog Box 200 100 T .M", "", "\n; note", "Text 1, 2, 3, 4"});
}

TEST_F(Statement, OfAControlHasFourNumbersAndMayHaveTextAndName)
{
    ExpectEach(Control, {
                            {"OptionGroup .Kind", "OptionGroup 0 0 0 0 '' 'Kind'"},
                            {"OptionGroup .Kind, 1, 2", "OptionGroup 0 0 0 0 '' 'Kind'"},
                            {"Text 1, 2, 3, 4", "Text 1 2 3 4 '' ''"},
                            {"Text 1, 2, 3, 4, .Name", "Text 1 2 3 4 '' 'Name'"},
                            {"Text 1, 2, 3, 4, .Name, more", "Text 1 2 3 4 '' 'Name'"},
                            {"Text 1, 2, 3, 4, \"KEY\"", "Text 1 2 3 4 'KEY' ''"},
                            {"Text 1, 2, 3, 4, \"KEY\", .Name", "Text 1 2 3 4 'KEY' 'Name'"},
                            {"Text 1, 2, 3, 4, \"KEY\", .Name, more", "Text 1 2 3 4 'KEY' 'Name'"},
                            {"Text\t1\t2\t3\t4", "Text 1 2 3 4 '' ''"},
                            {"Text one, , 3, -4", "Text 0 0 3 -4 '' ''"},
                            {"Text 99999999999, 2, 3, 4", "Text 2147483647 2 3 4 '' ''"},
                            {"Text 1, 2, 3, 4 ; note", "Text 1 2 3 4 '' ''"},
                            {"Text 1, 2, 3, 4, \"a, b\", .T", "Text 1 2 3 4 'a, b' 'T'"},
                            {"Text 1, 2, 3, 4, \".abc\", .T", "Text 1 2 3 4 '' 'abc'"},
                            // Of a last name the first character goes, whether it is a point or not.
                            {"Text 1, 2, 3, 4, \"a\", Name", "Text 1 2 3 4 'a' 'ame'"},
                            {"Text 1, 2, 3, 4, \"a\", \"\"", "Text 1 2 3 4 'a' ''"},
                            {"End", missingArgument},
                            {"$VALUES", "end"},
                            {"  $VALUES more", "end"},
                        });
    ExpectAll(Control, noControl,
              {"", "   ", "; Text 1, 2, 3, 4", ", 1, 2", "\"\" 1, 2", "End Dialog", "End 1, 2, 3, 4"});
    ExpectAll(Control, "212 '1'",
              {"Text", "Text 1", "Text 1, 2", "Text 1, 2, 3", "Text 1, .N", "Text 1, 2, .N", "Text 1, 2, 3, .N",
               "Text .", "Text 1, 2, 3, 4, .", "Text 1, 2, 3, 4, \"a\", ."});
}

TEST_F(Statement, OfAValueHasNameKeywordAndValues)
{
    ExpectEach(Value, {
                          {"A=B", "A||B"},
                          {"A: B", "A||B"},
                          {"A, \"b c\"", "A||b c"},
                          {"A=B,C", "A|B|C"},
                          {"A(B,C,D)", "A|B|C D"},
                          {"EditName = FILLEDBY, lib, func", "EditName|FILLEDBY|lib func"},
                          {"A: B = C", "A|B|C"},
                          {"A = B C", "A||B C"},
                          {"", "||"},
                          {" ; A=B", "||"},
                      });
    ExpectAll(Value, "end", {"$DEPENDANCES", "$DEPENDANCES = 1", "\"$DEPENDANCES\""});
    ExpectAll(Value, "212 '1'", {"A", "A=", "$DEPENDENCIES"});
}

TEST_F(Statement, OfADependencyHasNameWordAndConditions)
{
    ExpectEach(Dependency, {
                               {"Ok/ACTIVE = EditName(NOTNULL), K(1,2)", "Ok/ACTIVE: EditName(NOTNULL) K(1,2)"},
                               {"EditName/CLEAR = Kind", "EditName/CLEAR: Kind"},
                               {"A/VISIBLE = B, C, D(1)", "A/VISIBLE: B C D(1)"},
                               {"Ok/ACTIVE = A(1), B", "Ok/ACTIVE: A(1) B"},
                               {"Ok/ACTIVE =", "Ok/ACTIVE: "},
                               // A word after a bracket is passed over.
                               {"Ok/ACTIVE = A(1) B", "Ok/ACTIVE: A(1)"},
                               {"Ok/ACTIVE = A(1) B, C", "Ok/ACTIVE: A(1) C"},
                               {"Ok/ACTIVE = A(1;2)", "Ok/ACTIVE: A(1;2)"},
                               {"Ok/ACTIVE = ;A(1)", "Ok/ACTIVE: "},
                               {"Ok/ACTIVE = A(), B(,1)", "Ok/ACTIVE: A() B(,1)"},
                               {"Ok/ACTIVE = A(1),", "Ok/ACTIVE: A(1)"},
                               {"Ok/ACTIVE = A,", "Ok/ACTIVE: A"},
                               {"Ok/ACTIVE =\tA,\tB", "Ok/ACTIVE: A B"},
                               {"", "/: "},
                               {"; Ok/ACTIVE = A", "/: "},
                               {"$EVALUATION, x", "end"},
                               {"$EVALUATION x", "212 '1'"},
                           });
    ExpectAll(Dependency, "212 '1'",
              {"Ok", "Ok = A", "Ok/ACTIVE", "Ok/ACTIVE, A", "Ok/ACTIVE/A = B", "Ok/ACTIVE = A)", "Ok/ACTIVE = A=",
               "Ok/ACTIVE = A/B", "Ok/ACTIVE = A(1", "Ok/ACTIVE = A(1=2)", "Ok/ACTIVE = A(1)=B", "Ok/ACTIVE = A(1)(2)",
               // A tab ends no condition.
               "Ok/ACTIVE = A\t", "Ok/ACTIVE = A\t, B", "Ok/ACTIVE = A\tB", "Ok/ACTIVE = A(1) B\tC"});
    ExpectAll(Dependency, missingArgument, {"Ok/", "Ok/ACTIVE = A(1,", "Ok/ACTIVE = A("});
}

TEST_F(Statement, OfAnEvaluationHasALongAndAShortForm)
{
    ExpectEach(Evaluation, {
                               {"Kind(1,2) = Name(a,b): MSG_CLASH", "Kind(1,2); Name(a,b); MSG_CLASH"},
                               {"A(1)", "A(1); ; "},
                               {"A(1) word = B(2): KEY", "A(1); B(2); KEY"},
                               {"A(1) = B(2) word: KEY", "A(1); B(2); KEY"},
                               {"EditName = NULL: MSG_EMPTY", "EditName(NULL); ; MSG_EMPTY"},
                               {"A = x: KEY", "A(x); ; KEY"},
                               // After NULL any delimiter will do.
                               {"A = NULL, KEY", "A(NULL); ; KEY"},
                               {"A = NULL (KEY)", "A(NULL); ; KEY"},
                               {"A = x: KEY;more", "A(x); ; KEY"},
                               {"A = x: \"KEY;more\"", "A(x); ; KEY;more"},
                               {"", "; ; "},
                               {" ; A = x: KEY", "; ; "},
                               {"$INPUT, parent", "end"},
                               {"$INPUT", "end"},
                           });
    ExpectAll(Evaluation, "212 '1'",
              {"A(1) word, B(2): KEY",
               "A(1) = B(2) word, KEY",
               "A = x y",
               "A = x, KEY",
               "A = null, KEY",
               "A",
               "A, B",
               "A: KEY",
               "A = ",
               "A = x:",
               "A = NULL",
               "A(1",
               "A(1=2)",
               "A(1), B",
               "A(1) =",
               "A(1) = B",
               "A(1) = B: KEY",
               "A(1) = B(2",
               "A(1) = B(2)",
               "A(1) = B(2), KEY",
               "A(1) = B(2):"});
    ExpectAll(Evaluation, missingArgument, {"A(1,", "A(1) = B("});
}

TEST_F(Statement, OfAnOutputHasConditionsFormatAndItems)
{
    ExpectEach(Output, {
                           {"Kind(1), Name = (\"%s;%.3s\", Name, Kind)", "Kind(1) Name = %s;%.3s, Name, Kind"},
                           {"Kind(1,2), A(3) = (\"%s\", x)", "Kind(1,2) A(3) = %s, x"},
                           {"(\"text\")", " = text"},
                           {"(\"%s\", x(a,b))", " = %s, x:ab"},
                           {"Kind(2) = (\"%s\", Name(\"/\"))", "Kind(2) = %s, Name:/"},
                           {"(\"%s\", x(a<b,c), y)", " = %s, x:bc, y"},
                           // An empty action joins.
                           {"(\"%s\", Name())", " = %s, Name:CONCAT"},
                           {"(\"%s\", Name(\" \"))", " = %s, Name:CONCAT"},
                           // A word after an action, and one before the right side, is passed over.
                           {"(\"%s\", x(a) y, z)", " = %s, x:a, z"},
                           {"A(1) = word(\"x\", a)", "A(1) = x, a"},
                           {"A = word (\"x\")", "A = x"},
                           {"A = (\"x\")", "A = x"},
                           {"A, (\"x\")", "A = x"},
                           {"(\"a;b\", x)", " = a;b, x"},
                           {"(a;b, x;y)", " = a;b, x;y"},
                           {"$OUTPUT, second", "group second "},
                           {"A(1), $OUTPUT, second", "group second A(1)"},
                           {"", " = "},
                           {"  ; (\"x\")", " = "},
                           {"$END", "end"},
                       });
    ExpectAll(Output, "212 '1'",
              {"A(1): B = (\"x\")",
               "A(1) (B = (\"x\")",
               "A(1)) B = (\"x\")",
               "A(1)< B = (\"x\")",
               "A(1)> B = (\"x\")",
               "A, B = (\"x\")",
               "(;b, x)",
               "(",
               "A",
               "A)",
               "A:x",
               "A<x",
               "= (\"x\")",
               ", (\"x\")",
               "A(1)",
               "A(1",
               "A(1:2) = (\"x\")",
               "A(1):(\"x\")",
               "A(1) =",
               "A(1),",
               "A(1) = (",
               "A(1) = x",
               "A = x)",
               "(\"x\", a",
               "(\"x\", a=b)",
               "(\"x\", a:b)",
               "(\"x\", a<b)",
               "$OUTPUT"});
    ExpectAll(Output, missingArgument, {"A(1,", "(\"x\", a(b)", "(\"x\", a(b", "(\"x\", a("});
}

TEST_F(Statement, OfAnInputChoosesATargetOrCutsAndFills)
{
    ExpectEach(Input, {
                          {"X: A(1,2) = T, F", "X:A(1,2) ? T : F"},
                          {"X: A(1), B(2) = T, F", "X:A(1) B(2) ? T : F"},
                          {"X: , A(1) = T, F", "X:A(1) ? T : F"},
                          {"X: A) = T, F", "X:A ? T : F"},
                          {"X: A, B(1) = T, F", "X:A(B,1) ? T : F"},
                          {"X: A(1) = T, F, more", "X:A(1) ? T : F"},
                          {"X: word = Next", "X: ? word : Next"},
                          // An equals sign with nothing before it is passed over, or jumps.
                          {"X: , = A(1) = T, F", "X:A(1) ? T : F"},
                          {"X: A(1), = B(2) = T, F", "X:A(1) B(2) ? T : F"},
                          {"X: = Next", "X: ?  : Next"},
                          {"X: (\";\", Second)", "X:[';'>Second]"},
                          {"X: (\";\", Second, \",\", Third)", "X:[';'>Second][','>Third]"},
                          {"X: ()", "X:"},
                          // The later kind of entry decides.
                          {"X: (3, A, \";\", B = N", "X:[';'>B] N"},
                          {"X: (\";\", B, 3, A = N", "X:[3>A][';'>B] N"},
                          {"X: (-3, A = N", "X:[-3>A] N"},
                          // A bracket with more after it ends no list: the word is one more separator.
                          {"X: (\";\", Second) a, Third = N", "X:[';'>Second]['a'>Third] N"},
                          {"X: (\";\", Second, x) = N, M", "X:[';'>Second] N M"},
                          {"X: (\";\", Second, x) N", "X:[';'>Second] N"},
                          {"X: () = N", "X: N"},
                          {"X: (\";\", Second) x) = N", "X:[';'>Second] N"},
                          {"X: (\";\", Second, 3)", "X:[';'>Second]"},
                          {"X: (x) = N", "X: N"},
                          {"X: (1, E = N, M, K", "X:[1>E] N M K"},
                          {"X: (1, E = N = fixed, M", "X:[1>E] N=fixed M"},
                          {"X: (1, E = (a,b) N, M", "X:[1>E] (a,b)N M"},
                          {"X: (1, E = (a), N = f", "X:[1>E] (a)N=f"},
                          {"X: (1, E = N(FILL), M(ADD), K(MODIFY)", "X:[1>E] N:FILL/// M:ADD/// K:MODIFY///"},
                          {"X: (1, E = N(CONCAT,a,b,c)", "X:[1>E] N:CONCAT/a/b/c"},
                          {"X: (1, E = (x) N(CONCAT,\",\"), M", "X:[1>E] (x)N:CONCAT/,// M"},
                          {"X: (1, E = N(word)", "X:[1>E] N:word///"},
                          {"X: (1, E = N ; note", "X:[1>E] N"},
                          {"X: (1, E = N\t; note", "X:[1>E] N"},
                          {"X: (1, E = N,", "X:[1>E] N"},
                          {"B: (1\tEnd\tx)", "B:[1>End]"},
                      });
    ExpectAll(Input, "212 '3'",
              {"X: A(1)", "X: A(1) = ", "X: A(1) = T", "X: A(1)=T,", "X: A", "X: A(1", "X: A(1,", "X: ,", "X: word =",
               // Without a colon.
               "X", "X = A", "X, A", "X (\";\", End)", "X:",
               // A list that is not finished, or continues after its bracket.
               "X: (\";\", Second) = N", "X: (\";\", Second) N", "X: (", "X: (\";\"", "X: (\";\", Second",
               "X: (\";\", Second,", "X: (\";\", A, \",\"", "X: (3",
               // Fill rules.
               "X: (1, E = N)", "X: (1, E = = N", "X: (1, E = N: M", "X: (1, E = N =", "X: (1, E = N = f = g",
               "X: (1, E = N(FILL", "X: (1, E = N(", "X: (1, E = N(CONCAT,a,b,c,d)", "X: (1, E = N(FILL) M",
               "X: (1, E = N(FILL) = M", "X: (1, E = (a", "X: (1, E = (a,", "X: (1, E = (a)", "X: (1, E = (a)=N",
               "X: (1, E = N(FILL:x)", "X: (1, E = N,,M", "X: (1, E = (a)(b) N", "X: (1, E = N\tM"});
}

TEST_F(Statement, OfAnInputBelongsToThePartAboveIt)
{
    ExpectEach(Parts, {
                          {"$INPUT, parent\nStart: (\";\", Second, Rest, End = N\nSecond: K(1) = Third, Last\n"
                           "Third: (3, Last = K\nLast: x = End\n$OUTPUT\n",
                           "{parent}Start:[';'>Second]['Rest'>End] N\nSecond:K(1) ? Third : Last\nThird:[3>Last] K\n"
                           "Last: ? x : End\n"},
                          {"$INPUT\nA: x = End\n$INPUT, other\nB: x = End\n$INPUT\n$OUTPUT\n",
                           "{}A: ? x : End\n{other}B: ? x : End\n{}"},
                          {"$INPUT, a\n$OUTPUT\n", "{a}"},
                          {"$INPUT, a\n\n; note\n$OUTPUT, x\n", "{a}"},
                          {"$INPUT\n\nA: x = End\n\nB: x = End\n$OUTPUT\n", "{}A: ? x : End\nB: ? x : End\n"},
                          // A statement without a name joins the next one.
                          {"$INPUT\n: A(1) = B, C\nX: D(2) = E, F\n$OUTPUT\n", "{}X:A(1) D(2) ? E : F\n"},
                          // In the first statement tab and semicolon delimit nothing.
                          {"$INPUT\nA: (\";\", End = N\t; x\nB: (\";\", End = N\t; x\n$OUTPUT\n",
                           "{}A:[';'>End] N\t; x\nB:[';'>End] N\n"},
                          {"$INPUT\n", "217 '$OUTPUT'"},
                          {"$INPUT\nA: x = End\n", "217 '$OUTPUT'"},
                      });
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
