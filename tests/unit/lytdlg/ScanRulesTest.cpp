// What the rules say about input parts and the way from statement to statement.
#include "JudgedExample.h"

#include <gtest/gtest.h>

TEST(ScanRules, TellOfPartsThatAreNotRun)
{
    ExpectFindings({
        {R"($INPUT, Entrance)",
         R"(example.dlg:52:1: note scan-part-unused: no button runs the part "Entrance"
    $INPUT, Entrance
    ^~~~~~~~~~~~~~~~
    hint: name it in a button's DIALOG or ACTION, or delete it
)"},
        {R"($INPUT, parent
-Start: (";", Unit = Name
    start: (";", Unit = Name)",
         R"(example.dlg:51:5: warning scan-start: the part "parent" has no statement "Start", so its run ends at once
        start: (";", Unit = Name
        ^~~~~
    hint: did you mean "Start"?
)"},
        {R"($INPUT, parent
-Start: (";", Unit = Name)",
         R"(example.dlg:49:1: warning scan-start: the part "parent" has no statement "Start", so its run ends at once
    $INPUT, parent
    ^~~~~~~~~~~~~~
    hint: call the first statement "Start"
)"},
        {R"($INPUT,  parent
    Start: (999, End = Name)",
         R"(example.dlg:49:1: warning scan-part-twice: the part "parent" in line 52 takes the place of this one
    $INPUT, parent
    ^~~~~~~~~~~~~~
    hint: give each part a name of its own
)"},
        {R"($INPUT, Back
    Start: (999, End = Name)",
         R"(example.dlg:52:1: note scan-part-unused: no button runs the part "Back"
    $INPUT, Back
    ^~~~~~~~~~~~
    hint: name it in a button's DIALOG or ACTION, or delete it
)"},
    });
}

TEST(ScanRules, TellOfStatementsThatLeadNowhereOrAreNotReached)
{
    ExpectFindings({
        {R"--($INPUT, parent
    Unit: (")", Edn = Unit)--",
         R"--(example.dlg:51:17: warning scan-target: no statement is called "Edn", and so the run ends
        Unit: (")", Edn = Unit
                    ^~~
    hint: did you mean "End"?
)--"},
        {R"--($INPUT, parent
    Unit: (")", Somewhere = Unit)--",
         R"--(example.dlg:51:17: warning scan-target: no statement is called "Somewhere", and so the run ends
        Unit: (")", Somewhere = Unit
                    ^~~~~~~~~
    hint: write End where the run is to end
)--"},
        {R"($INPUT, parent
    Unit: (5,))",
         R"(example.dlg:51:5: warning scan-target: the statement names none to go on with, and so the run ends
        Unit: (5,)
        ^~~~
    hint: write End where the run is to end
)"},
        {R"--($INPUT, parent
    Extra: (")", Unit = Name)--",
         R"--(example.dlg:52:5: warning scan-unreached: no statement leads to "Extra"
        Extra: (")", Unit = Name
        ^~~~~
    hint: name it as a target, or delete it
)--"},
        {R"($INPUT, parent
    Unit : (999, End = Unit)",
         R"(example.dlg:51:5: warning scan-twice: the statement "Unit" in line 52 takes the place of this one
        Unit: (999, End = Unit
        ^~~~
    hint: give each statement of a part a name of its own
)"},
    });
}

TEST(ScanRules, TellOfCircles)
{
    ExpectFindings({
        {R"($INPUT, parent
    Unit: (1, Unit = Unit)",
         R"(example.dlg:51:5: error scan-circle: the run goes round in a circle at the end of the text: "Unit" -> "Unit" (message 206)
        Unit: (1, Unit = Unit
        ^~~~
    hint: cut at separators and let the end of the text end the run, or lead to End
)"},
        {R"($INPUT, parent
    Start: x = Unit
    Unit: x = Start)",
         R"(example.dlg:50:5: error scan-circle: the run goes round in a circle: "Start" -> "Unit" -> "Start" (message 206)
        Start: x = Unit
        ^~~~~
    hint: let one of these statements cut something, or lead to End
)"},
        {R"($INPUT, parent
    Start: ("", Unit = Name
    Unit: ("", Start = Unit)",
         R"(example.dlg:50:5: error scan-circle: the run goes round in a circle: "Start" -> "Unit" -> "Start" (message 206)
        Start: ("", Unit = Name
        ^~~~~
    hint: let one of these statements cut something, or lead to End
)"},
        {R"($INPUT, parent
    Unit: (";", Unit, Rest, Unit = Rooms(ADD))",
         R"(example.dlg:51:5: error scan-circle: the run goes round in a circle at the end of the text: "Unit" -> "Unit" (message 206)
        Unit: (";", Unit, Rest, Unit = Rooms(ADD)
        ^~~~
    hint: cut at separators and let the end of the text end the run, or lead to End
)"},
        {R"($INPUT, parent
    Unit: Name(x) = End, Unit)",
         R"(example.dlg:51:5: warning scan-circle-condition: the run goes round in a circle, when the controls hold what leads there: "Unit" -> "Unit" (message 206)
        Unit: Name(x) = End, Unit
        ^~~~
    hint: let one of these statements cut something, or lead to End
)"},
    });
}

TEST(ScanRules, TellWhereTheFirstLineHoldsAComment)
{
    ExpectFindings({
        {R"($INPUT, parent
    Start: (";", Unit = Name ; up to the semicolon)",
         R"(example.dlg:50:30: warning scan-first-line: in the line after a header a `;` does not separate: it belongs to the word before it
        Start: (";", Unit = Name ; up to the semicolon
                                 ^
    hint: put a comment line between the header and this line
)"},
    });
}

TEST(ScanRules, FindNothingWrongInAFairPart)
{
    ExpectNoFindings({
        R"(
$INPUT, parent
    Unit: (";", Unit = Rooms(ADD))",
        R"(
$INPUT, parent
    Start: (":", Unit, Rest, Whole = Name
    Whole: Name("") = Fresh, End
    Fresh: ("x", End = Unit = 2)",
        R"(
$INPUT, parent
-Start: (";", Unit = Name
-Unit: (999, End = Unit
    ; a comment
    Start: (";", Unit = Name ; and one at the end of a line
    Unit: (999, End = Unit)",
        R"(
$INPUT, parent
    Start: (";", Unit = Name, Unit = "a;b" )",
        R"(
$LAYOUT Example
    PushButton 520, 12, 96, 21, "Remove", .More
$VALUES
    More: DIALOG = other, Back, Out
$INPUT, Back
    Start: (999, End = Name
$OUTPUT, Out
    ("%s", Name))",
    });
}
