#include "TextsFixture.h"

#include "support/Cases.h"

namespace
{

class ListFromIni : public TextsFixture
{
protected:
    // The items up to the end, each in brackets; both buffers get the same.
    std::string Items() const
    {
        std::string items;
        GuardedBuffer value(100);
        GuardedBuffer display(100);
        while (listNext(value.Data(), value.Size(), display.Data(), display.Size()) == 1)
        {
            EXPECT_EQ(value.Text(), display.Text());
            items += "[" + value.Text() + "]";
        }
        return items;
    }
};

} // namespace

TEST_F(ListFromIni, GivesTheItemsBetweenTheCommas)
{
    const auto items = [this](const std::string& value)
    {
        WriteIni("[lists]\r\nlist=" + value + "\r\n");
        const int answer = listStart("lists/list");
        return std::to_string(answer) + " " + Items();
    };
    ExpectEach(items, {{"one", "1 [one]"},
                       {"one,two,three", "1 [one][two][three]"},
                       {"a, b ,c", "1 [a][ b ][c]"},
                       {"x,,y", "1 [x][][y]"},
                       {",x", "1 [][x]"},
                       // There is no empty item after a last comma.
                       {"x,", "1 [x]"},
                       {",", "1 []"},
                       {"x,,", "1 [x][]"},
                       {"", "0 "}});
    EXPECT_EQ(listStart("lists/none"), 1);
    EXPECT_EQ(Items(), "[Entry not found]");
}

TEST_F(ListFromIni, OfAPathWithoutASlashIsNoneAndDropsTheListBefore)
{
    WriteIni("[lists]\r\nlist=a,b\r\n");
    for (const char* path : {"lists", "", static_cast<const char*>(nullptr)})
    {
        EXPECT_EQ(listStart("lists/list"), 1);
        EXPECT_EQ(listStart(path), 0);
        EXPECT_EQ(Items(), "");
    }
}

TEST_F(ListFromIni, StartedAnewBeginsAnew)
{
    WriteIni("[lists]\r\nlist=a,b\r\nother=c\r\n");
    listStart("lists/list");
    GuardedBuffer buffer(10);
    EXPECT_EQ(listNext(buffer.Data(), buffer.Size(), buffer.Data(), buffer.Size()), 1);
    listStart("lists/other");
    EXPECT_EQ(Items(), "[c]");
}

TEST_F(ListFromIni, StaysReadableAfterTheRelease)
{
    WriteIni("[lists]\r\nlist=a,b\r\n");
    listStart("lists/list");
    release();
    EXPECT_EQ(Items(), "[a][b]");
}

TEST_F(ListFromIni, WritesANulOneBeyondEitherSizeAndNothingElse)
{
    WriteIni("[lists]\r\nlist=ab,cd\r\n");
    listStart("lists/list");
    GuardedBuffer value(3);
    GuardedBuffer display(10);
    EXPECT_EQ(listNext(value.Data(), value.Size(), display.Data(), display.Size()), 1);
    EXPECT_EQ(value.Text(), "ab");
    EXPECT_EQ(value.ByteBeyond(), '\0');
    EXPECT_TRUE(value.IsIntact(1));
    EXPECT_EQ(display.Text(), "ab");
    EXPECT_EQ(display.ByteBeyond(), '\0');
    EXPECT_TRUE(display.IsIntact(1));
}

TEST_F(ListFromIni, AnItemThatDoesNotFitLeavesThatBufferEmpty)
{
    WriteIni("[lists]\r\nlist=abc,d\r\n");
    listStart("lists/list");
    GuardedBuffer value(3, "x");
    GuardedBuffer display(4, "x");
    EXPECT_EQ(listNext(value.Data(), value.Size(), display.Data(), display.Size()), 1);
    EXPECT_EQ(value.Text(), "");
    EXPECT_EQ(value.ByteBeyond(), '\0');
    EXPECT_TRUE(value.IsIntact(1));
    EXPECT_EQ(display.Text(), "abc");
    EXPECT_EQ(Items(), "[d]");
}

TEST_F(ListFromIni, AtItsEndWritesNothing)
{
    GuardedBuffer value(9, "old");
    GuardedBuffer display(9, "old");
    EXPECT_EQ(Items(), "");
    EXPECT_EQ(listNext(value.Data(), value.Size(), display.Data(), display.Size()), 0);
    EXPECT_EQ(value.Text(), "old");
    EXPECT_EQ(display.Text(), "old");
    EXPECT_TRUE(value.IsIntact());
    EXPECT_TRUE(display.IsIntact());
}

TEST_F(ListFromIni, TakesNoItemForABufferThatHoldsNothing)
{
    WriteIni("[lists]\r\nlist=a,b\r\n");
    listStart("lists/list");
    GuardedBuffer buffer(9, "old");
    EXPECT_EQ(listNext(nullptr, 9, buffer.Data(), 9), 0);
    EXPECT_EQ(listNext(buffer.Data(), 9, nullptr, 9), 0);
    EXPECT_EQ(listNext(buffer.Data(), 0, buffer.Data(), 9), 0);
    EXPECT_EQ(listNext(buffer.Data(), 9, buffer.Data(), -1), 0);
    EXPECT_EQ(buffer.Text(), "old");
    EXPECT_EQ(Items(), "[a][b]");
}
