// Statements of the dependencies section:
//
//     name / state word =
//     name / state word = condition, ...        condition: control [ (value, ...) ]
#include "dlgfile/ClytDialogFile.h"

#include "model/ClytControlDep.h"

int ClytDialogFile::ReadDependencyStatement(ClytControlDep& rule)
{
    return ReadStatement(
        [&]
        {
            POSITION token = nullptr;
            if (ReadSectionLine(token, ClytLineKind::Dependencies) == 0)
                return 0;
            if (token != nullptr)
                ReadDependency(token, rule);
            return 1;
        });
}

void ClytDialogFile::ReadDependency(POSITION token, ClytControlDep& rule)
{
    const ClytToken& name = Next(token);
    Expect(name.GetDelimiter() == '/', ClytDue::StateSign);
    rule.span = GetStatementPlace();
    rule.controlName = name.GetText();
    const ClytToken& word = Next(token, ClytDue::StateWord);
    Expect(word.GetDelimiter() == '=', ClytDue::ConditionsSign);
    rule.stateWord = word.GetText();
    while (token != nullptr)
        ReadDependencyCondition(token, rule.conditions);
}

void ClytDialogFile::ReadDependencyCondition(POSITION& token, ClytConditions& conditions)
{
    const ClytToken* end = &Next(token);
    ClytCtrlValList& condition = conditions.AddTail(std::make_unique<ClytCtrlValList>(end->GetText(), PlaceOf(*end)));
    if (end->GetDelimiter() == '(')
    {
        ReadValueList(token, condition.GetValues());
        if (token == nullptr)
            return;
        // This is the empty token after the `)`. Only its delimiter counts, so a word in this place is ignored.
        end = &Next(token);
    }
    Expect(end->GetDelimiter() == ',' || end->GetDelimiter() == '\n', ClytDue::ConditionEnd);
}
