// Formats, labels and lines of any characters, each in a block of its own length: under the sanitizers a read past the end
// of one stops the test.
#include "dialog/ClytDialog.h"
#include "dlgfile/Tokenize.h"
#include "support/RaisedMessage.h"
#include "tree/NodeFill.h"

#include <gtest/gtest.h>

#include <memory>
#include <random>
#include <vector>

namespace
{

constexpr int rounds = 20000;

class GeneratedTexts : public testing::Test
{
protected:
    size_t Any(size_t count) { return random() % count; }
    std::string Text(const std::string& letters, size_t longest)
    {
        std::string text;
        for (size_t length = Any(longest + 1); length > 0; --length)
            text += letters[Any(letters.size())];
        return text;
    }
    // Longer than what a text holds without a block.
    CString InBlock(const std::string& text)
    {
        const std::string filled = std::string(32, 'x') + text;
        return {filled.c_str(), static_cast<int>(filled.size())};
    }

    std::mt19937 random{11};
};

// In a block that ends with its NUL.
std::unique_ptr<char[]> Exact(const std::string& text)
{
    auto block = std::make_unique<char[]>(text.size() + 1);
    text.copy(block.get(), text.size());
    return block;
}

// By replacing the first mark again and again.
std::string Expanded(std::string label)
{
    for (size_t mark = label.find("##"); mark != std::string::npos; mark = label.find("##"))
        label.replace(mark, 2, "   ");
    return label.substr(0, lytShownLabelSize - 1);
}

} // namespace

TEST_F(GeneratedTexts, AreFormattedWithinTheirLength)
{
    for (int round = 0; round < rounds; ++round)
    {
        const CString format = InBlock(Text("%%s.05\\\"nt a", 24));
        CStringArray items;
        items.SetSize(25);
        int length = format.GetLength();
        for (int index = 0; index < items.GetCount(); ++index)
        {
            items.SetAt(index, index % 3 == 0 ? CString("\\") : InBlock(Text("\\n\"t%s", 6)));
            length += items[index].GetLength();
        }
        // A conversion without an end is refused.
        RaisedMessage([&] { EXPECT_LE(ClytDialog::FormatOutput(format, items).GetLength(), length); });
    }
}

TEST_F(GeneratedTexts, AreExpandedWithinTheirLength)
{
    for (int round = 0; round < rounds; ++round)
    {
        const CString before = InBlock(Text("\\\\nt x", 12));
        CString text = before;
        ClytDialog::ExpandEscapes(text);
        EXPECT_EQ(text.GetLength(), before.GetLength());
    }
}

TEST_F(GeneratedTexts, AreShownAsLabelsWithinTheirLength)
{
    for (int round = 0; round < rounds; ++round)
    {
        const std::string label = Text("##a ", size_t{LYT_TREE_TEXT_SIZE} * 4);
        char shown[lytShownLabelSize];
        lytExpandLabel(shown, Exact(label).get());
        EXPECT_EQ(shown, Expanded(label)) << label;
    }
}

TEST_F(GeneratedTexts, AreTakenApartWithinTheirLength)
{
    const DelimiterSet delimiters(",;():=");
    for (int round = 0; round < rounds; ++round)
    {
        const std::string line = Text("ab ,;():=\"\t\n", 30);
        ClytTokenList tokens;
        const auto block = Exact(line);
        const char* openQuote = lytTokenize(block.get(), delimiters, tokens);
        EXPECT_TRUE(openQuote == nullptr || *openQuote == '"') << line;
        for (POSITION place = tokens.GetHeadPosition(); place != nullptr;)
        {
            const ClytToken& token = tokens.GetNext(place);
            EXPECT_LE(token.GetColumn() + token.GetText().GetLength(), static_cast<int>(line.size())) << line;
        }
    }
}
