// An input part: a small state machine that takes a text apart and puts its pieces into the controls.
#pragma once

#include "model/ClytDialogInput.h"

class ClytScanner;

class ClytInputPart : public CObject
{
public:
    // Of statements with the same name the later is found; the part owns them all.
    void Add(std::unique_ptr<ClytDialogInput> statement);
    const ClytOwnedList<ClytDialogInput>& GetStatements() const { return statements; }
    // Null when no statement has that name.
    const ClytDialogInput* Find(const CString& name) const;

    // Looks up the controls and the targets of all statements, before they run.
    void Bind(const ClytControlMap& controls);
    // Runs over the text from the statement of that name until a statement is named "End" or is not there. A run that
    // goes from statement to statement without consuming text raises 206.
    void Run(CString text, const CString& name) const;

    ClytSpan span; // of the header

private:
    void BindTarget(ClytTarget& target) const;
    // Gives the statement's target; `piece` is where a piece is cut to.
    static const ClytTarget& RunStatement(const ClytDialogInput& statement, ClytScanner& scanner, CString& piece);

    ClytOwnedList<ClytDialogInput> statements;
    CTypedPtrMap<CMapStringToPtr, CString, ClytDialogInput*> statementsByName;
};
