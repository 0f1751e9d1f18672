// The one interface through which dialog, rules and composition speak to a control. A control's value is always a text.
//
// The base class handles an operation that a control does not offer, some with a message to the user. Controls with a
// window derive from a window class first and from ClytControl second.
#pragma once

#include "environment/ClytException.h"
#include "model/ClytControlEval.h"
#include "model/ClytControlVal.h"
#include "model/ClytWords.h"

class ClytForm;

// Window units (pixels).
struct ClytPosition
{
    int x = 0;
    int y = 0;
};

struct ClytSize
{
    int width = 0;
    int height = 0;
};

class ClytControl
{
public:
    ClytControl(CString controlName, ClytPosition topLeft, ClytSize extent, CString text);
    ClytControl(const ClytControl&) = delete;
    ClytControl& operator=(const ClytControl&) = delete;
    virtual ~ClytControl();

    // Creates the window as a child of the form's, and keeps the form, which outlives the control.
    virtual void CreateControl(ClytForm* owner);
    // Takes one statement of the values section; the place is where the description has it.
    void TakeStatement(const CStringList& values, const CString& keyword, const ClytSpan& place);
    virtual void SetOption(const CStringList& values, const CString& keyword);
    // Remembers the present value or selection, for IsChanged.
    virtual void SaveState();
    virtual void SetControlFocus();
    // Splits the text into items and adds them.
    virtual void AddValues(const CString& text, const CString& separators);
    virtual void SetValue(const CString& value);
    // Appends every item to the result.
    virtual void GetAllValues(CString& result, const CString& separators);
    virtual CString GetValue();
    virtual CString GetDisplayValue();
    // Nonzero when the value differs from what SaveState remembered.
    virtual int IsChanged();
    // Carries out the word of an event rule.
    virtual void DoAction(const ClytStateWord& word);
    // Removes the selected item; the result says what is left.
    virtual int DeleteCurrentItem();
    virtual void AddItem(const CString& value, const CString& display, int hasValue, int position);
    virtual void ReplaceCurrentItem(const CString& text);
    // Moves the selected item one place; nonzero means up.
    virtual void MoveCurrentItem(int up);
    // Fills the control through the library of its "FILLEDBY" statement.
    virtual void FillByLibrary();
    // "ACTIVE" enables or disables, other words show or hide.
    virtual void SetState(const ClytStateWord& word, int on);
    virtual int IsActive() = 0;
    virtual int HasContent() = 0;
    virtual int IsVisible();

    const CString& GetName() const { return name; }
    // "HIDDEN" and "DISPLAYONLY" exempt an inactive control from failing a condition.
    bool IsExemptFromActive() const { return hidden != 0 || displayOnly != 0; }

    // The other list is bound to its control.
    void SetEvaluation(const ClytCtrlValList& own, const ClytCtrlValList& other, const CString& messageKey);
    // 1 when the control passes its evaluation; 0 when it fails, with the focus moved to it unless the other control is
    // unknown.
    int Evaluate();
    // Shows the message of the evaluation.
    void ShowEvalMessage() const;
    // 1 when GetValue equals one of the texts.
    int HasValueIn(const CStringList& values);

protected:
    // Takes an option word and returns 1, or returns 0 for any other word.
    int TakeCommonOption(const CString& word);
    // Shows a numbered error; the operation continues.
    void Report(const char* number, const ClytPrefix& prefix = {}, const CString& argument = CString()) const;
    // The place of the statement that SetOption is given.
    const ClytSpan& StatementSpan() const { return statementSpan; }

    ClytPosition position;
    ClytSize size;
    CString caption;
    CString name;
    CString alternateCaption;
    ClytControlVal action;
    int hidden = 0;
    int displayOnly = 0;
    int invisible = 0;
    int inactive = 0;
    int kind = 0;
    int savedState = 0;
    ClytControlEval evaluation;
    ClytForm* dialog = nullptr; // owns this control

private:
    ClytSpan statementSpan;
};
