// What the rules say about checks.
#include "JudgedExample.h"

#include <gtest/gtest.h>

TEST(EvaluationRules, TellOfChecksThatAreNotMadeAsWritten)
{
    ExpectFindings({
        {R"($EVALUATION, x
    Nmae = NULL: NameMissing)",
         R"(example.dlg:49:5: warning evaluation-control: there is no control "Nmae", and so no check
        Nmae = NULL: NameMissing
        ^~~~
    hint: did you mean "Name"?
)"},
        {R"($EVALUATION, x
    Weather = NULL: NameMissing)",
         R"(example.dlg:49:5: warning evaluation-control: there is no control "Weather", and so no check
        Weather = NULL: NameMissing
        ^~~~~~~
    hint: name a control of $LAYOUT
)"},
        {R"($EVALUATION, x
    Unit("") = Nmae(area): NameMissing)",
         R"(example.dlg:49:16: warning evaluation-second: there is no control "Nmae": the check refuses whatever the user does
        Unit("") = Nmae(area): NameMissing
                   ^~~~
    hint: did you mean "Name"?
)"},
        {R"($EVALUATION, x
    Unit(m, mm))",
         R"(example.dlg:49:5: warning evaluation-alone: the check of "Unit" has neither a second control nor a message
        Unit(m, mm)
        ^~~~
    hint: write Unit = value: key, or Unit(value, ...) = control(value, ...): key
)"},
        {R"($EVALUATION, x
    Unit(NULL) = Name(area): NameMissing)",
         R"(example.dlg:49:18: warning evaluation-null: a list that begins with NULL does not look at "Name"
        Unit(NULL) = Name(area): NameMissing
                     ^~~~
    hint: write "" instead of NULL
)"},
        {R"($LAYOUT Example
    TextBox 520, 12, 100, 19
$EVALUATION, x
    Unit = x: NameMissing)",
         R"(example.dlg:50:5: warning evaluation-nameless: the check also asks the control without a name in line 24
        Unit = x: NameMissing
        ^~~~
    hint: give that control a name
)"},
        {R"($EVALUATION, x
    Unit = NULL: NameMissing
    Unit = x: NameMissing)",
         R"(example.dlg:49:5: warning evaluation-twice: the check in line 50 takes the place of this one
        Unit = NULL: NameMissing
        ^~~~
    hint: put both into one check, or delete one
)"},
        {R"($LAYOUT Example
    TextBox 520, 12, 100, 19, .More
$EVALUATION, x
    More = NULL: NameMissing)",
         R"(example.dlg:50:5: warning evaluation-never: no output rule has "More" among its items, so it is never checked
        More = NULL: NameMissing
        ^~~~
    hint: add it to the items of the rules in $OUTPUT, parent; one too many does no harm
)"},
    });
}

TEST(EvaluationRules, TellOfValuesThatAControlNeverHas)
{
    ExpectFindings({
        {R"($EVALUATION, x
    Order(x) = Name(""): NameMissing)",
         R"(example.dlg:49:11: warning evaluation-value: "Order" never has the value "x"
        Order(x) = Name(""): NameMissing
              ^
    hint: its values are "l", "s"
)"},
        {R"($EVALUATION, x
    Place(hall) = Pictures(on): NameMissing)",
         R"(example.dlg:49:11: warning evaluation-value: "Place" never has the value "hall"
        Place(hall) = Pictures(on): NameMissing
              ^~~~
    hint: its values are "cellar place", "hall place", "stairs place"
example.dlg:49:28: warning evaluation-value: "Pictures" never has the value "on"
        Place(hall) = Pictures(on): NameMissing
                               ^~
    hint: its values are "-", "P"
)"},
        {R"($EVALUATION, x
    Unit(NOTNULL) = Name(""): NameMissing)",
         R"(example.dlg:49:10: warning evaluation-value: "NOTNULL" has no meaning here: the value would have to be this word
        Unit(NOTNULL) = Name(""): NameMissing
             ^~~~~~~
    hint: NOTNULL works in $DEPENDANCES only; name the values, or turn the rule round
)"},
        {R"($EVALUATION, x
    Unit(m) = Short(s): NameMissing)",
         R"(example.dlg:49:15: warning evaluation-valueless: an option has its value whether it is chosen or not
        Unit(m) = Short(s): NameMissing
                  ^~~~~
    hint: name its OptionGroup
)"},
        {R"($EVALUATION, x
    Unit(m) = NameLabel(s): NameMissing)",
         R"(example.dlg:49:15: warning evaluation-valueless: a Text has no value (message 201)
        Unit(m) = NameLabel(s): NameMissing
                  ^~~~~~~~~
    hint: name a control that holds one
)"},
    });
}

TEST(EvaluationRules, FindNothingWrongInAFairCheck)
{
    ExpectNoFindings({
        R"(
$EVALUATION, x
    Order(l) = Place("", hall place): NameMissing)",
        R"(
$EVALUATION, x
    Form(anything) = Form(typed by hand): NameMissing)",
        R"(
$EVALUATION, x
    Pictures(P, -) = Name(NULL): NameMissing)",
        R"(-    Name = NULL: NameMissing)",
    });
}
