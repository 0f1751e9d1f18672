// Sizes at the resolution of the screen that the test runs on. The same program runs at 96, 120 and 144 dots per inch.
#include "DialogFixture.h"

#include "CreationHook.h"

namespace
{

int DotsPerInch()
{
    HDC screen = GetDC(nullptr);
    const int dots = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dots;
}

// Keeps the size with which an option button is created, and allows every window.
bool NoteOptionButton(const CREATESTRUCTA& create, SIZE& created)
{
    const auto style = static_cast<DWORD>(create.style);
    if ((style & BS_TYPEMASK) == BS_AUTORADIOBUTTON && (style & WS_CHILD) != 0)
        created = {create.cx, create.cy};
    return true;
}

class Geometry : public DialogFixture
{
protected:
    void SetUp() override
    {
        if (DotsPerInch() == 96)
        {
            x = 0.7557F;
            y = 1.0818F;
        }
        else if (DotsPerInch() == 120)
        {
            x = 1.0033F;
            y = 1.3159F;
        }
        else
            GTEST_SKIP() << "not a resolution that dialogs are made for";
    }
    int ScaledX(int units) const { return static_cast<int>(static_cast<float>(units) * x); }
    int ScaledY(int units) const { return static_cast<int>(static_cast<float>(units) * y); }

    float x = 1;
    float y = 1;
};

using OtherResolution = DialogFixture;

} // namespace

TEST_F(Geometry, WindowIsSizedInTwoPasses)
{
    Describe({});
    On(
        [&](HWND dialog)
        {
            RECT window{};
            RECT client{};
            GetWindowRect(dialog, &window);
            GetClientRect(dialog, &client);
            const int frameX = window.right - window.left - client.right;
            const int frameY = window.bottom - window.top - client.bottom;
            EXPECT_EQ(window.right - window.left, ScaledX(300 + frameX));
            EXPECT_EQ(window.bottom - window.top, ScaledY(200 + frameY));
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(Geometry, ControlsAreScaledAndCutToWholeUnits)
{
    Description description;
    description.controls += "TextBox 11, 23, 101, 17, .A\nGroupBox 3, 7, 99, 55, \"Label\", .G\n";
    Describe(description);
    On(
        [&](HWND dialog)
        {
            const struct
            {
                size_t index;
                int left, top, width, height;
            } cases[] = {{3, 11, 23, 101, 17}, {4, 3, 7, 99, 55}, {1, 10, 150, 60, 20}, {2, 90, 150, 60, 20}};
            for (const auto& c : cases)
            {
                SCOPED_TRACE(c.index);
                const RECT rect = robot::PlaceOf(robot::ChildAt(dialog, c.index));
                EXPECT_EQ(rect.left, ScaledX(c.left));
                EXPECT_EQ(rect.top, ScaledY(c.top));
                EXPECT_EQ(rect.right - rect.left, ScaledX(c.width));
                EXPECT_EQ(rect.bottom - rect.top, ScaledY(c.height));
            }
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(Geometry, TextsAreScaledInPlaceOnly)
{
    Description description;
    description.controls += "Text 11, 23, 101, 17, \"Label\", .L\n";
    Describe(description);
    On(
        [&](HWND dialog)
        {
            const RECT rect = robot::PlaceOf(robot::ChildAt(dialog, 3));
            EXPECT_EQ(rect.left, ScaledX(11));
            EXPECT_EQ(rect.top, ScaledY(23));
            HDC context = GetDC(dialog);
            SelectObject(context, reinterpret_cast<HGDIOBJ>(SendMessageA(dialog, WM_GETFONT, 0, 0)));
            SIZE extent{};
            GetTextExtentPoint32A(context, "A label", 7, &extent);
            ReleaseDC(dialog, context);
            EXPECT_EQ(rect.right - rect.left, extent.cx);
            EXPECT_EQ(rect.bottom - rect.top, extent.cy);
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(Geometry, ControlsWithAMarkAreAsWideAsTheirTextWithRoomForTheMark)
{
    Description description;
    description.controls += "CheckBox 8, 6, 400, 90, \"Label\", .Box\nOptionGroup .Kind\n"
                            "OptionButton 8, 40, 100, 90, \"Label\", .Option\nText 10, 60, 50, 12, \"Label\", .L\n";
    Describe(description);
    On(
        [&](HWND dialog)
        {
            RECT label{};
            GetClientRect(robot::ChildAt(dialog, 5), &label);
            for (const size_t index : {size_t{3}, size_t{4}})
            {
                RECT area{};
                GetClientRect(robot::ChildAt(dialog, index), &area);
                EXPECT_EQ(area.right, label.right + ScaledX(28));
                EXPECT_EQ(area.bottom, label.bottom);
            }
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(Geometry, OptionButtonIsCreatedAtASizeScaledTwice)
{
    Description description;
    description.controls += "OptionGroup .Group\nOptionButton 10, 40, 100, 100, \"Label\", .One\n";
    Describe(description);
    SIZE created{};
    const CreationHook look([&](const CREATESTRUCTA& create) { return NoteOptionButton(create, created); });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
    EXPECT_EQ(created.cx, ScaledX(ScaledX(100)));
    EXPECT_EQ(created.cy, ScaledY(ScaledY(100)));
    EXPECT_EQ(created.cx, DotsPerInch() == 96 ? 56 : 100);
}

TEST_F(Geometry, OptionButtonScaledTwiceStaysInRange)
{
    Description description;
    description.controls += "OptionGroup .Group\nOptionButton 10, 40, 2147483647, 2147483647, \"Label\", .One\n";
    Describe(description);
    SIZE created{};
    const CreationHook look([&](const CREATESTRUCTA& create) { return NoteOptionButton(create, created); });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
    EXPECT_GT(created.cx, 0);
    EXPECT_GT(created.cy, 0);
}

TEST_F(Geometry, NumbersBeyondAnyWindowAreHarmless)
{
    Description description;
    description.controls +=
        "TextBox 2147483647, -2147483648, 2147483647, 2147483647, .A\nText 99999999999, 1, 1, 1, .B\n"
        "TextBox -5, -5, -10, -10, .C\n";
    Describe(description);
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
    description = Description();
    description.begin = "Begin Dialog Box 2147483647, -2147483648, \"Title\", .Main\n";
    Describe(description);
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(OtherResolution, Is240AndTheEmptyTemplateStandsUntilItIsClosed)
{
    if (DotsPerInch() == 96 || DotsPerInch() == 120)
        GTEST_SKIP() << "a resolution that dialogs are made for";
    Describe({});
    for (const bool byKey : {false, true})
    {
        robot.AnswerMessage();
        robot.On("Dialog", [](HWND dialog) { PostMessageA(dialog, WM_KEYDOWN, VK_RETURN, 1); });
        robot.On("Dialog",
                 [byKey](HWND dialog)
                 {
                     EXPECT_TRUE(robot::ChildrenOf(dialog).empty());
                     PostMessageA(dialog, byKey ? WM_KEYDOWN : WM_CLOSE, byKey ? WPARAM{VK_ESCAPE} : 0, 0);
                 });
        EXPECT_EQ(Show("a"), 0);
        EXPECT_EQ(text, "as it was");
    }
    EXPECT_EQ(robot.Messages(), (Texts{"E240 ''", "E240 ''"}));
}
