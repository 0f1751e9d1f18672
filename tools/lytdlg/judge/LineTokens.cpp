#include "lytdlg/judge/LineTokens.h"

#include "dlgfile/Tokenize.h"

namespace lytdlg
{

std::vector<LineToken> TokensOf(const std::string& line, Section section)
{
    ClytTokenList tokens;
    static_cast<void>(lytTokenize(line.c_str(), DelimitersOf(section), tokens));
    std::vector<LineToken> words;
    for (POSITION place = tokens.GetHeadPosition(); place != nullptr;)
    {
        const ClytToken& token = tokens.GetNext(place);
        words.push_back({token.GetText().GetString(), token.GetColumn(), token.GetDelimiter()});
    }
    return words;
}

} // namespace lytdlg
