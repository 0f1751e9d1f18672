#include "base/ClytOwnedList.h"

#include "RaisesInvalidArgument.h"

#include <gtest/gtest.h>

namespace
{

class ListedRecord : public CObject
{
public:
    explicit ListedRecord(int* deaths) : m_deaths(deaths) {}
    ~ListedRecord() override { ++*m_deaths; }

private:
    int* m_deaths;
};

} // namespace

TEST(CStringList, WalksInBothDirections)
{
    CStringList list;
    for (const char* text : {"a", "b", "c"})
        list.AddTail(text);
    CString forward;
    for (POSITION position = list.GetHeadPosition(); position != nullptr;)
        forward += list.GetNext(position);
    CString backward;
    for (POSITION position = list.FindIndex(2); position != nullptr;)
        backward += list.GetPrev(position);
    EXPECT_EQ(forward, "abc");
    EXPECT_EQ(backward, "cba");
}

TEST(CStringList, GivesNoPlaceForAnIndexOutsideIt)
{
    CStringList list;
    list.AddTail("a");
    EXPECT_NE(list.FindIndex(0), nullptr);
    EXPECT_EQ(list.FindIndex(1), nullptr);
    EXPECT_EQ(list.FindIndex(-1), nullptr);
}

TEST(CStringList, RaisesInvalidArgumentWhereThereIsNoElement)
{
    CStringList list;
    POSITION nowhere = nullptr;
    EXPECT_TRUE(RaisesInvalidArgument([&] { list.GetHead(); }));
    EXPECT_TRUE(RaisesInvalidArgument([&] { list.RemoveHead(); }));
    EXPECT_TRUE(RaisesInvalidArgument([&] { list.GetNext(nowhere); }));
}

TEST(CStringArray, ChecksItsBounds)
{
    CStringArray array;
    array.Add("a");
    array.InsertAt(0, "b");
    EXPECT_EQ(array[0], "b");
    EXPECT_TRUE(RaisesInvalidArgument([&] { array.GetAt(2); }));
    EXPECT_TRUE(RaisesInvalidArgument([&] { array.GetAt(-1); }));
    EXPECT_TRUE(RaisesInvalidArgument([&] { array.RemoveAt(2); }));
    EXPECT_TRUE(RaisesInvalidArgument([&] { array.InsertAt(-1, "c"); }));
    EXPECT_TRUE(RaisesInvalidArgument([&] { array.SetSize(-1); }));
    array.RemoveAt(0);
    EXPECT_EQ(array.GetCount(), 1);
}

TEST(CStringArray, GrowsByEmptyTextsUpToAnElementBeyondItsEnd)
{
    CStringArray array;
    array.InsertAt(2, "c");
    ASSERT_EQ(array.GetCount(), 3);
    EXPECT_EQ(array[1], "");
    EXPECT_EQ(array[2], "c");
}

TEST(CMapStringToPtr, LeavesTheValueAloneWhenTheKeyIsMissing)
{
    CMapStringToPtr map;
    int thing = 0;
    map.SetAt("a", &thing);
    void* found = nullptr;
    EXPECT_FALSE(map.Lookup("A", found));
    EXPECT_EQ(found, nullptr);
    EXPECT_TRUE(map.Lookup("a", found));
    EXPECT_EQ(found, &thing);
}

TEST(ClytOwnedList, DeletesEachRecordOnce)
{
    int deaths = 0;
    {
        ClytOwnedList<ListedRecord> list;
        ClytOwnedList<ListedRecord> other;
        list.AddTail(std::make_unique<ListedRecord>(&deaths));
        other.AddTail(std::make_unique<ListedRecord>(&deaths));
        list.Exchange(other);
        list.AddTail(other.RemoveHead());
        EXPECT_EQ(list.GetCount(), 2);
        list.RemoveHead();
        EXPECT_EQ(deaths, 1);
    }
    EXPECT_EQ(deaths, 2);
}
