#include "model/ClytInputPart.h"

#include "base/Words.h"
#include "environment/ClytException.h"
#include "model/ClytObserver.h"
#include "model/ClytScanner.h"

namespace
{

constexpr int circleLimit = 10000;

} // namespace

void ClytInputPart::Add(std::unique_ptr<ClytDialogInput> statement)
{
    ClytDialogInput& added = statements.AddTail(std::move(statement));
    statementsByName.SetAt(added.name, &added);
}

const ClytDialogInput* ClytInputPart::Find(const CString& name) const
{
    ClytDialogInput* statement = nullptr;
    statementsByName.Lookup(name, statement);
    return statement;
}

void ClytInputPart::Bind(const ClytControlMap& controls)
{
    const auto bind = [this](ClytTarget& target) { BindTarget(target); };
    for (ClytDialogInput& statement : statements)
    {
        statement.Bind(controls);
        statement.scanRule.scan.BindTargets(bind);
        bind(statement.trueTarget);
        bind(statement.falseTarget);
    }
}

// A statement named "End" is never run.
void ClytInputPart::BindTarget(ClytTarget& target) const
{
    target.statement = lytSameWord(target.name, "End") ? nullptr : Find(target.name);
}

void ClytInputPart::Run(CString text, const CString& name) const
{
    ClytScanner scanner(text);
    lytTell(&ClytObserver::ScanBegan, scanner.GetRest());
    ClytTarget start{name};
    BindTarget(start);
    const ClytTarget* next = &start;
    ClytSpan asker = span;
    int idle = 0;
    CString piece; // kept from statement to statement with the room that it has
    while (next->statement != nullptr)
    {
        asker = next->statement->span;
        const char* before = scanner.GetRest();
        next = &RunStatement(*next->statement, scanner, piece);
        idle = scanner.GetRest() == before ? idle + 1 : 0;
        if (idle == circleLimit)
            lytRaise(lytError("ReadingFailed"), "The input statements go round in a circle.");
    }
    if (!lytSameWord(next->name, "End"))
        lytTellMissing(ClytMissing::InputStatement, next->name, nullptr, asker);
}

const ClytTarget& ClytInputPart::RunStatement(const ClytDialogInput& statement, ClytScanner& scanner, CString& piece)
{
    const ClytScanRule& rule = statement.scanRule;
    if (rule.scan.HasScan() == 0)
    {
        const ClytTarget& next = statement.ConditionsHold() != 0 ? statement.trueTarget : statement.falseTarget;
        lytTell(&ClytObserver::Jumped, statement, next.name);
        return next;
    }
    piece.Empty();
    const ClytTarget& next = scanner.Cut(rule.scan, piece);
    lytTell(&ClytObserver::Cut, statement, piece, scanner.GetRest(), next.name);
    rule.ApplyFills(piece);
    return next;
}
