// What the rules say about the separators of the input.
#include "JudgedExample.h"

#include <gtest/gtest.h>

TEST(SeparatorRules, TellOfSeparatorsThatNeverComeIntoPlay)
{
    ExpectFindings({
        {R"($INPUT, parent
    Start: (">", Unit, ">=", Unit = Name)",
         R"(example.dlg:50:25: warning scan-separator: the separator ">" before ">=" wins
        Start: (">", Unit, ">=", Unit = Name
                            ^~
    hint: put the longer one first
)"},
        {R"($INPUT, parent
    Start: ("", Unit, ";", Unit = Name)",
         R"(example.dlg:50:24: warning scan-separator: the empty separator before ";" fits everywhere
        Start: ("", Unit, ";", Unit = Name
                           ^
    hint: put the empty separator last
)"},
        {R"($INPUT, parent
    Start: (";", Unit, ";", Unit = Name)",
         R"(example.dlg:50:25: warning scan-separator: the separator ";" stands here twice
        Start: (";", Unit, ";", Unit = Name
                            ^
    hint: delete one of them
)"},
        {R"($INPUT, parent
    Start: (3, Unit, ";", Unit = Name)",
         R"(example.dlg:50:13: warning scan-length: the separators after it take the place of the length
        Start: (3, Unit, ";", Unit = Name
                ^
    hint: cut by a length or at separators, in two statements
)"},
        {R"($INPUT, parent
    Start: (";", Unit, 3, Unit = Name)",
         R"(example.dlg:50:24: warning scan-length: the length wins over the separators before it
        Start: (";", Unit, 3, Unit = Name
                           ^
    hint: cut by a length or at separators, in two statements
)"},
    });
}

TEST(SeparatorRules, TellOfNumbersThatAreTakenForSeparatorsAndTheOtherWayRound)
{
    ExpectFindings({
        {R"($INPUT, parent
    Start: (0, Unit = Name)",
         R"(example.dlg:50:13: warning scan-number: 0 is no length, and is taken for a separator
        Start: (0, Unit = Name
                ^
    hint: write how many characters the piece has, or "" to cut nothing
)"},
        {R"($INPUT, parent
    Start: ("1", Unit = Name)",
         R"(example.dlg:50:14: warning scan-number: this is a length, also in quotes
        Start: ("1", Unit = Name
                 ^
    hint: no piece can be cut at a number; choose another separator
)"},
        {R"($INPUT, parent
    Start: (-1, Unit = Name)",
         R"(example.dlg:50:13: warning scan-number: a length is 1 or more
        Start: (-1, Unit = Name
                ^~
    hint: write how many characters the piece has
)"},
    });
    ExpectNoFindings({R"($INPUT, parent
    Start: ("0", Unit = Name)"});
}

TEST(SeparatorRules, TellOfTextThatIsCutOrDropped)
{
    ExpectFindings({
        {R"--($INPUT, parent
    Unit: (")", End, Rest, End = Unit)--",
         R"--(example.dlg:51:22: warning scan-rest: "Rest" cuts a text that holds these letters, and is not needed here
        Unit: (")", End, Rest, End = Unit
                         ^~~~
    hint: leave it out: the end of the text ends the piece, and the run
)--"},
        {R"($INPUT, parent
    Unit: (",", End = Unit)",
         R"(example.dlg:51:13: warning scan-dropped: what follows "," in the text is dropped
        Unit: (",", End = Unit
                ^
    hint: go on with another statement; a piece that takes all is (999, End
)"},
    });
}

TEST(SeparatorRules, FindNothingWrongInFairSeparators)
{
    ExpectNoFindings({
        R"(
$INPUT, parent
    Start: (">=", Unit, ">", Unit, "", Unit, Rest, Unit = Name)",
        R"(
$INPUT, parent
    Unit: (Rest, End = Unit)",
        R"(
$INPUT, parent
    Unit: ("]", End = Unit)",
        R"(
$INPUT, parent
    Unit: (",", End))",
    });
}
