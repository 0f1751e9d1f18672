// Scans a text into controls of all kinds by any statements.
#include "fuzz/frame/Fuzzer.h"
#include "fuzz/frame/InputText.h"
#include "fuzz/frame/UsedForm.h"
#include "support/DescriptionText.h"

namespace
{
namespace scan_fuzzer
{

constexpr const char* endOfStatements = "$OUTPUT";

void Run(const std::string& input)
{
    DescriptionText description;
    description.layout = "TextBox 0, 0, 1, 1, .A\nListBox 0, 0, 1, 1, .L\nComboBox 0, 0, 1, 1, .C\n"
                         "CheckBox 0, 0, 1, 1, .K\nCheckListBox 0, 0, 1, 1, .M\nOptionGroup .G\n"
                         "OptionButton 0, 0, 1, 1, .G1\n";
    description.values = "L: one = 1\nL: two = 2\nL: three = 3\nC: one = 1\nM: one = 1\nK: ON = 1\nG1 = 1\n";
    description.dependencies = "C/CLEAR = A\nL/ACTIVE = A(NOTNULL)\n";
    description.output = "A(1) = (\"%s %s\", L(\",\"), C)\n(\"%s %s %s %s\", A, K, G, M(\"|\"))\n";

    InputText lines(input);
    for (std::string line; !lines.IsAtEnd() && line != endOfStatements;)
    {
        line = lines.Line();
        description.input += line != endOfStatements ? line + "\n" : "";
    }
    UseForm(description(), lines.Rest());
}

std::vector<std::string> Seeds()
{
    return {
        "Start: x = B\nB: (\"\", Start, Rest, Start = A\n$OUTPUT\ntext",
        "Start: A(1), L(2) = B, C\nB: x = C\nC: (\",\", Start, \"Rest\", End = A(ADD), L(MODIFY), L(FILL), L(ADD)\n"
        "$OUTPUT\nx,y,[z],{,}),\"",
        "Start: (99, End = L(CONCAT, \",\", \"[\", \"]\")\n$INPUT, other\nStart: (\";\", Start = L(CONCAT, \",\")\n"
        "$OUTPUT\nx(a,b),c(d",
        "Start: (\";\", B, \")\", B, Rest, End = A, (1) L, C(CONCAT, \",\", x)\nB: (2, Start = G, K = ON, M(CONCAT, "
        "\"|\")\n$OUTPUT\na(b;c)d;\"e;f\";ON1|X2",
    };
}

} // namespace scan_fuzzer
} // namespace

const Fuzzer scanFuzzer = {"scan", "statements of an input part; a line $OUTPUT; the text that they scan",
                           scan_fuzzer::Run, scan_fuzzer::Seeds};
