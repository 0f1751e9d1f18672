// What the rules say about fills and conditions of the input.
#include "JudgedExample.h"

#include <gtest/gtest.h>

TEST(FillRules, TellOfUnknownControls)
{
    ExpectFindings({
        {R"($INPUT, parent
    Unit: (999, End = Uniit)",
         R"(example.dlg:51:23: warning scan-fill: there is no control "Uniit", and so the piece is lost
        Unit: (999, End = Uniit
                          ^~~~~
    hint: did you mean "Unit"?
)"},
        {R"($INPUT, parent
    Unit: (999, End = Weather)",
         R"(example.dlg:51:23: warning scan-fill: there is no control "Weather", and so the piece is lost
        Unit: (999, End = Weather
                          ^~~~~~~
    hint: name a control of $LAYOUT
)"},
        {R"($INPUT, parent
    Unit: Nmae(x) = Tail, Tail
    Tail: (999, End = Unit)",
         R"(example.dlg:51:11: warning scan-condition: there is no control "Nmae", and so it never holds
        Unit: Nmae(x) = Tail, Tail
              ^~~~
    hint: did you mean "Name"?
)"},
    });
}

TEST(FillRules, TellOfConditionsThatNeverHold)
{
    ExpectFindings({
        {R"($INPUT, parent
    Unit: Name(NULL) = End, Tail
    Tail: (999, End = Unit)",
         R"(example.dlg:51:16: warning scan-condition-value: "NULL" has no meaning here: the value would have to be this word
        Unit: Name(NULL) = End, Tail
                   ^~~~
    hint: write "" for an empty value
)"},
        {R"($INPUT, parent
    Unit: Name(null) = End, Tail
    Tail: (999, End = Unit)",
         R"(example.dlg:51:16: warning scan-condition-value: "null" has no meaning here: the value would have to be this word
        Unit: Name(null) = End, Tail
                   ^~~~
    hint: write "" for an empty value
)"},
        {R"($INPUT, parent
    Unit: Place(hall palce) = End, Tail
    Tail: (999, End = Unit)",
         R"(example.dlg:51:17: warning scan-condition-value: "Place" never has the value "hall palce"
        Unit: Place(hall palce) = End, Tail
                    ^~~~~~~~~~
    hint: did you mean "hall place"?
)"},
        {R"($INPUT, parent
    Unit: Short(s) = End, Tail
    Tail: (999, End = Unit)",
         R"(example.dlg:51:11: warning scan-condition-valueless: an option has its value whether it is chosen or not
        Unit: Short(s) = End, Tail
              ^~~~~
    hint: name its OptionGroup
)"},
    });
}

TEST(FillRules, TellOfActionsThatDoNothing)
{
    ExpectFindings({
        {R"($INPUT, parent
    Unit: (999, End = Rooms(Concat, "|"))",
         R"(example.dlg:51:29: warning scan-action: "Concat" is no action: the piece becomes the value of "Rooms"
        Unit: (999, End = Rooms(Concat, "|")
                                ^~~~~~
    hint: did you mean "CONCAT"?
)"},
        {R"($INPUT, parent
    Unit: (999, End = Unit(PUT))",
         R"(example.dlg:51:28: warning scan-action: "PUT" is no action: the piece becomes the value of "Unit"
        Unit: (999, End = Unit(PUT)
                               ^~~
    hint: the actions are FILL, ADD, MODIFY and CONCAT
)"},
        {R"($INPUT, parent
    Unit: (999, End = Form(CONCAT, "|"))",
         R"(example.dlg:51:28: warning scan-action-idle: CONCAT does nothing on a ComboBox
        Unit: (999, End = Form(CONCAT, "|")
                               ^~~~~~
    hint: use ADD, or a ListBox or CheckListBox
)"},
        {R"($INPUT, parent
    Unit: (999, End = Unit(ADD))",
         R"(example.dlg:51:28: warning scan-action-idle: ADD does nothing on a TextBox
        Unit: (999, End = Unit(ADD)
                               ^~~
    hint: name a list
)"},
        {R"($INPUT, parent
    Unit: (999, End = NameLabel)",
         R"(example.dlg:51:23: warning scan-action-idle: a Text takes no value (message 200)
        Unit: (999, End = NameLabel
                          ^~~~~~~~~
    hint: name a control that holds one
)"},
        {R"($INPUT, parent
    Unit: (999, End = Parts(FILL))",
         R"(example.dlg:51:23: warning scan-fill-source: "Parts" has no FILLEDBY statement to fill it by (message 251)
        Unit: (999, End = Parts(FILL)
                          ^~~~~
    hint: add one to $VALUES
)"},
        {R"($INPUT, parent
    Unit: (999, End = Unit(FILL))",
         R"(example.dlg:51:23: warning scan-fill-source: "Unit" has no FILLEDBY statement to fill it by
        Unit: (999, End = Unit(FILL)
                          ^~~~
    hint: add one to $VALUES
)"},
        {R"($INPUT, parent
    Unit: (999, End = Rooms(CONCAT, "|;/"))",
         R"(example.dlg:51:29: warning scan-concat: with more than two characters after it, CONCAT adds nothing
        Unit: (999, End = Rooms(CONCAT, "|;/")
                                ^~~~~~
    hint: name one or two separators
)"},
    });
}

TEST(FillRules, TellOfValuesThatAreNotTaken)
{
    ExpectFindings({
        {R"($INPUT, parent
    Unit: (999, End = Unit, Order = x)",
         R"(example.dlg:51:37: warning scan-value: "Order" has no value "x"
        Unit: (999, End = Unit, Order = x
                                        ^
    hint: give it one of the values that $VALUES names
)"},
        {R"($INPUT, parent
    Unit: (999, End = Unit, Place = Hall)",
         R"(example.dlg:51:37: warning scan-value: "Place" has no value "Hall"
        Unit: (999, End = Unit, Place = Hall
                                        ^~~~
    hint: give it one of the values that $VALUES names
)"},
        {R"($LAYOUT Example
    ListBox 520, 12, 100, 79, .Sides
$VALUES
    Sides: Hall = h
    Sides: Bath = b
$INPUT, parent
    Unit: (999, End = Unit, Sides)",
         R"(example.dlg:54:29: warning scan-list: an input cannot choose the last two items of "Sides", and it has no others
        Unit: (999, End = Unit, Sides
                                ^~~~~
    hint: make it a DropListBox, which has no such limit
)"},
        {R"($LAYOUT Example
    ListBox 520, 12, 100, 79, .Sides
$VALUES
    Sides: Hall = h
    Sides: Bath = b
    Sides: Attic = a
$INPUT, parent
    Unit: (999, End = Unit, Sides = a)",
         R"(example.dlg:55:29: warning scan-list: an input cannot choose the last two items of "Sides"
        Unit: (999, End = Unit, Sides = a
                                ^~~~~
    hint: make it a DropListBox, which has no such limit
)"},
        {R"($INPUT, parent
    Unit: (999, End = Unit, Rooms)",
         R"(example.dlg:51:29: error scan-list-empty: the list "Rooms" has no items to choose from
        Unit: (999, End = Unit, Rooms
                                ^~~~~
    hint: add the piece with ADD or CONCAT, or give the list items
)"},
        {R"($INPUT, parent
    Unit: (999, End = Unit, Parts)",
         R"(example.dlg:51:29: error scan-list-empty: the list "Parts" has no items to choose from
        Unit: (999, End = Unit, Parts
                                ^~~~~
    hint: add the piece with ADD or CONCAT, or give the list items
)"},
    });
}

TEST(FillRules, TellOfFillsThatAreSkipped)
{
    ExpectFindings({
        {R"($INPUT, parent
    Unit: (999, End = (m)Form = round form, (mm)Form = square form)",
         R"(example.dlg:51:45: warning scan-pair: this fill is skipped when the condition before it does not hold
        Unit: (999, End = (m)Form = round form, (mm)Form = square form
                                                ^
    hint: put an unconditional fill between the two, or use two statements
)"},
        {R"($INPUT, parent
    Unit: (999, End = (m)Form = round form, Unit)",
         R"(example.dlg:51:45: warning scan-pair: this fill is skipped when the condition before it does not hold
        Unit: (999, End = (m)Form = round form, Unit
                                                ^~~~
    hint: put it before the condition
)"},
    });
}

TEST(FillRules, FindNothingWrongInAFairFill)
{
    ExpectNoFindings({
        R"(
$INPUT, parent
    Unit: (999, End = Unit, (m)Form = round form, Place = hall place, Pictures = ON)",
        R"(
$INPUT, parent
    Unit: (999, End = Unit, Order = l, Form = typed, Rooms(ADD))",
        R"(
$LAYOUT Example
    ListBox 520, 12, 100, 79, .Sides
$VALUES
    Sides: Hall = h
    Sides: Bath = b
    Sides: Attic = a
$INPUT, parent
    Unit: (999, End = Unit, Sides = h)",
        R"(
$VALUES
    Parts = FILLEDBY, lytdata, OpenMarked, NextItem
$INPUT, parent
    Unit: (999, End = Unit, Parts(FILL), Parts)",
    });
}
