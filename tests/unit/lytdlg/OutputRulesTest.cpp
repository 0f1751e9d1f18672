// What the rules say about groups, conditions and items of the output.
#include "JudgedExample.h"

#include <gtest/gtest.h>

TEST(OutputRules, TellOfGroupsThatComposeNothing)
{
    ExpectFindings({
        {R"($OUTPUT, parent
    Pictures(P, -) = ("%s%s", Name, Unit))",
         R"(example.dlg:54:5: warning output-unreached: the rule in line 53 always holds, so this one is never used
        ("%s;%s;%s;%s;%s;%s", Name, Unit, Place, Form, Order, Pictures)
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: put it before that rule
)"},
        {R"($EVALUATION, x
-    Name = NULL: NameMissing
$OUTPUT, parent
-    ("%s;%s;%s;%s;%s;%s", Name, Unit, Place, Form, Order, Pictures))",
         R"(example.dlg:51:1: warning output-parent: there is no rule for the dialog's result, and OK does nothing
    $OUTPUT, parent
    ^~~~~~~~~~~~~~~
    hint: add a rule, as ("%s", Name)
)"},
        {R"($OUTPUT,result)",
         R"(example.dlg:52:9: warning output-first: the first group is the result of the dialog, whatever its name
    $OUTPUT,result
            ^~~~~~
    hint: write "$OUTPUT, parent", and put other groups after it
)"},
        {R"($VALUES
    Parts = FILLEDBY, lytdata, Open, Next, Out
$OUTPUT, Out
    ("%s", Name)
$OUTPUT,  Out
    ("%s", Unit))",
         R"(example.dlg:55:1: warning output-twice: the group "Out" in line 57 takes the place of this one
    $OUTPUT,  Out
    ^~~~~~~~~~~~~
    hint: give each group a name of its own
)"},
        {R"($OUTPUT, Out
    ("%s", Name))",
         R"(example.dlg:54:1: note output-unused: nothing uses the group "Out"
    $OUTPUT, Out
    ^~~~~~~~~~~~
    hint: name it in a FILLEDBY, DIALOG or ACTION, or delete it
)"},
        {R"($VALUES
    Parts = FILLEDBY, lytdata, Open, Next, Out
$OUTPUT, Out)",
         R"(example.dlg:55:1: warning output-empty: the group "Out" has no rule
    $OUTPUT, Out
    ^~~~~~~~~~~~
    hint: add one, as ("%s", Name)
)"},
    });
}

TEST(OutputRules, TellOfRulesThatAreNeverUsedOrMissing)
{
    ExpectFindings({
        {R"($OUTPUT, parent
    Name = ("%s", Name)
-    ("%s;%s;%s;%s;%s;%s", Name, Unit, Place, Form, Order, Pictures))",
         R"(example.dlg:53:5: warning output-last: OK does nothing when this rule does not hold either
        Name = ("%s", Name)
        ^~~~~~~~~~~~~~~~~~~
    hint: add a last rule without conditions
)"},
        {R"($OUTPUT, parent
    ("%s", Name))",
         R"(example.dlg:54:5: warning output-unreached: the rule in line 53 always holds, so this one is never used
        ("%s;%s;%s;%s;%s;%s", Name, Unit, Place, Form, Order, Pictures)
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: put it before that rule
)"},
        {R"($OUTPUT, parent
    Name(a, b) = ("%s", Unit)
    Name(a), Unit(m) = ("%s", Name))",
         R"(example.dlg:54:5: warning output-shadowed: the rule in line 53 holds whenever this one does, so this one is never used
        Name(a), Unit(m) = ("%s", Name)
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: put it before that rule
)"},
        {R"($OUTPUT, parent
    Name(a) = ("%s", Unit)
    Name(a, b) = ("%s", Name))",
         ""},
        {R"($OUTPUT, parent
    Name(a), Unit(m), Name(b) = ("%s", Unit))",
         R"(example.dlg:53:23: warning output-never: "Name" cannot hold both at once; the rule never holds
        Name(a), Unit(m), Name(b) = ("%s", Unit)
                          ^~~~
    hint: of the values in one pair of brackets one is enough
)"},
        {R"($OUTPUT, parent
    Form("") = ("%.s", Name))",
         R"(example.dlg:53:18: warning format-conversion: "%.s" takes an item and leaves nothing of it
        Form("") = ("%.s", Name)
                     ^~~
    hint: write %s, or %.5s for the first five characters
)"},
        {R"($OUTPUT, parent
    Name(NUL) = ("%s", Unit))",
         R"(example.dlg:53:10: warning output-condition-value: "NUL" is taken for a value
        Name(NUL) = ("%s", Unit)
             ^~~
    hint: did you mean "NULL"?
)"},
        {R"($OUTPUT, parent
    Name(Null) = ("%s", Unit))",
         R"(example.dlg:53:10: warning output-condition-value: "Null" is taken for a value
        Name(Null) = ("%s", Unit)
             ^~~~
    hint: did you mean "NULL"?
)"},
    });
}

