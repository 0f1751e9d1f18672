// What the rules say about the texts of a dialog.
#include "JudgedExample.h"

#include <gtest/gtest.h>

TEST(TextRules, TellOfTextsThatAreMissing)
{
    ExpectFindings({
        {R"($LAYOUT Example
    CheckBox 520, 12, 112, 12, "Piktures", .More)",
         R"(example.dlg:24:33: warning text-missing: English.nls, German.nls: no text "Piktures" in [Example]
        CheckBox 520, 12, 112, 12, "Piktures", .More
                                    ^~~~~~~~
    hint: did you mean "Pictures"?
)"},
        {R"($VALUES
    Form: hexagonal = six sides)",
         R"(example.dlg:45:11: warning text-missing: English.nls, German.nls: no text "hexagonal" in [Example]
        Form: hexagonal = six sides
              ^~~~~~~~~
    hint: add it there
)"},
        {R"($EVALUATION, x
    Unit = NULL: UnitMissing)",
         R"(example.dlg:49:18: warning text-missing: English.nls, German.nls: no text "UnitMissing" in [MsgBox]
        Unit = NULL: UnitMissing
                     ^~~~~~~~~~~
    hint: add it there
)"},
        {R"($LAYOUT Exmaple)",
         R"(example.dlg:2:9: warning text-section: English.nls has no section [Exmaple]
    $LAYOUT Exmaple
            ^~~~~~~
    hint: did you mean "Example"?
example.dlg:2:9: warning text-section: German.nls has no section [Exmaple]
    $LAYOUT Exmaple
            ^~~~~~~
    hint: did you mean "Example"?
)"},
    });
}

TEST(TextRules, TellOfTextsThatAreShownOtherwise)
{
    ExpectFindings({
        {R"($VALUES
    Form: LongText = long form)",
         R"(lang/English.nls:37:1: warning text-long: the text has 78 characters and is cut after 74: "...haracters that there"
    LongText=A text that goes on for longer than the seventy-four characters that there are
    ^~~~~~~~
    hint: shorten it
lang/German.nls:37:1: warning text-long: the text has 78 characters and is cut after 74: "...haracters that there"
    LongText=A text that goes on for longer than the seventy-four characters that there are
    ^~~~~~~~
    hint: shorten it
)"},
        {R"($LAYOUT Example
    CheckBox 520, 12, 112, 12, "Author", .More)",
         R"(lang/English.nls:36:1: warning text-apostrophe: the caption ends at the apostrophe: "T&he author'"
    Author=T&he author's name
    ^~~~~~
    hint: write it without an apostrophe
lang/German.nls:36:1: warning text-apostrophe: the caption ends at the apostrophe: "T&he author'"
    Author=T&he author's name
    ^~~~~~
    hint: write it without an apostrophe
)"},
        {R"($VALUES
    Form: Remove = other form)",
         R"(lang/English.nls:32:1: warning text-ampersand: a list item shows the & as it is
    Remove=Remo&ve
    ^~~~~~
    hint: leave it out
lang/German.nls:32:1: warning text-ampersand: a list item shows the & as it is
    Remove=Remo&ve
    ^~~~~~
    hint: leave it out
)"},
        {R"($LAYOUT Example
    Text 520, 12, 100, 12, "Stray", .More)",
         R"(lang/English.nls:43:1: warning caption-ampersand: an & before a blank, or at the end, underlines nothing
    Stray=Salt & sugar
    ^~~~~
    hint: write && for an ampersand itself
lang/German.nls:43:1: warning caption-ampersand: an & before a blank, or at the end, underlines nothing
    Stray=Salz & Zucker
    ^~~~~
    hint: write && for an ampersand itself
)"},
        {R"($LAYOUT Example
    Text 520, 12, 100, 12, "Marked", .More)",
         R"(lang/German.nls:41:1: warning text-marks: the marks & differ from those in English.nls, line 41
    Marked=Mar&ked
    ^~~~~~
    hint: give both languages the same marks
)"},
        {R"(
$LAYOUT Example
    Text 520, 12, 100, 12, "Accent", .More
    Text 520, 38, 100, 12, "Copied", .Copied)",
         R"(lang/English.nls:38:1: warning text-bytes: the text was saved as UTF-8, and shows odd characters
    Accent=Accent&2 Ã„
    ^~~~~~
    hint: save the file in code page 1252, which editors call ANSI or Windows-1252
