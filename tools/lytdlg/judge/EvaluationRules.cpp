#include "lytdlg/judge/EvaluationRules.h"

#include "lytdlg/judge/Conditions.h"
#include "lytdlg/judge/Controls.h"
#include "lytdlg/judge/DescriptionIndex.h"

namespace lytdlg
{

namespace
{
namespace evaluation_rules
{

constexpr Rule unknown = {"evaluation-control",
                          Level::Warning,
                          "A check is for a control that is not there.",
                          "The check is passed over without a message. Names are compared letter by letter.",
                          "$EVALUATION, x\n    Nmae = NULL: NameMissing",
                          "$EVALUATION, x\n    Unit = NULL: NameMissing"};

constexpr Rule second = {
    "evaluation-second",
    Level::Warning,
    "The second control of a check is not there.",
    "The check then refuses whenever the first control has one of its values, whatever else the dialog holds.",
    "$EVALUATION, x\n    Unit(\"\") = Nmae(area): NameMissing",
    "$EVALUATION, x\n    Unit(\"\") = Name(area): NameMissing"};

constexpr Rule alone = {"evaluation-alone",
                        Level::Warning,
                        "A check has neither a second control nor a message.",
                        "What such a check does depends on whether some control of the layout has no name. Without one "
                        "it refuses, and its\nmessage is \"no value present\".",
                        "$EVALUATION, x\n    Unit(m, mm)",
                        "$EVALUATION, x\n    Unit(m, mm) = Name(\"\"): NameMissing"};

constexpr Rule nameless = {
    "evaluation-nameless",
    Level::Warning,
    "A check of one value is made together with a control that has no name.",
    "A check that forbids one value names no second control, and the library takes the last control\n"
    "without a name for it. Give each control of the layout a name, or forbid NULL, which looks at no other control.",
    "$LAYOUT Example\n    TextBox 520, 12, 100, 19\n$EVALUATION, x\n    Unit = x: NameMissing",
    "$LAYOUT Example\n    TextBox 520, 12, 100, 19, .More\n$EVALUATION, x\n    Unit = x: NameMissing"};

constexpr Rule nullFirst = {"evaluation-null",
                            Level::Warning,
                            "A check begins with NULL, and what follows is not looked at.",
                            "A list that begins with NULL refuses the empty value at once; neither its other values "
                            "nor the second control\ncount. Write \"\" for an empty value.",
                            "$EVALUATION, x\n    Unit(NULL) = Name(area): NameMissing",
                            "$EVALUATION, x\n    Unit(\"\") = Name(area): NameMissing"};

constexpr Rule twice = {"evaluation-twice",
                        Level::Warning,
                        "A control has two checks, and the first does not count.",
                        "Only the last check of a control counts.",
                        "$EVALUATION, x\n    Unit = NULL: NameMissing\n    Unit = x: NameMissing",
                        "$EVALUATION, x\n    Unit = x: NameMissing"};

constexpr Rule neverMade = {
    "evaluation-never",
    Level::Warning,
    "A check is never made, since no output rule takes the control.",
    "OK checks the items of the output rule that applies, and no others. An item beyond those that the\n"
    "format takes does no harm: add the control as such an item.",
    "$LAYOUT Example\n    TextBox 520, 12, 100, 19, .More\n$EVALUATION, x\n    More = NULL: NameMissing",
    "$EVALUATION, x\n    Unit = NULL: NameMissing"};

constexpr Rule impossible = {"evaluation-value",
                             Level::Warning,
                             "A check asks for a value that the control never has.",
                             "Values are compared letter by letter, the hidden value of an item and not its text.",
                             "$EVALUATION, x\n    Order(x) = Name(\"\"): NameMissing",
                             "$EVALUATION, x\n    Order(l) = Name(\"\"): NameMissing"};

constexpr Rule valueless = {"evaluation-valueless",
                            Level::Warning,
                            "A check reads a control that has no value of its own.",
                            "Fixed texts, frames and buttons have no value: the library says so at each OK. An "
                            "option always has its value:\nname the group.",
                            "$EVALUATION, x\n    Unit(m) = Short(s): NameMissing",
                            "$EVALUATION, x\n    Unit(m) = Order(s): NameMissing"};

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
        judged.findings.Add(unknown, statement.own.GetSpan(),
                            "there is no control " + InQuotes(own) + ", and so no check",
                            MeantOr(own, names, "name a control of $LAYOUT"));
    const std::string other = statement.other.GetName().GetString();
    if (!other.empty() && description.FindControl(other) == nullptr && !BeginsWithNull(statement))
        judged.findings.Add(second, statement.other.GetSpan(),
                            "there is no control " + InQuotes(other) + ": the check refuses whatever the user does",
                            MeantOr(other, names, "name a control of $LAYOUT"));
}

void JudgeForm(const Case& judged, const EvaluationStatement& statement)
{
    const std::string own = statement.own.GetName().GetString();
    const bool hasMessage = !statement.messageKey.empty();
    if (!hasMessage)
        judged.findings.Add(alone, statement.own.GetSpan(),
                            "the check of " + InQuotes(own) + " has neither a second control nor a message",
                            "write " + own + " = value: key, or " + own + "(value, ...) = control(value, ...): key");
    else if (AsksNameless(statement) && judged.description.FindControl("") != nullptr)
        judged.findings.Add(nameless, statement.own.GetSpan(),
                            "the check also asks the control without a name in line " +
                                std::to_string(judged.description.FindControl("")->span.line),
                            "give that control a name");
    const std::string other = statement.other.GetName().GetString();
    if (hasMessage && BeginsWithNull(statement) && !other.empty())
        judged.findings.Add(nullFirst, statement.other.GetSpan(),
                            "a list that begins with NULL does not look at " + InQuotes(other),
                            "write \"\" instead of NULL");
}

void JudgeTwice(const Case& judged)
{
    std::unordered_map<std::string, const EvaluationStatement*> last;
    for (const EvaluationStatement& statement : judged.description.evaluations)
    {
        const EvaluationStatement*& before = last[statement.own.GetName().GetString()];
        if (before != nullptr)
            judged.findings.Add(twice, before->own.GetSpan(),
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
    judged.findings.Add(neverMade, statement.own.GetSpan(),
                        "no output rule has " + InQuotes(own.GetString()) + " among its items, so it is never checked",
                        "add it to the items of the rules in $OUTPUT, parent; one too many does no harm");
}

void JudgeConditions(const Case& judged, const EvaluationStatement& statement)
{
    for (const ClytCtrlValList* list : {&statement.own, &statement.other})
    {
        if (list->GetName().IsEmpty())
            continue;
        JudgeValues(judged, impossible, *list, ValueWords::Null);
        JudgeReadControl(judged, valueless, list->GetName().GetString(), list->GetSpan());
    }
}

} // namespace evaluation_rules
} // namespace

Family EvaluationRules()
{
    using namespace evaluation_rules;
    return {{&unknown, &second, &alone, &nameless, &nullFirst, &twice, &neverMade, &impossible, &valueless},
            [](const Case& judged)
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
                JudgeTwice(judged);
            }};
}

} // namespace lytdlg
