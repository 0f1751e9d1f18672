// Reads the statements of a dialog description (`.dlg`): line by line, top to bottom, once, with one read operation a
// kind of statement. It keeps no tree: a statement goes to the dialog as soon as it is read, and the dialog pulls the
// next one.
//
// Readers return 1 to continue and 0 at the word that ends their section. A statement of wrong form is 212 with the number
// of its line. Failures go to the error sink. After one that returns, the line counts as one without a statement, and a
// file that ends too early as the end of its section; what was read of the statement stays in the caller's record.
#pragma once

#include "dlgfile/ClytLineSource.h"
#include "dlgfile/ErrorSink.h"
#include "dlgfile/Sections.h"
#include "dlgfile/Tokenize.h"
#include "model/ClytCtrlValList.h"

class ClytConditionFill;
class ClytControlFill;
class ClytDialogInput;
class ClytDialogOutput;
class ClytControlDep;
class ClytInputPart;
class ClytScan;
class ClytScanRule;

// One statement of the layout section, in the file's layout units. An empty type word means that the line held no
// control.
struct ClytControlStatement
{
    CString type;
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    CString text;
    CString name;
    ClytSpan span;
};

class ClytDialogFile : public ClytLineSource
{
public:
    // What a read of a line is given; a buffer for it has room for a NUL.
    static constexpr UINT lineSize = 399;

    // The define list is a text of names joined by commas; null means none. The sink outlives the reader.
    explicit ClytDialogFile(const char* defineList, ErrorSink& errorSink = lytRaisingSink());

    // Cuts a line into the tokens of the present line. A quote that is not closed is 210.
    void Tokenize(const char* line, const DelimiterSet& delimiters);
    const ClytTokenList& GetTokens() const { return tokens; }
    // The place of a token of the present line in the file.
    ClytSpan PlaceOf(const ClytToken& token) const;
    // The place of the present line's statement: from its first token to the end of the line.
    ClytSpan GetStatementPlace() const;

    // Appends the texts of the present line's tokens and deletes the tokens; 0 when there are none.
    int TakeTokens(CStringList& texts);

    int ReadVersionHeader(CString& version);
    // 0 when the line is not a dialog's.
    [[nodiscard]] int ReadDialogHeader(int& width, int& height, CString& title, CString& lastText);
    [[nodiscard]] int ReadControlStatement(ClytControlStatement& statement);
    [[nodiscard]] int ReadValueStatement(CString& name, CString& keyword, CStringList& values);
    // Sets control name and state word, and appends the conditions to those that the rule has.
    [[nodiscard]] int ReadDependencyStatement(ClytControlDep& rule);
    // Fills lists and key that come in empty; a line without a statement leaves them so.
    [[nodiscard]] int ReadEvaluationStatement(ClytCtrlValList& own, ClytCtrlValList& other, CString& messageKey);
    [[nodiscard]] int ReadInputHeader(CString& name);
    // Reads the statements after a header into the part.
    void ReadInputPart(ClytInputPart& part);
    // A group header sets the group name, any other statement adds to the rule's parts and sets its format.
    [[nodiscard]] int ReadOutputStatement(CString& groupName, ClytDialogOutput& rule);

private:
    // Thrown once a failure has been reported and the sink wants to hear of more; it ends the statement.
    struct Abandoned
    {
    };
    // Runs the reader of one statement.
    template <class READ>
    int ReadStatement(READ read);

    // The lines that follow are of that kind.
    void SetKind(ClytLineKind kind);
    [[nodiscard]] bool ReadTokens(ClytLineKind kind);
    // The position is that of the first token, after the word of the next section that of the second, or null. The end
    // of the file is reported.
    int ReadSectionLine(POSITION& token, ClytLineKind kind);

    // The next token. At the end of the line the class library's failure is raised, or that of a statement of wrong form.
    const ClytToken& Next(POSITION& token, ClytDue due = ClytDue::Token);
    const ClytToken& NextOrFail(POSITION& token, ClytDue due);
    void Tell(const char* number, const ClytSpan& place, const CString& argument = CString(),
              ClytDue due = ClytDue::Token);
    // The present statement is of wrong form at the token taken last, unless what was due is there.
    void Expect(bool isThere, ClytDue due);
    [[noreturn]] void FailStatement(const ClytSpan& place, ClytDue due);
    [[noreturn]] void FailQuote(const char* line, const char* openQuote);
    // Where the present line ends.
    ClytSpan EndOfLine() const;
    void ReadValueList(POSITION& token, CStringList& values);

    int ReadHeaderStatement(CString& version, bool& isVersionSeen);
    [[nodiscard]] bool ReadHeaderLine();
    void ReadControl(const CString& type, POSITION token, ClytControlStatement& statement);
    void ReadControlOperands(POSITION token, ClytControlStatement& statement);
    CString TakeName(const CString& operand);

    void ReadDependency(POSITION token, ClytControlDep& rule);
    void ReadDependencyCondition(POSITION& token, ClytConditions& conditions);

    void ReadEvaluation(POSITION token, ClytCtrlValList& own, ClytCtrlValList& other, CString& messageKey);
    void ReadForbiddenPair(POSITION token, ClytCtrlValList& own, ClytCtrlValList& other, CString& messageKey);
    void ReadForbiddenValue(POSITION token, ClytCtrlValList& own, CString& messageKey);

    int ReadInputStatement(ClytDialogInput& statement);
    void ReadInput(POSITION token, ClytDialogInput& statement);
    int ReadInputLine();
    void ReadInputConditions(POSITION token, ClytDialogInput& statement);
    void ReadTargets(POSITION token, ClytDialogInput& statement, ClytDue due);
    void ReadScanRule(POSITION token, ClytScanRule& rule);
    char ReadScanList(POSITION& token, ClytScan& scan);
    void ReadConditionFill(POSITION& token, ClytConditionFill& rule);
    void ReadControlFill(POSITION& token, ClytControlFill& fill);
    void ReadFillAction(POSITION& token, ClytControlFill& fill);

    void ReadOutput(POSITION token, CString& groupName, ClytDialogOutput& rule);
    [[nodiscard]] bool ReadOutputCondition(const ClytToken& control, POSITION& token, ClytConditions& conditions);
    void ReadOutputItem(POSITION& token, ClytDialogOutput& rule);
    CString ReadItemAction(POSITION& token);

    ErrorSink& errors;
    const ClytLineForm* lineForm = nullptr; // of the present line
    DelimiterSet lineDelimiters{""};        // of that form
    ClytSpan partPlace;                     // of the last header of an input part
    ClytTokenList tokens;                   // of the present line; the next section's reader may start from them
    const ClytToken* lastTaken = nullptr;   // from the list; null before the first of a line
};

template <class READ>
int ClytDialogFile::ReadStatement(READ read)
{
    try
    {
        return read();
    }
    catch (const Abandoned&)
    {
        tokens.RemoveAll();
        return 1;
    }
}
