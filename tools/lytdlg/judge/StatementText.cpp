#include "lytdlg/judge/StatementText.h"

#include "dlgfile/Tokenize.h"
#include "lytdlg/judge/Names.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

std::string After(const std::string& word)
{
    return word.empty() ? "" : " after " + InQuotes(word);
}

// The words of a statement round the place where its reader gave up.
struct RefusedStatement
{
    RefusedStatement(const std::vector<LineToken>& words, int column)
    {
        const auto refused = std::ranges::find_if(words, [&](const LineToken& word) { return word.column >= column; });
        isAtEnd = refused == words.end();
        const LineToken& word = isAtEnd ? words.back() : *refused;
        first = InQuotes(words.front().text);
        after = After(word.text);
        afterWord = After(word.text.substr(0, word.text.find(' ')));
        delimiter = word.delimiter;
        numbers = refused - words.begin() - 1;
        int depth = 1;
        for (auto open = refused; open != words.begin() && depth > 0;)
        {
            --open;
            depth += open->delimiter == ')' ? 1 : open->delimiter == '(' ? -1 : 0;
            afterOpen = After(depth == 0 ? open->text : "");
        }
        before = refused != words.begin() ? std::prev(refused)->delimiter : '\0';
    }

    std::string Sign() const
    {
        return delimiter == '\t'   ? "a tab"
               : delimiter == '\n' ? "the end of the line"
                                   : "\"" + std::string(1, delimiter) + "\"";
    }

    bool isAtEnd = false;  // the line ends too early; otherwise a word is refused
    std::string first;     // the first word
    std::string after;     // the refused word, or the last one
    std::string afterWord; // the same up to a blank, which may be in place of a sign
    std::string afterOpen; // the name before the bracket that is open there
    char before = '\0';    // what ends the word before the refused one
    char delimiter = '\0'; // what ends the refused word, or the last one
    ptrdiff_t numbers = 0; // between the first word and the refused one
};

std::string WrongInBrackets(const RefusedStatement& at)
{
    if (at.isAtEnd || at.delimiter == '\n' || at.delimiter == ',')
        return "the brackets" + at.afterOpen + " are not closed by \")\"";
    return at.Sign() + " is in the brackets" + at.afterOpen + ", where commas separate";
}

std::string Missing(ClytDue due, const RefusedStatement& at)
{
    switch (due)
    {
    case ClytDue::VersionWord: return "a word is missing" + at.after;
    case ClytDue::EndOfHeader: return "more than one word follows " + at.first;
    case ClytDue::DialogWord: return "the word Dialog is missing" + at.after;
    case ClytDue::Operands: return "nothing follows the word " + at.first;
    case ClytDue::Number:
        return "four numbers are needed, left, top, width and height; here " +
               (at.numbers == 1 ? std::string("is one") : "are " + std::to_string(at.numbers));
    case ClytDue::Name: return "no name follows the point";
    case ClytDue::Value:
        return at.after != at.afterWord ? "\"=\" or \":\" is missing" + at.afterWord + "; a blank does not separate"
                                        : "nothing is said of " + at.first;
    case ClytDue::StateSign: return "\"/\" is missing" + at.afterWord;
    case ClytDue::StateWord: return "a state word is missing" + at.after;
    case ClytDue::ConditionsSign: return "\"=\" is missing" + at.afterWord;
    case ClytDue::ListSeparator: return WrongInBrackets(at);
    case ClytDue::ConditionEnd: return at.Sign() + " is used where a comma separates conditions";
    case ClytDue::EvaluationSign: return "\"=\" or \"(\" is missing" + at.afterWord;
    case ClytDue::ValueAfterSign: return "a value is missing after \"=\"";
    case ClytDue::OtherSign: return "\"=\" must follow the values of " + at.first;
    case ClytDue::OtherControl: return "a second control with its values in brackets must follow \"=\"";
    case ClytDue::MessageAfterValue: return "\":\" with the key of a message is missing" + at.after;
    case ClytDue::MessageAfterList: return "\":\" with the key of a message must follow the values";
    case ClytDue::StatementSign: return "\":\" is missing" + at.afterWord;
    case ClytDue::InputStatement: return "what the statement does is missing" + at.after;
    case ClytDue::Piece: return "no length or separator follows \"(\"";
    case ClytDue::PieceTarget:
        return "each length or separator needs the next statement, and \"=\" or \")\" after the last";
    case ClytDue::ControlName:
        return at.isAtEnd ? "a control is missing after \"=\"" : "the name of a control is missing before " + at.Sign();
    case ClytDue::FillEnd: return at.Sign() + at.after + " is used where a comma separates fills";
    case ClytDue::Target: return "the next statement is missing after \"=\"";
    case ClytDue::Targets: return "two statements must follow \"=\": one when the condition holds, one when not";
    case ClytDue::TargetsSign: return "\"=\" with two statements, one for each case, is missing";
    case ClytDue::Format:
        if (at.before == '=')
            return at.isAtEnd ? "the format in brackets is missing" : "\"(\" must open the format";
        // The reader takes a comma for the sign.
        [[fallthrough]];
    case ClytDue::FormatSign: return "\"=\" and the format in brackets are missing";
    case ClytDue::Token: break;
    }
    return "the statement is incomplete";
}

} // namespace

std::string WhatIsWrong(const std::string& line, Section section, int column, ClytDue due)
{
    const std::vector<LineToken> words = TokensOf(line, section);
    return words.empty() ? "the statement is incomplete" : Missing(due, RefusedStatement(words, column));
}

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

size_t EndOfStatement(const SourceLine& line)
{
    const std::string& text = line.text;
    bool isWordBegin = true;
    for (size_t place = 0; place < text.size(); ++place)
    {
        const char ch = text[place];
        if (isWordBegin && ch == ';')
            return place;
        if (isWordBegin && ch == '"')
        {
            place = text.find('"', place + 1);
            while (place != std::string::npos && text[place - 1] == '\\')
                place = text.find('"', place + 1);
            if (place == std::string::npos)
                return text.size();
        }
        isWordBegin = DelimitersOf(line.section).Contains(ch) || (isWordBegin && (ch == ' ' || ch == '\t'));
        if (ch == ';' && isWordBegin)
            return place;
    }
    return text.size();
}

} // namespace lytdlg
