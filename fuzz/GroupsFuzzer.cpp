// Cuts a text into tokens and into grouped values.
#include "dlgfile/Tokenize.h"
#include "fuzz/frame/Attempt.h"
#include "fuzz/frame/Fuzzer.h"
#include "fuzz/frame/InputText.h"

namespace
{
namespace groups_fuzzer
{

void Run(const std::string& input)
{
    InputText lines(input);
    const std::string delimiters = lines.Line();
    const std::string text = lines.Rest();
    ClytTokenList tokens;
    Attempt([&] { lytTokenizeGrouped(text.c_str(), delimiters.c_str(), tokens); });
    Attempt([&] { lytTokenizeGrouped((text + '\n').c_str(), delimiters.c_str(), tokens); });
    static_cast<void>(lytTokenize(text.c_str(), DelimiterSet(delimiters.c_str()), tokens));
}

std::vector<std::string> Seeds()
{
    return {",\n\"a(b,c)d,e\\\"\n", ",\nx((y),z", ",;()\n (a;b) , \"c;d\" ; e(f(g),h)i\n"};
}

} // namespace groups_fuzzer
} // namespace

const Fuzzer groupsFuzzer = {"groups", "delimiters; a text that is cut into tokens and groups", groups_fuzzer::Run,
                             groups_fuzzer::Seeds};
