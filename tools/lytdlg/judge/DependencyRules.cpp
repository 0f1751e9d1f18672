#include "lytdlg/judge/DependencyRules.h"

#include "lytdlg/judge/Conditions.h"
#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/Lists.h"

#include <algorithm>
#include <map>

namespace lytdlg
{

namespace
{
namespace dependency_rules
{

constexpr Rule unknownControl = {
    "rule-control-unknown",
    Level::Warning,
    "A rule acts on a control that is not there.",
    "The rule is dropped, but its conditions go to the next rule that is kept, which then asks for too\n"
    "much. Check the spelling.",
    "$DEPENDANCES\nUnti/ACTIVE = Name(NOTNULL)\nUnit/ACTIVE = Name(NOTNULL)",
    "$DEPENDANCES\nUnit/ACTIVE = Name(NOTNULL)"};

constexpr Rule unknownState = {
    "state-unknown",
    Level::Warning,
    "A state word is unknown, and the rule shows and hides its control.",
    "The words are VISIBLE, ACTIVE, CLEAR, FILL and DEFBUTTON, letter by letter. Any other word does\n"
    "what VISIBLE does.",
    "$DEPENDANCES\nUnit/ENABLED = Name(NOTNULL)",
    "$DEPENDANCES\nUnit/ACTIVE = Name(NOTNULL)"};

constexpr Rule onDefault = {"state-on-ok",
                            Level::Warning,
                            "A rule sets a state of the OK or the Cancel button, which has none.",
                            "OK and Cancel are always there. What must not be confirmed is refused by $EVALUATION.",
                            "$DEPENDANCES\nOk/ACTIVE = Name(NOTNULL)",
                            "$EVALUATION, x\nUnit = NULL: NameMissing"};

constexpr Rule eventValues = {"event-values",
                              Level::Warning,
                              "A rule CLEAR or FILL lists values, which are not looked at.",
                              "CLEAR and FILL happen when any of the named controls has changed, whatever it holds.",
                              "$DEPENDANCES\nUnit/CLEAR = Name(a)",
                              "$DEPENDANCES\nUnit/CLEAR = Name"};

constexpr Rule eventKind = {"event-kind",
                            Level::Warning,
                            "A rule CLEAR or FILL acts on a control that supports neither.",
                            "Fields and lists can be emptied and filled. Any other control shows message 247 instead.",
                            "$DEPENDANCES\nPictures/CLEAR = Name",
                            "$DEPENDANCES\nUnit/CLEAR = Name"};

constexpr Rule noSource = {
    "fill-without-source",
    Level::Warning,
    "A rule FILL acts on a control without FILLEDBY.",
    "FILL asks the library that a statement FILLEDBY of $VALUES names. Without it a list is only\n"
    "emptied.",
    "$DEPENDANCES\nRooms/FILL = Name",
    "$VALUES\nRooms = FILLEDBY, lytdata, OpenList, NextItem\n$DEPENDANCES\nRooms/FILL = Name"};

constexpr Rule defaultButton = {
    "default-button",
    Level::Warning,
    "A rule DEFBUTTON acts on a control that is no push button.",
    "Return in the named controls presses the button of the rule. With another control only the rules\n"
    "run.",
    "$DEPENDANCES\nUnit/DEFBUTTON = AllRooms",
    "$DEPENDANCES\nAdd/DEFBUTTON = AllRooms"};

constexpr Rule twice = {"rule-twice",
                        Level::Warning,
                        "Two rules set the same state of the same control.",
                        "Rules run in the order of the file, so the later of the two decides. Write one rule with all\n"
                        "conditions.",
                        "$DEPENDANCES\nUnit/ACTIVE = Name(NOTNULL)\nUnit/ACTIVE = Pictures(P)",
                        "$DEPENDANCES\nUnit/ACTIVE = Pictures(P), Name(NOTNULL)"};

constexpr Rule hidden = {"hidden-shown",
                         Level::Warning,
                         "A rule shows a control that is HIDDEN.",
                         "HIDDEN is for a control that nobody ever sees. One that a rule shows begins INVISIBLE.",
                         "$VALUES\nUnit = HIDDEN\n$DEPENDANCES\nUnit/VISIBLE = Name(NOTNULL)",
                         "$VALUES\nUnit = INVISIBLE\n$DEPENDANCES\nUnit/VISIBLE = Name(NOTNULL)"};

constexpr Rule onItself = {
    "rule-on-itself",
    Level::Warning,
    "A rule depends on the control that it acts on.",
    "A disabled control fails its condition, so a control that disables itself stays disabled; one\n"
    "that empties itself erases whatever is typed.",
    "$DEPENDANCES\nUnit/ACTIVE = Unit(m)",
    "$DEPENDANCES\nUnit/ACTIVE = Name(m)"};

constexpr Rule never = {
    "rule-never",
    Level::Warning,
    "A rule never holds.",
    "All conditions of VISIBLE and ACTIVE must hold at once. Two of one control without a value in common\n"
    "never do, and CLEAR, FILL and DEFBUTTON without any control have nothing to wait for.",
    "$DEPENDANCES\nUnit/ACTIVE = Name(a), Name(b)",
    "$DEPENDANCES\nUnit/ACTIVE = Name(a, b)"};

constexpr Rule always = {
    "rule-always",
    Level::Warning,
    "A rule has no condition, and always holds.",
    "The control is shown or enabled whatever the user does. Name the conditions after the equals sign.",
    "$DEPENDANCES\nUnit/ACTIVE =",
    "$DEPENDANCES\nUnit/ACTIVE = Name(NOTNULL)"};

bool IsStateRule(const ClytControlDep& rule)
{
    return !rule.IsEventRule() && rule.stateWord.GetMeaning() != ClytState::DefButton;
}

// A rule with what the description says of its control.
struct Judged
{
    const Case& judged;
    const ClytControlDep& rule;
    const ClytControlDep* next; // that is kept; null when there is none
    const Kind kind;

