// Where windows in memory lie.
#include <windows.h>

#include <gtest/gtest.h>

#include <climits>

namespace
{

class WindowPlaces : public testing::Test
{
protected:
    ~WindowPlaces() override { DestroyWindow(dialog); }

    HWND dialog =
        CreateWindowExA(0, "#32770", "", WS_POPUP | WS_DLGFRAME, 0, 0, 100, 100, nullptr, nullptr, nullptr, nullptr);
};

} // namespace

TEST_F(WindowPlaces, AreKeptWithinWhatCanBeCountedOn)
{
    for (const int far : {INT_MAX, INT_MIN})
    {
        SCOPED_TRACE(far);
        HWND list = CreateWindowExA(WS_EX_CLIENTEDGE, "ListBox", "", WS_CHILD, far, far, far, far, dialog, nullptr,
                                    nullptr, nullptr);
        ASSERT_TRUE(SetWindowPos(list, nullptr, far, far, far, far, 0));
        ASSERT_TRUE(SetWindowPos(dialog, nullptr, far, far, far, far, 0));
        RECT place = {};
        ASSERT_TRUE(GetWindowRect(list, &place));
        EXPECT_GE(place.right, place.left);
        EXPECT_GE(place.bottom, place.top);
        EXPECT_EQ(place.left > 0, far > 0);
    }
}
