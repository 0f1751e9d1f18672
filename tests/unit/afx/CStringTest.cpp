#include "RaisesInvalidArgument.h"

#include <afx.h>

#include <gtest/gtest.h>

TEST(CString, TakesNullForAnEmptyText)
{
    EXPECT_TRUE(CString(nullptr).IsEmpty());
}

TEST(CString, KeepsANulAsACharacter)
{
    const CString text('\0');
    EXPECT_EQ(text.GetLength(), 1);
    EXPECT_FALSE(text.IsEmpty());
    EXPECT_STREQ(text, "");
}

TEST(CString, CutsPartsAtItsEnds)
{
    const CString text("abc");
    EXPECT_EQ(text.Left(2), "ab");
    EXPECT_EQ(text.Left(9), "abc");
    EXPECT_EQ(text.Left(-1), "");
    EXPECT_EQ(text.Mid(1), "bc");
    EXPECT_EQ(text.Mid(1, 1), "b");
    EXPECT_EQ(text.Mid(-1, 2), "ab");
    EXPECT_EQ(text.Mid(7), "");
    EXPECT_EQ(text.Right(2), "bc");
}

TEST(CString, FindsFromBothEnds)
{
    const CString text("a.b.c");
    EXPECT_EQ(text.Find('.'), 1);
    EXPECT_EQ(text.Find('.', 2), 3);
    EXPECT_EQ(text.Find("b."), 2);
    EXPECT_EQ(text.Find("x"), -1);
    EXPECT_EQ(text.ReverseFind('.'), 3);
    EXPECT_EQ(text.FindOneOf("cb"), 2);
}

TEST(CString, FoldsTheLettersOfCodePage1252)
{
    CString text("A\xC4\xD7\x8A\x8C\x8E\x9F[");
    EXPECT_EQ(text.MakeLower(), "a\xE4\xD7\x9A\x9C\x9E\xFF[");
    EXPECT_EQ(text.MakeUpper(), "A\xC4\xD7\x8A\x8C\x8E\x9F[");
    EXPECT_EQ(CString("\xDC"
                      "ber")
                  .CompareNoCase("\xFC"
                                 "BER"),
              0);
    EXPECT_LT(CString("ab").CompareNoCase("ABC"), 0);
}

TEST(CString, FormatsItself)
{
    CString text("x");
    text.Format("%s-%-4s|%2d", text.GetString(), "ab", 7);
    EXPECT_EQ(text, "x-ab  | 7");
    text.AppendFormat("%c", '!');
    EXPECT_EQ(text, "x-ab  | 7!");
}

TEST(CString, RaisesInvalidArgumentOutsideTheText)
{
    CString text("ab");
    EXPECT_EQ(text[2], '\0');
    EXPECT_TRUE(RaisesInvalidArgument([&] { text.GetAt(3); }));
    EXPECT_TRUE(RaisesInvalidArgument([&] { text.SetAt(2, 'c'); }));
    EXPECT_TRUE(RaisesInvalidArgument([&] { text.SetAt(-1, 'c'); }));
    EXPECT_EQ(text, "ab");
}

TEST(CString, LendsItsBuffer)
{
    CString text;
    char* buffer = text.GetBuffer(10);
    buffer[0] = 'a';
    buffer[1] = '\0';
    text.ReleaseBuffer();
    EXPECT_EQ(text, "a");
}
