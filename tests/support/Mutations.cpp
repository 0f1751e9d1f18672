#include "support/Mutations.h"

#include "support/Dice.h"

#include <algorithm>
#include <array>

namespace
{

using namespace std::string_literals;

// What is put in somewhere.
const std::vector<std::string> pieces = {
    " ",           "  ",          "\t",    " \t ",  ",",          ";",       " ; note",
    ":",           "(",           ")",     "=",     "/",          "\"",      "\\\"",
    "\"\"",        "\" a \"",     "<",     ">",     "$",          ".",       "\r",
    "\n",          "\r\n",        "\x1A",  "\0"s,   "\v",         "\xE4",    "A",
    "1",           "0",           "-1",    " = ",   "(x, y)",     "Rest",    "NULL",
    "\n<X\n",      "\n<!Y\n",     "\n>\n", "\n<\n", "\n$END\n",   "$OUTPUT", "\n$INPUT, p\n",
    "\n$VALUES\n", "\n$OUTPUT\n", "End",   "Begin", "$VERSION 1", "\n\n",    ",,",
    ")(",          "\"x\"y",      "; ;",   "'",     "\x7F",       "\\",      "\" ; \"",
};

size_t StartOfLine(const std::string& text, size_t place)
{
    const size_t feed = place > 0 ? text.rfind('\n', place - 1) : std::string::npos;
    return feed == std::string::npos ? 0 : feed + 1;
}

size_t EndOfLine(const std::string& text, size_t place)
{
    const size_t feed = text.find('\n', place);
    return feed == std::string::npos ? text.size() : feed + 1;
}

void Insert(std::string& text, Dice& dice)
{
    text.insert(dice.Below(text.size() + 1), dice.Of(pieces));
}

void Remove(std::string& text, Dice& dice)
{
    if (!text.empty())
        text.erase(dice.Below(text.size()), 1 + dice.Below(3));
}

void InsertAtDelimiter(std::string& text, Dice& dice)
{
    const size_t place = text.find_first_of(",:=()\"; .\n", dice.Below(text.size() + 1));
    if (place != std::string::npos)
        text.insert(place + dice.Below(2), dice.Of(pieces));
}

void RemoveBlanks(std::string& text, Dice& dice)
{
    const size_t start = text.find(' ', dice.Below(text.size() + 1));
    if (start != std::string::npos)
        text.erase(start, std::min(text.find_first_not_of(' ', start), text.size()) - start);
}

void MoveLine(std::string& text, Dice& dice)
{
    const size_t start = StartOfLine(text, dice.Below(text.size() + 1));
    const std::string line = text.substr(start, EndOfLine(text, start) - start);
    if (dice.Is(2))
        text.erase(start, line.size());
    text.insert(StartOfLine(text, dice.Below(text.size() + 1)), line);
}

void SwitchLines(std::string& text, Dice& dice)
{
    const size_t start = StartOfLine(text, dice.Below(text.size() + 1));
    const size_t end = EndOfLine(text, std::min(text.size(), start + dice.Below(200)));
    text.insert(end, dice.Is(8) ? "<\n" : ">\n");
    text.insert(start, dice.Is(2) ? "<X\n" : dice.Is(2) ? "<!X\n" : "<Y\n");
}

void Lengthen(std::string& text, Dice& dice)
{
    const size_t start = StartOfLine(text, dice.Below(text.size() + 1));
    const size_t end = EndOfLine(text, start);
    const size_t wanted = 380 + dice.Below(40);
    if (end - start < wanted)
        text.insert(start + dice.Below(end - start + 1), wanted - (end - start), dice.Is(3) ? 'x' : ' ');
}

void ChangeLineEnds(std::string& text, Dice& dice)
{
    const size_t oneIn = 1 + dice.Below(2);
    for (size_t feed = text.find('\n'); feed != std::string::npos; feed = text.find('\n', feed + 2))
    {
        if (dice.Is(oneIn))
            text.insert(feed, "\r");
    }
}

void CutEnd(std::string& text, Dice& dice)
{
    text.resize(text.size() - std::min(text.size(), dice.Is(3) ? dice.Below(text.size() + 1) : 1));
}

std::string StatementOf(Dice& dice)
{
    static const std::vector<std::string> words = {"A",    "Name",     "28",    "\"Text\"", ".Name", "\"%s\"",
                                                   "NULL", "End",      "\"|\"", "\" ; \"",  "\"\"",  "a b",
                                                   "Rest", "\"\\\"\"", "1",     "\"x\"y"};
    static const std::vector<std::string> between = {
        ", ", ",", " = ", "=", ": ", ":", "(", ")", "),", ") = ", "/", "  ", " ", "\t", ";", "<", ")(", " (", "", ","};
    std::string line(dice.Below(6), ' ');
    for (size_t count = dice.Below(9); count > 0; --count)
        line += dice.Of(words) + dice.Of(between);
    return line + (dice.Is(5) ? std::string(dice.Below(4), ' ') + "; note " : "");
}

} // namespace

std::string Mutations::Changed(unsigned number, size_t mostChanges) const
{
    using Change = void (*)(std::string&, Dice&);
    static constexpr std::array changes =
        std::to_array<Change>({Insert, Insert, InsertAtDelimiter, InsertAtDelimiter, Remove, RemoveBlanks, RemoveBlanks,
                               MoveLine, SwitchLines, Lengthen, ChangeLineEnds, CutEnd});
    Dice dice(number);
    std::string text = dice.Of(m_seeds);
    for (size_t count = 1 + dice.Below(mostChanges); count > 0; --count)
        dice.Of(changes)(text, dice);
    return text;
}

std::string Mutations::Generated(unsigned number)
{
    Dice dice(number);
    std::string text = "free  text\n$VERSION   1\n$LAYOUT  S ; note\nBegin Dialog  Box 1,2 \"T\" .M\n";
    for (const char* heading : {"End  Dialog\n$VALUES", "  $DEPENDANCES", "$EVALUATION ,x", "$INPUT,p", "$INPUT, q",
                                "$OUTPUT,p", "$OUTPUT , q", "$END"})
    {
        for (size_t count = dice.Below(7); count > 0; --count)
            text += dice.Is(9) ? dice.Of(pieces) + "\n" : StatementOf(dice) + (dice.Is(20) ? "\r\n" : "\n");
        (text += heading) += "\n";
    }
    return text;
}
