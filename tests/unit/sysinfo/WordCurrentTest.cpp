#include "sysinfo/word/WordCurrent.h"

#include "sysinfo/frame/ProgramKind.h"

#include <gtest/gtest.h>

TEST(WordCurrent, IsTheLastPieceOfTheRegisteredNameWithAZero)
{
    EXPECT_EQ(WordVersionOf("Word.Application.16"), "16.0");
    EXPECT_EQ(WordVersionOf("Word.Document.8"), "8.0");
    EXPECT_EQ(WordVersionOf("Word."), ".0");
}

TEST(WordCurrent, IsTheWholeNameWhenThatHasNoDot)
{
    EXPECT_EQ(WordVersionOf("16"), "16.0");
    EXPECT_EQ(WordVersionOf("Word"), "Word.0");
    EXPECT_EQ(WordVersionOf(""), ".0");
}

TEST(WordCurrent, IsEmptyWhenNothingIsRegistered)
{
    EXPECT_EQ(WordCurrentText({}), "");
}

TEST(WordCurrent, TellsTheBitsOfItsProgramFromVersion14On)
{
    static const struct
    {
        const char* program;
        std::optional<unsigned> kind;
        const char* text;
    } cases[] = {
        {"Word.Application.11", 6U, "11.0"},
        {"Word.Application.13", 6U, "13.0"},
        {"Word.Application.14", 6U, "14.0 64 bit"},
        {"Word.Application.14", 0U, "14.0 32 bit"},
        {"Word.Application.16", 6U, "16.0 64 bit"},
        {"Word.Application.16", 1U, "16.0 32 bit"},
        {"Word.Application.16", {}, "16.0"},
        {"Word", 6U, "Word.0"},
        {"Word.4294967304", 6U, "4294967304.0 64 bit"},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.text);
        EXPECT_EQ(WordCurrentText({c.program, c.kind}), c.text);
    }
}

TEST(BinaryKind, IsTellingOnlyFor64Bits)
{
    EXPECT_EQ(BitsText(6U), " 64 bit");
    for (const unsigned kind : {0U, 1U, 2U, 3U, 4U, 5U, 7U})
        EXPECT_EQ(BitsText(kind), " 32 bit");
    EXPECT_EQ(BitsText({}), "");
}
