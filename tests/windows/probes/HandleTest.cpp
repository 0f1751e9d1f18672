// The owners of the platform's handles.
#include "base/ClytHandle.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <type_traits>
#include <vector>

namespace
{

std::vector<int> closed;

// Handles that are numbers; closing one changes the last error.
struct NumberKind
{
    using Handle = int;
    static Handle None() noexcept { return -1; }
    static void Close(Handle number) noexcept
    {
        closed.push_back(number);
        SetLastError(ERROR_INVALID_HANDLE);
    }
};
using Number = ClytHandle<NumberKind>;
using Numbers = std::vector<int>;

class Handle : public testing::Test
{
protected:
    Handle() { closed.clear(); }
};

} // namespace

TEST_F(Handle, HasOneOwnerAndIsClosedByTheNextOne)
{
    EXPECT_FALSE(std::is_copy_constructible_v<Number>);
    EXPECT_FALSE(std::is_copy_assignable_v<Number>);
    Number first(1);
    Number second(std::move(first));
    EXPECT_FALSE(first.IsOpen());
    EXPECT_EQ(second.Get(), 1);
    EXPECT_EQ(closed, Numbers());
    second = Number(2);
    EXPECT_EQ(closed, Numbers({1}));
    second.Reset(3);
    EXPECT_EQ(closed, Numbers({1, 2}));
    second.Reset();
    EXPECT_EQ(closed, Numbers({1, 2, 3}));
    EXPECT_FALSE(second.IsOpen());
}

TEST_F(Handle, IsClosedWithItsOwnerUnlessItIsHandedOverOrNone)
{
    {
        Number number(4);
        EXPECT_EQ(number.Release(), 4);
        const Number none;
    }
    EXPECT_EQ(closed, Numbers());
    try
    {
        const Number number(7);
        SetLastError(ERROR_FILE_NOT_FOUND);
        throw std::runtime_error("raised");
    }
    catch (const std::runtime_error&)
    {
        EXPECT_EQ(closed, Numbers({7}));
    }
    EXPECT_EQ(GetLastError(), static_cast<DWORD>(ERROR_FILE_NOT_FOUND)) << "closing keeps the last error";
}
