// What the scan makes of a key and what the composition makes of the controls, seen through the symbol dialog: three
// fields take pieces, and the result shows them with bars between.
#include "Journey.h"

#include <gtest/gtest.h>

namespace
{

struct Case
{
    const char* input;  // the statements of the input part
    const char* key;    // what the caller hands in
    const char* result; // "A|B|C"
};

std::string ResultOf(const Case& scan)
{
    Sections sections;
    sections.layout = "TextBox 10, 10, 100, 20, .A\nTextBox 10, 40, 100, 20, .B\nTextBox 10, 70, 100, 20, .C\n"
                      "OKButton 10, 150, 60, 20, .Ok\n";
    sections.input = scan.input;
    sections.output = "(\"%s|%s|%s\", A, B, C)\n";
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(sections));
    journey.Steps().On("Journey", [](HWND dialog) { robot::Press(GetDlgItem(dialog, IDOK)); });
    return journey.Symbol(scan.key).first;
}

std::string Composed(const std::string& rule)
{
    Sections sections;
    sections.layout = "TextBox 10, 10, 100, 20, .A\nTextBox 10, 40, 100, 20, .B\nOKButton 10, 150, 60, 20, .Ok\n";
    sections.values = "A = alpha\nB = beta\n";
    sections.output = rule + "\n";
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(sections));
    journey.Steps().On("Journey", [](HWND dialog) { robot::Press(GetDlgItem(dialog, IDOK)); });
    return journey.Symbol("").first;
}

} // namespace

TEST(ScanJourney, CutsTheKeyIntoPieces)
{
    static const Case cases[] = {
        {"Start: (\",\", Two, Rest, End = A\nTwo: (Rest, End = B\n", "a,b", "a|b|"},
        {"Start: (\",\", Two, Rest, Two = A\nTwo: (Rest, End = B\n", "a", "a||"},
        {"Start: (3, Two = A\nTwo: (Rest, End = B\n", "abcdef", "abc|def|"},
        {"Start: (5, Two = A\nTwo: (Rest, End = B\n", "abc", "abc||"},
        {"Start: (\")\", Two, Rest, End = A\nTwo: (Rest, End = B\n", "a(b)c)d", "a(b)c|d|"},
        {"Start: (\")\", Two, Rest, End = A\nTwo: (Rest, End = B\n", "a)b", "a|b|"},
        {"Start: (\",\", Two, Rest, End = A\nTwo: (Rest, End = B\n", "\"a,b\",c", "a,b|c|"},
        {"Start: (\",\", Two, Rest, End = A\nTwo: (Rest, End = B\n", "x\"a,b\",c", "x\"a,b\"|c|"},
        {"Start: (\",\", Two, Rest, End = (x) A, B, (q) C\nTwo: x = End\n", "x,", "x|x|"},
        {"Start: (\",\", Two, Rest, End = A = fixed\nTwo: x = End\n", "x,", "fixed||"},
        {"Start: (\",\", Two, Rest, End = A\nTwo: A(a) = Three, Four\nThree: (Rest, End = B\nFour: (Rest, End = C\n",
         "a,rest", "a|rest|"},
        {"Start: (\",\", Two, Rest, End = A\nTwo: A(a) = Three, Four\nThree: (Rest, End = B\nFour: (Rest, End = C\n",
         "b,rest", "b||rest"},
    };
    for (const Case& scan : cases)
    {
        SCOPED_TRACE(scan.input);
        SCOPED_TRACE(scan.key);
        EXPECT_EQ(ResultOf(scan), scan.result);
    }
}

TEST(ComposeJourney, FormatsTheItems)
{
    static const struct
    {
        const char* rule;
        const char* result;
    } cases[] = {
        {"(\"%s-%s\", A, B)", "alpha-beta"},
        {"(\"is %s\", A, B)", "ialpha beta"},
        {"(\"%.2s\", A)", "al"},
        {"(\"%0.2s\", A)", "al"},
        {"(\"%5s\", A)", "5s"},
        {"(\"a\\nb\")", "a\\nb"},
        {"(\"%sa\\nbc\", A)", "alphaa\n bc"},
        {"(\"%s\\n\", A)", "alpha\\n"},
        {"(\"%s\", Nobody)", "Nobody"},
        {"(\"%s and %s\", A)", "alpha and "},
        {"A(alpha), B(x) = (\"no\")\nA(alpha) = (\"%s!\", B)", "beta!"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.rule);
        EXPECT_EQ(Composed(c.rule), c.result);
    }
}