TEST(OutputRules, TellOfConditionsThatFail)
{
    ExpectFindings({
        {R"($OUTPUT, parent
    Unti("") = ("%s", Name))",
         R"(example.dlg:53:5: error output-condition: there is no control "Unti" (message 245)
        Unti("") = ("%s", Name)
        ^~~~
    hint: did you mean "Unit"?
)"},
        {R"($OUTPUT, parent
    Weather = ("%s", Name))",
         R"(example.dlg:53:5: error output-condition: there is no control "Weather" (message 245)
        Weather = ("%s", Name)
        ^~~~~~~
    hint: name a control of $LAYOUT
)"},
        {R"($OUTPUT, parent
    Unit(NOTNULL), Order(x) = ("%s", Name))",
         R"(example.dlg:53:10: warning output-condition-value: "NOTNULL" has no meaning here: the value would have to be this word
        Unit(NOTNULL), Order(x) = ("%s", Name)
             ^~~~~~~
    hint: NOTNULL works in $DEPENDANCES only; name the values, or turn the rule round
example.dlg:53:26: warning output-condition-value: "Order" never has the value "x"
        Unit(NOTNULL), Order(x) = ("%s", Name)
                             ^
    hint: its values are "l", "s"
)"},
        {R"($OUTPUT, parent
    Short(s), NameLabel("") = ("%s", Name))",
         R"(example.dlg:53:5: warning output-valueless: an option has its value whether it is chosen or not
        Short(s), NameLabel("") = ("%s", Name)
        ^~~~~
    hint: name its OptionGroup
example.dlg:53:15: warning output-valueless: a Text has no value (message 201)
        Short(s), NameLabel("") = ("%s", Name)
                  ^~~~~~~~~
    hint: name a control that holds one
)"},
    });
}

TEST(OutputRules, TellOfItemsThatAreNotWhatTheySeem)
{
    ExpectFindings({
        {R"($OUTPUT, parent
    Form("") = ("%s%s", Nmae, unit))",
         R"(example.dlg:53:25: warning output-item: there is no control "Nmae": the word itself goes into the text
        Form("") = ("%s%s", Nmae, unit)
                            ^~~~
    hint: did you mean "Name"? Put a text in quotes
example.dlg:53:31: warning output-item: there is no control "unit": the word itself goes into the text
        Form("") = ("%s%s", Nmae, unit)
                                  ^~~~
    hint: did you mean "Unit"? Put a text in quotes
)"},
        {R"($OUTPUT, parent
    Form("") = ("%s", Rums("|")))",
         R"(example.dlg:53:23: warning output-item: there is no list "Rums": the word itself goes into the text
        Form("") = ("%s", Rums("|"))
                          ^~~~
    hint: name a list of $LAYOUT
)"},
        {R"($OUTPUT, parent
    Form("") = ("%s", Short, Name))",
         R"(example.dlg:53:23: warning output-valueless: an option has its value whether it is chosen or not
        Form("") = ("%s", Short, Name)
                          ^~~~~
    hint: name its OptionGroup
)"},
        {R"($OUTPUT, parent
    Form("") = ("%s%s", Name, Unit("|")))",
         R"(example.dlg:53:31: warning output-list: a TextBox has no items: this is empty
        Form("") = ("%s%s", Name, Unit("|"))
                                  ^~~~
    hint: leave the brackets out, or name a list
)"},
        {R"($VALUES
    Form = FILLEDBY, lytdata, Open, Next
$OUTPUT, parent
    Name("") = ("%s%s", Name, Form("|")))",
         R"(example.dlg:54:31: warning output-combo: items of "Form" that are no text keys go out as "no value present"
        Name("") = ("%s%s", Name, Form("|"))
                                  ^~~~
    hint: take a ListBox or CheckListBox
)"},
        {R"($OUTPUT, parent
    Form("") = ("%s%s", Name, Rooms(" plus ")))",
         R"(example.dlg:53:31: warning output-separator: only the first three characters in the brackets count
        Form("") = ("%s%s", Name, Rooms(" plus "))
                                  ^~~~~
    hint: one between the items, one before them and one after them
)"},
        {R"($OUTPUT, parent
    Form("") = ("%s%s", Name, Rooms()))",
         R"(example.dlg:53:31: note output-blanks: a blank comes before, between and after the items
        Form("") = ("%s%s", Name, Rooms())
                                  ^~~~~
    hint: name a separator, as Rooms("|")
)"},
    });
}

TEST(OutputRules, FindNothingWrongInAFairOutput)
{
    ExpectNoFindings({
        R"(
$OUTPUT, parent
    Form("") = ("%s%s%s%s", Name, "Unti", %, m))",
        R"(
$OUTPUT, parent
    Form("") = ("%s%s%s", Rooms("|"), Parts("|[]"), Form(";")))",
        R"(
$OUTPUT, parent
    NameLabel = ("%s", Name))",
        R"(
$VALUES
    Parts = FILLEDBY, lytdata, Open, Next, Out
$OUTPUT, Out
    Order(s) = ("short")
    ("%s", Name))",
    });
}