lang/English.nls:40:1: warning text-twice: the text stands in line 39 already, and that one counts
    Copied=Cop&y
    ^~~~~~
    hint: take one of them away
lang/German.nls:38:1: warning text-bytes: the text was saved as UTF-8, and shows odd characters
    Accent=Accent&2 Ã„
    ^~~~~~
    hint: save the file in code page 1252, which editors call ANSI or Windows-1252
lang/German.nls:40:1: warning text-twice: the text stands in line 39 already, and that one counts
    Copied=Cop&y
    ^~~~~~
    hint: take one of them away
)"},
        {R"($LAYOUT Example
    CheckBox 520, 12, 112, 12, "Nothing", .More)",
         R"(lang/English.nls:42:1: warning text-empty: the text is empty, and the dialog shows nothing
    Nothing=
    ^~~~~~~
    hint: write the text after the equals sign
lang/German.nls:42:1: warning text-empty: the text is empty, and the dialog shows nothing
    Nothing=
    ^~~~~~~
    hint: write the text after the equals sign
)"},
        {R"($VALUES
    Form: Nothing = other form)",
         ""},
        {R"($VALUES
-    Form: Square = square form)",
         R"(lang/English.nls:27:1: note text-unused: no dialog of the folder uses the text "Square"
    Square=Square
    ^~~~~~
    hint: delete it
lang/German.nls:27:1: note text-unused: no dialog of the folder uses the text "Square"
    Square=Square
    ^~~~~~
    hint: delete it
)"},
    });
}

TEST(TextRules, FindNothingWrongInTextsThatAreThere)
{
    ExpectNoFindings({
        R"(
$LAYOUT Example
    CheckBox 520, 12, 100, 12, "Remove", .More
$VALUES
    Form: Hall = other form)",
    });
}

TEST(MnemonicRules, TellOfLettersThatAreUsedTwiceOrMissing)
{
    ExpectFindings({
        {R"($LAYOUT Example
    CheckBox 520, 12, 112, 12, "Note", .More)",
         R"(example.dlg:24:33: warning mnemonic-twice: in English.nls "Note" underlines the letter n as "Name" in line 4 does
        CheckBox 520, 12, 112, 12, "Note", .More
                                    ^~~~
    hint: choose another letter in the language file
example.dlg:24:33: warning mnemonic-twice: in German.nls "Note" underlines the letter n as "Name" in line 4 does
        CheckBox 520, 12, 112, 12, "Note", .More
                                    ^~~~
    hint: choose another letter in the language file
)"},
        {R"($LAYOUT Example
    CheckBox 520, 12, 112, 12, "Plain", .More)",
         R"(example.dlg:24:33: note mnemonic-none: in English.nls "Plain" underlines no letter
        CheckBox 520, 12, 112, 12, "Plain", .More
                                    ^~~~~
    hint: write an & before a letter that the dialog does not have yet
example.dlg:24:33: note mnemonic-none: in German.nls "Plain" underlines no letter
        CheckBox 520, 12, 112, 12, "Plain", .More
                                    ^~~~~
    hint: write an & before a letter that the dialog does not have yet
)"},
    });
}

TEST(MnemonicRules, FindNothingWrongInControlsThatTakeTurns)
{
    ExpectNoFindings({
        R"(
$LAYOUT Example
    CheckBox 520, 12, 112, 12, "Remove", .More
    CheckBox 520, 12, 112, 12, "Remove", .Most
$DEPENDANCES
    More/VISIBLE = Name(NULL)
    Most/VISIBLE = Name(x))",
    });
}
