// What the rules say about where the controls stand.
#include "JudgedExample.h"

#include <gtest/gtest.h>

TEST(GeometryRules, TellOfControlsThatAreNotSeenWhole)
{
    ExpectFindings({
        {R"($LAYOUT Example
    TextBox 520, -12, 100, 19, .More)",
         R"(example.dlg:24:5: warning geometry-outside: "More" goes beyond the dialog
        TextBox 520, -12, 100, 19, .More
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: move it, or make the dialog larger
)"},
        {R"($LAYOUT Example
    TextBox 520, 12, 100, 19, .More
    TextBox 600, 12, 100, 19, .Most)",
         R"(example.dlg:25:5: warning geometry-overlap: "Most" and "More" in line 24 overlap
        TextBox 600, 12, 100, 19, .Most
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: move one of them, or make it smaller
)"},
        {R"($LAYOUT Example
    GroupBox 520, 6, 100, 60, ""
    TextBox 600, 24, 100, 19, .More)",
         R"(example.dlg:25:5: warning geometry-overlap: "More" and the GroupBox in line 24 overlap
        TextBox 600, 24, 100, 19, .More
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: move one of them, or make it smaller
)"},
        {R"($LAYOUT Example
    Text 520, 12, 60, 12, "Remove", .More
    TextBox 560, 8, 100, 19, .Most)",
         R"(example.dlg:25:5: warning geometry-overlap: "Most" and "More" in line 24 overlap
        TextBox 560, 8, 100, 19, .Most
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: move one of them, or make it smaller
)"},
        {R"($LAYOUT Example
    PushButton 520, 12, 60, 21, "Remove", .More
$VALUES
    More: REJECT, x)",
         R"(example.dlg:24:5: warning geometry-clipped: the caption of "More" is 1 pixel too wide at 96 dots per inch with the texts of English.nls
        PushButton 520, 12, 60, 21, "Remove", .More
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: make the control wider, or the text shorter
)"},
        {R"($LAYOUT Example
    TextBox 700, 12, 100, 19, .More)",
         R"(example.dlg:24:5: warning geometry-outside: "More" goes beyond the dialog
        TextBox 700, 12, 100, 19, .More
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: move it, or make the dialog larger
)"},
        {R"($LAYOUT Example
    TextBox 620, 420, 100, 19)",
         R"(example.dlg:24:5: warning geometry-outside: the TextBox goes beyond the dialog
        TextBox 620, 420, 100, 19
        ^~~~~~~~~~~~~~~~~~~~~~~~~
    hint: move it, or make the dialog larger
example.dlg:25:5: warning geometry-tab: the Tab key goes back from the TextBox in line 24 to "Ok"
        OKButton  228, 384, 112,  22, .Ok
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: let the statements stand in the order of reading
)"},
        {R"($LAYOUT Example
    PushButton 520, 12, 30, 21, "Remove", .More
$VALUES
    More: REJECT, x)",
         R"(example.dlg:24:5: warning geometry-clipped: the caption of "More" is 24 pixels too wide
        PushButton 520, 12, 30, 21, "Remove", .More
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: make the control wider, or the text shorter
)"},
        {R"($LAYOUT Example
    GroupBox 520, 12, 50, 80, "Remove", .More)",
         R"(example.dlg:24:5: warning geometry-clipped: the caption of "More" is 19 pixels too wide
        GroupBox 520, 12, 50, 80, "Remove", .More
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: make the control wider, or the text shorter
)"},
        {R"($LAYOUT Example
    TextBox 520, 2147483647, 2147483647, 2147483647, .More)",
         R"(example.dlg:24:5: warning geometry-outside: "More" goes beyond the dialog
        TextBox 520, 2147483647, 2147483647, 2147483647, .More
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: move it, or make the dialog larger
example.dlg:25:5: warning geometry-tab: the Tab key goes back from "More" in line 24 to "Ok"
        OKButton  228, 384, 112,  22, .Ok
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: let the statements stand in the order of reading
)"},
    });
}

TEST(GeometryRules, TellOfTheWayOfTheTabKey)
{
    ExpectFindings({
        {R"($LAYOUT Example
    TextBox 520, 64, 100, 19, .More
    TextBox 520, 38, 100, 19, .Most)",
         R"(example.dlg:25:5: warning geometry-tab: the Tab key goes back from "More" in line 24 to "Most"
        TextBox 520, 38, 100, 19, .Most
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: let the statements stand in the order of reading
)"},
        {R"($LAYOUT Example
    TextBox 640, 64, 100, 19, .More
    TextBox 520, 66, 100, 19)",
         R"(example.dlg:25:5: warning geometry-tab: the Tab key goes back from "More" in line 24 to the TextBox
        TextBox 520, 66, 100, 19
        ^~~~~~~~~~~~~~~~~~~~~~~~
    hint: let the statements stand in the order of reading
)"},
    });
}

TEST(GeometryRules, TellOfListsWithoutRoomAndOfFramesThatPartAGroup)
{
    ExpectFindings({
        {R"($LAYOUT Example
    ComboBox 520, 12, 100, 19, .More)",
         R"(example.dlg:24:5: warning geometry-drop: with a height of 19 the list has no room to open
        ComboBox 520, 12, 100, 19, .More
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: allow 19 for the field and 15 for each row
)"},
        {R"($LAYOUT Example
    DropListBox 520, 12, 100, 33, .More)",
         R"(example.dlg:24:5: warning geometry-drop: with a height of 33 the list has no room to open
        DropListBox 520, 12, 100, 33, .More
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: allow 19 for the field and 15 for each row
)"},
        {R"($LAYOUT Example
    ListBox 520, 12, 100, 16, .More)",
         R"(example.dlg:24:5: warning geometry-row: with a height of 16 the list shows no row
        ListBox 520, 12, 100, 16, .More
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: allow 15 for each row and 4 for the frame
)"},
        {R"($LAYOUT Example
    GroupBox 508, 6, 130, 60, ""
    OptionGroup .More
    OptionButton 520, 24, 80, 12, "Remove", .One
    OptionButton 650, 24, 80, 12, "Extra", .Two)",
         R"(example.dlg:24:5: warning geometry-frame: the frame holds 1 of the 2 options of "More"
        GroupBox 508, 6, 130, 60, ""
        ^~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: let it hold all of them
)"},
    });
}

TEST(GeometryRules, FindNothingWrongInAFairLayout)
{
    ExpectNoFindings({
        R"(
$LAYOUT Example
    GroupBox 508, 6, 200, 80, ""
    TextBox 520, 12, 100, 19, .More
    ComboBox 520, 38, 100, 34, .Most
    ListBox 520, 90, 100, 19)",
        R"(
$LAYOUT Example
    TextBox 520, 12, 100, 19, .More
    TextBox 520, 12, 100, 19, .Most
$DEPENDANCES
    More/VISIBLE = Name(NULL)
    Most/VISIBLE = Name(x))",
        R"(
$LAYOUT Example
    TextBox 0, 0, 8, 8, .More
    TextBox 0, 0, 900, 8, .Most
$VALUES
    More = HIDDEN
    Most = HIDDEN)",
        R"(
$LAYOUT Example
    TextBox 520, 12, 100, 19, .More
    TextBox 520, 38, 100, 19
    TextBox 640, 12, 100, 19)",
    });
}