    std::string Name() const { return rule.controlName.GetString(); }
    const Description& Of() const { return judged.description; }
    ClytSpan PlaceOfName() const
    {
        return {rule.span.line, rule.span.column, std::max(1, rule.controlName.GetLength())};
    }
    ClytSpan PlaceOfWord() const
    {
        return Of().PlaceOf(rule.span.line, rule.stateWord.GetText().GetString(),
                            rule.span.column + rule.controlName.GetLength());
    }
    void Add(const Rule& found, const ClytSpan& place, std::string message, std::string hint) const
    {
        judged.findings.Add(found, place, std::move(message), std::move(hint));
    }
};

void JudgeControl(const Judged& each)
{
    const std::string carried =
        each.next != nullptr ? ", and its conditions go to the rule of line " + std::to_string(each.next->span.line)
                             : ", and does nothing";
    each.Add(unknownControl, each.PlaceOfName(),
             "no control is called " + InQuotes(each.Name()) + "; the rule is dropped" + carried,
             MeantOr(each.Name(), ControlNames(each.Of()), "use the name of a control"));
}

void JudgeWord(const Judged& each)
{
    const std::string word = each.rule.stateWord.GetText().GetString();
    if (each.rule.stateWord.GetMeaning() == ClytState::Other)
        each.Add(unknownState, each.PlaceOfWord(),
                 InQuotes(word) + " is no state; the rule shows and hides the control",
                 MeantOr(word, WordsOf<ClytState>(), "use VISIBLE, ACTIVE, CLEAR, FILL or DEFBUTTON"));
    if (IsDefault(each.kind) && IsStateRule(each.rule))
        each.Add(onDefault, each.PlaceOfName(),
                 std::string(NameOf(each.kind)) + " has no states; the rule does nothing",
                 "refuse what must not be confirmed in $EVALUATION");
    if (each.rule.stateWord.GetMeaning() == ClytState::DefButton && each.kind != Kind::Button)
        each.Add(defaultButton, each.PlaceOfName(),
                 InQuotes(each.Name()) + " is " + NameOf(each.kind) + " and cannot be pressed", "name a push button");
    if (each.rule.stateWord.GetMeaning() == ClytState::Visible && HasOption(each.Of(), each.Name(), ClytOption::Hidden))
        each.Add(hidden, each.PlaceOfName(), InQuotes(each.Name()) + " is HIDDEN, and this rule shows it",
                 "make it INVISIBLE in $VALUES, or delete the rule");
}

void JudgeEvent(const Judged& each)
{
    if (!each.rule.IsEventRule())
        return;
    const std::string word = each.rule.stateWord.GetText().GetString();
    if (!IsFilledByLibrary(each.kind))
        each.Add(eventKind, each.PlaceOfName(),
                 InQuotes(each.Name()) + " is " + NameOf(each.kind) + " and does not know " + word,
                 "use it for fields and lists");
    else if (each.rule.stateWord.GetMeaning() == ClytState::Fill &&
             LastStatementOf(each.Of(), each.Name(), Role::Source) == nullptr)
        each.Add(noSource, each.PlaceOfWord(), "no statement FILLEDBY says what fills " + InQuotes(each.Name()),
                 "add " + InQuotes(each.Name() + " = FILLEDBY, LIBRARY, FUNCTION, NEXT") + " to $VALUES");
    for (const ClytCtrlValList* condition : Records(each.rule.conditions))
    {
        if (!condition->GetValues().IsEmpty())
            each.Add(eventValues, condition->GetSpan(), word + " does not look at the values in brackets",
                     "name the control alone");
    }
}

void JudgeNever(const Judged& each)
{
    const bool isAlone = each.rule.conditions.IsEmpty();
    if (isAlone && !IsStateRule(each.rule))
    {
        each.Add(never, each.PlaceOfWord(), "no control is named; the rule never acts",
                 "name the controls after the equals sign");
        return;
    }
    if (!IsStateRule(each.rule))
        return;
    if (isAlone)
        each.Add(always, each.PlaceOfWord(), "no condition is named; the rule always holds",
                 "name the conditions after the equals sign");
    for (const ClytCtrlValList* condition : Contradictions(each.rule.conditions))
        each.Add(never, condition->GetSpan(),
                 InQuotes(condition->GetName().GetString()) + " cannot hold both at once; the rule never holds",
                 "of the values in one pair of brackets one is enough");
}

void JudgeSelf(const Judged& each)
{
    for (const ClytCtrlValList* condition : Records(each.rule.conditions))
    {
        const ClytState meaning = each.rule.stateWord.GetMeaning();
        const bool isHarmful = meaning == ClytState::Active || each.rule.IsEventRule();
        if (isHarmful && condition->GetName() == each.rule.controlName)
            each.Add(onItself, condition->GetSpan(), "the rule depends on the control that it acts on",
                     "delete the condition, or name another control");
    }
}

void JudgeTwice(const Case& judged)
{
    std::map<std::pair<std::string, ClytState>, const ClytControlDep*> last;
    for (const ClytControlDep* rule : Records(judged.description.rules))
    {
        const ClytState meaning = rule->stateWord.GetMeaning();
        if (meaning != ClytState::Visible && meaning != ClytState::Active)
            continue;
        const ClytControlDep*& before = last[{rule->controlName.GetString(), meaning}];
        if (before != nullptr)
            judged.findings.Add(twice, judged.description.PlaceOf(before->span.line),
                                "the rule of line " + std::to_string(rule->span.line) +
                                    " sets the same state and decides",
                                "write one rule with the conditions of both");
        before = rule;
    }
}

} // namespace dependency_rules
} // namespace

Family DependencyRules()
{
    using namespace dependency_rules;
    return {{&unknownControl, &unknownState, &onDefault, &eventValues, &eventKind, &noSource, &defaultButton, &twice,
             &hidden, &onItself, &never, &always},
            [](const Case& judged)
            {
                std::vector<const ClytControlDep*> rules = Records(judged.description.rules);
                std::ranges::reverse(rules);
                const ClytControlDep* next = nullptr;
                for (const ClytControlDep* rule : rules)
                {
                    const std::string name = rule->controlName.GetString();
                    const Judged each = {judged, *rule, next, KindOfControl(judged.description, name)};
                    if (judged.description.FindControl(name) != nullptr)
                        next = rule;
                    else
                        JudgeControl(each);
                    if (each.kind == Kind::Unknown)
                        continue;
                    JudgeWord(each);
                    JudgeEvent(each);
                    JudgeNever(each);
                    JudgeSelf(each);
                }
                JudgeTwice(judged);
            }};
}

} // namespace lytdlg
