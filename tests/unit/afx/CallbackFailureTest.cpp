#include "RaisesInvalidArgument.h"

#include "system/CallbackFailure.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace
{

// A call of the platform's: it asks its callback up to three times, and stops at the first that says no.
template <class CALLBACK>
int Enumerate(CALLBACK callback) noexcept
{
    int calls = 0;
    while (calls < 3)
    {
        ++calls;
        if (!callback())
            break;
    }
    return calls;
}

} // namespace

TEST(CallbackFailure, IsNoneUnlessSomethingIsRaised)
{
    CallbackFailure failure;
    EXPECT_EQ(Enumerate([&] { return failure.Run([] {}); }), 3);
    EXPECT_NO_THROW(failure.Rethrow());
}

TEST(CallbackFailure, IsRaisedOnceTheCallIsOver)
{
    CallbackFailure failure;
    EXPECT_EQ(Enumerate([&] { return failure.Run([] { throw std::runtime_error("inside"); }); }), 1);
    EXPECT_THROW(failure.Rethrow(), std::runtime_error);
    EXPECT_NO_THROW(failure.Rethrow());
}

TEST(CallbackFailure, KeepsAnExceptionThatTravelsAsAPointer)
{
    CallbackFailure failure;
    EXPECT_FALSE(failure.Run([] { AfxThrowInvalidArgException(); }));
    EXPECT_TRUE(RaisesInvalidArgument([&] { failure.Rethrow(); }));
}
