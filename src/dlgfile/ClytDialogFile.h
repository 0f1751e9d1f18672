// Reads a dialog description (`.dlg`): line by line, top to bottom, once. It leaves out the stretches that the defines
// switch off, cuts each line into tokens and has one read operation a kind of statement. It keeps no tree: a statement
// goes to the dialog as soon as it is read, and the dialog pulls the next one.
//
// Readers return 1 to go on and 0 at the word that ends their section. A statement of wrong form raises 212 with the
// number of its line; nothing is read after a failure.
#pragma once

#include "dlgfile/ClytToken.h"
#include "dlgfile/DelimiterSet.h"
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
};

class ClytDialogFile : public CStdioFile
{
public:
    // The define list is a text of names joined by commas; null stands for none.
    explicit ClytDialogFile(const char* defineList);

    // Delivers the next line that the defines leave in, at most `count` characters and a NUL; null at the end of the
    // file.
    char* ReadString(char* buffer, UINT count) override;

    // Cuts a line into tokens. A quote that is not closed raises 210.
    void Tokenize(const char* line, const DelimiterSet& delimiters);
    // Cuts the text of a value, where a round bracket keeps what it holds together. Brackets that are not closed raise
    // 241.
    void TokenizeGrouped(const char* text, const char* delimiters);
    const ClytTokenList& GetTokens() const { return tokens; }

    // Appends the texts of the present line's tokens and deletes the tokens; 0 when there are none.
    int TakeTokens(CStringList& texts);

    int ReadVersionHeader(CString& version);
    // 0 when the line is not a dialog's.
    int ReadDialogHeader(int& width, int& height, CString& title, CString& lastText);
    int ReadControlStatement(ClytControlStatement& statement);
    int ReadValueStatement(CString& name, CString& keyword, CStringList& values);
    // Sets control name and state word, and appends the conditions to those that the rule has.
    int ReadDependencyStatement(ClytControlDep& rule);
    // Fills lists and key that come in empty; a line without a statement leaves them so.
    int ReadEvaluationStatement(ClytCtrlValList& own, ClytCtrlValList& other, CString& messageKey);
    int ReadInputHeader(CString& name);
    // Reads the statements behind a header into the part.
    void ReadInputPart(ClytInputPart& part);
    // A group header sets the group name, any other statement adds to the rule's parts and sets its format.
    int ReadOutputStatement(CString& groupName, ClytDialogOutput& rule);

private:
    // What a read is given; a buffer for it has room for a NUL.
    static constexpr UINT lineSize = 399;

    // Delivers and counts a line.
    bool ReadLine(char* line);
    bool ReadTokens(const DelimiterSet& delimiters);
    // The position stands on the first token, behind the terminator on the second, or is null.
    int ReadSectionLine(POSITION& token, const char* terminator, const DelimiterSet& delimiters);
    bool CutTokens(const char* line, const DelimiterSet& delimiters);
    static const char* FindGroupEnd(const char* text);

    // The next token; where there is none it is the class library's failure, or that of a statement of wrong form.
    const ClytToken& Next(POSITION& token) const { return tokens.GetNext(token); }
    const ClytToken& NextOrFail(POSITION& token) const;
    [[noreturn]] void FailStatement() const;
    bool ReadValueList(POSITION& token, CStringList& values) const;

    void ReadControlOperands(POSITION token, ClytControlStatement& statement) const;
    CString TakeName(const CString& operand) const;

    void ReadDependencyCondition(POSITION& token, ClytConditions& conditions) const;

    void ReadForbiddenPair(POSITION token, ClytCtrlValList& own, ClytCtrlValList& other, CString& messageKey) const;
    void ReadForbiddenValue(POSITION token, ClytCtrlValList& own, CString& messageKey) const;

    int ReadInputStatement(ClytDialogInput& statement);
    int ReadInputLine();
    void ReadInputConditions(POSITION token, ClytDialogInput& statement) const;
    void ReadTargets(POSITION token, ClytDialogInput& statement) const;
    void ReadScanRule(POSITION token, ClytScanRule& rule) const;
    char ReadScanList(POSITION& token, ClytScan& scan) const;
    void ReadConditionFill(POSITION& token, ClytConditionFill& rule) const;
    void ReadControlFill(POSITION& token, ClytControlFill& fill) const;
    void ReadFillAction(POSITION& token, ClytControlFill& fill) const;

    bool ReadOutputCondition(const ClytToken& control, POSITION& token, ClytConditions& conditions) const;
    void ReadOutputItem(POSITION& token, ClytDialogOutput& rule) const;
    CString ReadItemAction(POSITION& token) const;

    ClytTokenList tokens; // of the present line; the next section's reader may start from them
    int lineNumber = 0;   // of the lines delivered, so lines that are switched off do not count
    CMapStringToPtr defines;
    bool lineActive = true;
};
