#include "support/WordKinds.h"

#include <gtest/gtest.h>

namespace
{

template <class MEANING>
class WordTable : public testing::Test
{
};
TYPED_TEST_SUITE(WordTable, WordKinds);

} // namespace

TYPED_TEST(WordTable, HasOneWordForEachMeaning)
{
    for (const auto& word : ClytWordTable<TypeParam>::words)
    {
        EXPECT_EQ(lytMeaningOf<TypeParam>(word.text), word.meaning) << word.text;
        EXPECT_STREQ(lytTextOf(word.meaning), word.text);
    }
}

TYPED_TEST(WordTable, ComparesByteForByte)
{
    for (const auto& word : ClytWordTable<TypeParam>::words)
    {
        CString lower = word.text;
        EXPECT_EQ(lytMeaningOf<TypeParam>(lower.MakeLower()), TypeParam::Other) << word.text;
        EXPECT_EQ(lytMeaningOf<TypeParam>(CString(word.text) + " "), TypeParam::Other) << word.text;
    }
    EXPECT_EQ(lytMeaningOf<TypeParam>(CString()), TypeParam::Other);
}

TEST(Word, KeepsTheTextOfTheDescription)
{
    const ClytStateWord known("CLEAR");
    EXPECT_EQ(known.GetText(), "CLEAR");
    EXPECT_EQ(known.GetMeaning(), ClytState::Clear);
    const ClytStateWord unknown("ENLARGE");
    EXPECT_EQ(unknown.GetText(), "ENLARGE");
    EXPECT_EQ(unknown.GetMeaning(), ClytState::Other);
    EXPECT_EQ(ClytStateWord(ClytState::DefButton).GetText(), "DEFBUTTON");
}
