#include "TextsFixture.h"

#include <vector>

namespace
{

class ListFromIni : public TextsFixture
{
protected:
    // The items up to the end; both buffers get the same.
    std::vector<std::string> Items() const
    {
        std::vector<std::string> items;
        GuardedBuffer value(100);
        GuardedBuffer display(100);
        while (listNext(value.Data(), value.Size(), display.Data(), display.Size()) == 1)
        {
            EXPECT_EQ(value.Text(), display.Text());
            items.push_back(value.Text());
        }
        return items;
    }

    std::vector<std::string> ItemsOf(const std::string& value) const
    {
        WriteIni("[lists]\r\nlist=" + value + "\r\n");
        EXPECT_EQ(listStart("lists/list"), 1);
        return Items();
    }
};

using Texts = std::vector<std::string>;

} // namespace

TEST_F(ListFromIni, GivesTheItemsBetweenTheCommas)
{
    EXPECT_EQ(ItemsOf("one"), (Texts{"one"}));
    EXPECT_EQ(ItemsOf("one,two,three"), (Texts{"one", "two", "three"}));
}

TEST_F(ListFromIni, TrimsNothing)
{
    EXPECT_EQ(ItemsOf("a, b ,c"), (Texts{"a", " b ", "c"}));
}

TEST_F(ListFromIni, GivesEmptyItemsBetweenTwoCommas)
{
    EXPECT_EQ(ItemsOf("x,,y"), (Texts{"x", "", "y"}));
    EXPECT_EQ(ItemsOf(",x"), (Texts{"", "x"}));
}

TEST_F(ListFromIni, GivesNoEmptyItemAfterALastComma)
{
    EXPECT_EQ(ItemsOf("x,"), (Texts{"x"}));
    EXPECT_EQ(ItemsOf(","), (Texts{""}));
    EXPECT_EQ(ItemsOf("x,,"), (Texts{"x", ""}));
}

TEST_F(ListFromIni, OfAMissingKeyIsOneItem)
{
    EXPECT_EQ(listStart("lists/none"), 1);
    EXPECT_EQ(Items(), (Texts{"Entry not found"}));
}

TEST_F(ListFromIni, OfAnEmptyValueIsNone)
{
    WriteIni("[lists]\r\nlist=\r\n");
    EXPECT_EQ(listStart("lists/list"), 0);
    EXPECT_EQ(Items(), Texts());
}

TEST_F(ListFromIni, OfAPathWithoutASlashIsNoneAndDropsTheListBefore)
{
    WriteIni("[lists]\r\nlist=a,b\r\n");
    for (const char* path : {"lists", "", static_cast<const char*>(nullptr)})
    {
        EXPECT_EQ(listStart("lists/list"), 1);
        EXPECT_EQ(listStart(path), 0);
        EXPECT_EQ(Items(), Texts());
    }
}

TEST_F(ListFromIni, StartedAnewBeginsAnew)
{
    WriteIni("[lists]\r\nlist=a,b\r\nother=c\r\n");
    listStart("lists/list");
    GuardedBuffer buffer(10);
    EXPECT_EQ(listNext(buffer.Data(), buffer.Size(), buffer.Data(), buffer.Size()), 1);
    listStart("lists/other");
    EXPECT_EQ(Items(), (Texts{"c"}));
}

TEST_F(ListFromIni, StaysReadableAfterTheRelease)
{
    WriteIni("[lists]\r\nlist=a,b\r\n");
    listStart("lists/list");
    release();
    EXPECT_EQ(Items(), (Texts{"a", "b"}));
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
    EXPECT_EQ(Items(), (Texts{"d"}));
}

TEST_F(ListFromIni, AtItsEndWritesNothing)
{
    GuardedBuffer value(9, "old");
    GuardedBuffer display(9, "old");
    EXPECT_EQ(Items(), Texts());
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
    EXPECT_EQ(Items(), (Texts{"a", "b"}));
}
