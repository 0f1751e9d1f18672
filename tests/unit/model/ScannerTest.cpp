// A scanner passes over plain text without a close look at it. What it cuts is compared with a walk that looks at every
// character.
#include "model/ClytScanner.h"
#include "support/Dice.h"

#include <gtest/gtest.h>

#include <map>
#include <string>
#include <vector>

namespace
{

struct Entry
{
    std::string separator;
    std::string target;
};

// The rules of a cut by separators, character by character.
class PlainScanner
{
public:
    explicit PlainScanner(std::string input) : m_rest(std::move(input)) {}

    std::string Cut(const std::vector<Entry>& entries, std::string& piece)
    {
        m_pieceDepth.clear();
        while (!m_rest.empty())
        {
            const bool isContent = CountBracket(m_rest[0]);
            for (const Entry& entry : entries)
            {
                if (isContent || !m_rest.starts_with(entry.separator))
                    continue;
                m_rest.erase(0, entry.separator.size());
                return entry.target;
            }
            if (m_rest[0] == '"')
                TakeQuoted(piece);
            else
            {
                piece += m_rest[0];
                m_rest.erase(0, 1);
            }
        }
        return TargetOfRest(entries);
    }
    const std::string& Rest() const { return m_rest; }

private:
    static std::string TargetOfRest(const std::vector<Entry>& entries)
    {
        for (const Entry& entry : entries)
        {
            if (entry.separator == "Rest")
                return entry.target;
        }
        return {};
    }

    bool CountBracket(char ch)
    {
        static const std::map<char, char> opening = {{')', '('}, {'}', '{'}, {']', '['}};
        if (ch == '(' || ch == '{' || ch == '[')
        {
            ++m_depth[ch];
            ++m_pieceDepth[ch];
        }
        const auto closed = opening.find(ch);
        if (closed == opening.end())
            return false;
        const int depth = --m_depth[closed->second];
        int& pieceDepth = m_pieceDepth[closed->second];
        if (pieceDepth == 0)
            return depth >= 1;
        --pieceDepth;
        return true;
    }

    void TakeQuoted(std::string& piece)
    {
        const bool keepsQuotes = !piece.empty();
        const size_t end = m_rest.find('"', 1);
        const size_t length = end == std::string::npos ? m_rest.size() : end + 1;
        const size_t contentEnd = std::min(end, m_rest.size());
        piece += keepsQuotes ? m_rest.substr(0, length) : m_rest.substr(1, contentEnd - 1);
        m_rest.erase(0, length);
    }

    std::string m_rest;
    std::map<char, int> m_depth;
    std::map<char, int> m_pieceDepth;
};

std::string RandomText(Dice& dice, size_t longest)
{
    static const std::string characters = "abR(({[)]})\"\"-;>\x01\x80\xFF ";
    std::string text;
    for (size_t length = dice.Below(longest + 1); length > 0; --length)
        text += dice.Of(characters);
    return text;
}

std::vector<Entry> RandomEntries(Dice& dice)
{
    static const std::vector<std::string> usual = {"-", "->", "--", ";", "(", ")", "((", "\"", "\"a", "Rest", "Re"};
    std::vector<Entry> entries;
    for (size_t count = 1 + dice.Below(4); count > 0; --count)
        entries.push_back({dice.Is(4) ? RandomText(dice, 3) : dice.Of(usual), "to" + std::to_string(count)});
    return entries;
}

// What several cuts in a row give.
std::string Cuts(const std::string& text, const std::vector<std::vector<Entry>>& statements)
{
    const CString input(text.c_str());
    ClytScanner scanner(input);
    std::string log;
    for (const std::vector<Entry>& entries : statements)
    {
        ClytScan scan;
        for (const Entry& entry : entries)
            scan.AddSeparator(entry.separator.c_str(), entry.target.c_str());
        CString piece;
        const CString target = scanner.Cut(scan, piece).name;
        log += std::string(piece) + "|" + target.GetString() + "|" + scanner.GetRest() + "\n";
    }
    return log;
}

std::string PlainCuts(const std::string& text, const std::vector<std::vector<Entry>>& statements)
{
    PlainScanner scanner(text);
    std::string log;
    for (const std::vector<Entry>& entries : statements)
    {
        std::string piece;
        const std::string target = scanner.Cut(entries, piece);
        log.append(piece).append("|").append(target).append("|").append(scanner.Rest()).append("\n");
    }
    return log;
}

} // namespace

TEST(Scanner, CutsAtSeparatorsOfAnyFirstCharacter)
{
    using namespace std::string_literals;
    static const struct
    {
        std::string text;
        std::vector<Entry> entries;
        const char* cut;
    } cases[] = {
        {"a-b->c", {{"->", "arrow"}, {"--", "dash"}}, "a-b|arrow|c\n"},
        {"a->--c", {{"--", "dash"}, {"->-", "longer"}}, "a|longer|-c\n"},
        {"a((b", {{"((", "two"}}, "a|two|b\n"},
        {"(a),b", {{"),", "end"}}, "(a),b||\n"},
        {"a),b", {{"),", "end"}}, "a|end|b\n"},
        {"a\"b\";c\";d", {{"\";", "end"}}, "a\"b\";c|end|d\n"},
        {"a\";\"c", {{"\";", "end"}}, "a|end|\"c\n"},
        {"ab", {{"", "here"}}, "|here|ab\n"},
        {"ab", {{";", "end"}, {"", "here"}}, "|here|ab\n"},
        {"", {{"", "here"}}, "||\n"},
        {"a\xE4z\x80\x80z", {{"\x80z", "end"}}, "a\xE4z\x80|end|\n"},
        {"a\xFF", {{"\xFF", "end"}}, "a|end|\n"},
        // The text ends at its NUL.
        {"a\0;b"s, {{";", "end"}, {"Rest", "rest"}}, "a|rest|\n"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(Cuts(c.text, {c.entries}), c.cut);
}

TEST(Scanner, CutsAsAWalkOverEveryCharacterDoes)
{
    Dice dice(1);
    for (int round = 0; round < 20000; ++round)
    {
        const std::string text = RandomText(dice, 24);
        std::vector<std::vector<Entry>> statements(1 + dice.Below(4));
        for (std::vector<Entry>& entries : statements)
            entries = RandomEntries(dice);
        ASSERT_EQ(Cuts(text, statements), PlainCuts(text, statements)) << "of " << text;
    }
}
