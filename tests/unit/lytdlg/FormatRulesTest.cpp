// What the rules say about formats and the items that they take.
#include "JudgedExample.h"

#include <gtest/gtest.h>

TEST(FormatRules, TellOfConversionsThatDoNotExist)
{
    ExpectFindings({
        {R"($OUTPUT, parent
    Name = NULL ("%s", Unit))",
         R"(example.dlg:53:12: warning format-word: "NULL" before the format is passed over
        Name = NULL ("%s", Unit)
               ^~~~
    hint: put values in brackets after their control, before the equals sign
)"},
        {R"($OUTPUT, parent
    Form("") = ("places:%s", Name, Unit))",
         R"(example.dlg:53:23: warning format-letter-s: in a format with %, this s takes an item
        Form("") = ("places:%s", Name, Unit)
                          ^
    hint: write a capital S, or put the word among the items
)"},
        {R"($OUTPUT, parent
    Form("") = ("No. %s", Name))",
         R"(example.dlg:53:20: error format-point: in a format with %, a lone point makes the composition fail
        Form("") = ("No. %s", Name)
                       ^
    hint: put the text with the point among the items
)"},
        {R"($OUTPUT, parent
    Form("") = ("%s %", Name))",
         R"(example.dlg:53:21: error format-percent: no s comes after this %, and the composition fails
        Form("") = ("%s %", Name)
                        ^
    hint: put the sign among the items: ("%s%s", Name, %)
)"},
        {R"($OUTPUT, parent
    Form("") = ("%5s;%s", Name))",
         R"(example.dlg:53:18: warning format-conversion: "%5s" is no conversion: it goes into the text without the %
        Form("") = ("%5s;%s", Name)
                     ^~~
    hint: write %s, or %.5s for the first five characters
)"},
        {R"($OUTPUT, parent
    Form("") = ("%d;%s;%s", Name))",
         R"(example.dlg:53:18: warning format-conversion: "%d;%s" is no conversion: it goes into the text without the %
        Form("") = ("%d;%s;%s", Name)
                     ^~~~~
    hint: write %s, or %.5s for the first five characters
)"},
        {R"($OUTPUT, parent
    Form("") = ("%.5d;%s", Name))",
         R"(example.dlg:53:18: warning format-conversion: after its limit "%.5d;%s" goes on to the next s, and that part is lost
        Form("") = ("%.5d;%s", Name)
                     ^~~~~~~
    hint: write %.5s for the first five characters
)"},
    });
}

TEST(FormatRules, TellOfItemsThatAreTooManyOrTooFew)
{
    ExpectFindings({
        {R"($OUTPUT, parent
    Form("") = ("%s;%s", Name))",
         R"(example.dlg:53:18: warning format-items: the format takes 2 items, the rule has 1
        Form("") = ("%s;%s", Name)
                     ^~~~~
    hint: add the missing items, or delete conversions
)"},
        {R"($OUTPUT, parent
    Form("") = ("%s", Name, Unit))",
         R"(example.dlg:53:29: note format-surplus: the format does not take "Unit", and no check asks for it
        Form("") = ("%s", Name, Unit)
                                ^~~~
    hint: delete it, or add a %s for it
)"},
        {R"($OUTPUT, parent
    Form("") = ("NONE", Unit))",
         R"(example.dlg:53:25: note format-surplus: the format does not take "Unit", and no check asks for it
        Form("") = ("NONE", Unit)
                            ^~~~
    hint: delete it, or add a %s for it
)"},
        {R"($OUTPUT, parent
    Form("") = ("%s", Name, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a))",
         R"(example.dlg:53:101: error format-limit: this is item 26, and the composition fails
        Form("") = ("%s", Name, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a, a)
                                                                                                        ^
    hint: 25 at most; write the rest into the format
)"},
        {R"($OUTPUT, parent
    Form("") = ("%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s", Name))",
         R"(example.dlg:53:18: error format-limit: the format takes 26 items, and the composition fails
        Form("") = ("%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s%s", Name)
                     ^~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~~
    hint: 25 at most; write the rest into the format
)"},
    });
}

TEST(FormatRules, TellOfEscapesThatStayAndOfEmptyFormats)
{
    ExpectFindings({
        {R"($OUTPUT, parent
    Form("") = ("%s\n", Name))",
         R"(example.dlg:53:20: warning format-escape: \n stays as it is at the end of the text
        Form("") = ("%s\n", Name)
                       ^~
    hint: let some text follow it
)"},
        {R"($OUTPUT, parent
    Form("") = ("A\tB"))",
         R"(example.dlg:53:19: warning format-escape: \t stays as it is in a format without a %
        Form("") = ("A\tB")
                      ^~
    hint: write "%s" and put the text among the items
)"},
        {R"($OUTPUT, parent
    (""))",
         R"(example.dlg:53:5: warning format-empty: the format is empty, and the rule is not kept
        ("")
        ^~~~
    hint: write ("%s", "") for an empty text
)"},
    });
}

TEST(FormatRules, FindNothingWrongInAFairFormat)
{
    ExpectNoFindings({
        R"(
$OUTPUT, parent
    Form("") = ("%s %.5s %0.3s\n%s", Name, Unit, Place, %))",
        R"(
$OUTPUT, parent
    Form("") = ("%. 3s|%.+2s", Name, Unit))",
        R"(
$EVALUATION, x
    Unit = NULL: NameMissing
$OUTPUT, parent
    Form("") = ("\"%s\"", Name, Unit))",
        R"(
$OUTPUT, parent
    Form("") = ("so. it is"))",
    });
}
