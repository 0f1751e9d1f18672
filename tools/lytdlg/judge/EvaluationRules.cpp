#include "lytdlg/judge/Families.h"

#include "lytdlg/judge/Conditions.h"
#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/judge/Names.h"

namespace lytdlg
{

namespace
{

bool BeginsWithNull(const EvaluationStatement& statement)
{
    return lytMeans<ClytValueWord::Null>(statement.own.GetValues().GetHead());
}

// Whether the check is made with the control that an empty name finds.
bool AsksNameless(const EvaluationStatement& statement)
{
    return statement.other.GetName().IsEmpty() && !BeginsWithNull(statement);
}

void JudgeNames(const Case& judged, const EvaluationStatement& statement)
{
    const Description& description = judged.description;
    const std::vector<std::string>& names = ControlNames(description);
    const std::string own = statement.own.GetName().GetString();
    if (description.FindControl(own) == nullptr)
        AddUnknown(judged, "evaluation-control", statement.own.GetSpan(),
                   "there is no control " + InQuotes(own) + ", and so no check",
                   {own, names, "name a control of $LAYOUT"});
    const std::string other = statement.other.GetName().GetString();
    if (!other.empty() && description.FindControl(other) == nullptr && !BeginsWithNull(statement))
        AddUnknown(judged, "evaluation-second", statement.other.GetSpan(),
                   "there is no control " + InQuotes(other) + ": the check always refuses",
                   {other, names, "name a control of $LAYOUT"});
}

void JudgeForm(const Case& judged, const EvaluationStatement& statement)
{
    const std::string own = statement.own.GetName().GetString();
    const bool hasMessage = !statement.messageKey.empty();
    if (!hasMessage)
        judged.findings.Add("evaluation-alone", statement.own.GetSpan(),
                            "the check of " + InQuotes(own) + " has neither a second control nor a message",
                            "write " + own + " = value: key, or " + own + "(value, ...) = control(value, ...): key");
    else if (AsksNameless(statement) && judged.description.FindControl("") != nullptr)
        judged.findings.Add("evaluation-nameless", statement.own.GetSpan(),
                            "the check also asks the control without a name in line " +
                                std::to_string(judged.description.FindControl("")->span.line),
                            "give that control a name");
    const std::string other = statement.other.GetName().GetString();
    if (hasMessage && BeginsWithNull(statement) && !other.empty())
        judged.findings.Add("evaluation-null", statement.other.GetSpan(),
                            "a list that begins with NULL does not look at " + InQuotes(other),
                            "write \"\" instead of NULL");
}

void JudgeChecksTwice(const Case& judged)
{
    std::unordered_map<std::string, const EvaluationStatement*> last;
    for (const EvaluationStatement& statement : judged.description.evaluations)
    {
        const EvaluationStatement*& before = last[statement.own.GetName().GetString()];
        if (before != nullptr)
            judged.findings.Add("evaluation-twice", before->own.GetSpan(),
                                "the check in line " + std::to_string(statement.own.GetSpan().line) +
                                    " takes the place of this one",
                                "put both into one check, or delete one");
        before = &statement;
    }
}

void JudgeUse(const Case& judged, const EvaluationStatement& statement)
{
    const CString& own = statement.own.GetName();
    if (judged.description.FindControl(own.GetString()) == nullptr ||
        judged.description.Index().IsItemOfResult(own.GetString()))
        return;
    judged.findings.Add("evaluation-never", statement.own.GetSpan(),
                        "no output rule has " + InQuotes(own.GetString()) + " among its items, so it is never checked",
                        "add it to the items of the rules in $OUTPUT, parent; one too many does no harm");
}

void JudgeConditions(const Case& judged, const EvaluationStatement& statement)
{
    for (const ClytCtrlValList* list : {&statement.own, &statement.other})
    {
        if (list->GetName().IsEmpty())
            continue;
        JudgeValues(judged, "evaluation-value", *list, ValueWords::Null);
        JudgeReadControl(judged, "evaluation-valueless", list->GetName().GetString(), list->GetSpan());
    }
}

} // namespace

void ApplyEvaluationRules(const Case& judged)
{
    for (const EvaluationStatement& statement : judged.description.evaluations)
    {
        if (judged.description.IsRefused(statement.span.line))
            continue;
        JudgeNames(judged, statement);
        JudgeForm(judged, statement);
        JudgeUse(judged, statement);
        JudgeConditions(judged, statement);
    }
    JudgeChecksTwice(judged);
}

} // namespace lytdlg
