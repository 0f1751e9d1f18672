// The sample dialogs on the screen, in both languages, at the resolution that the test runs at: nothing is clipped,
// nothing covers another, lists end where their neighbours end. The same program runs at 96 and 120 dots per inch.
#include "lyt64.h"

#include "SampleDialog.h"

#include "support/Library.h"

#include <algorithm>
#include <functional>

namespace
{

// What a push button needs on either side of its caption, and a frame at the start of its line.
constexpr int captionMargin = 5;
constexpr int frameMargin = 8;
// The square of a mark at 96 dots per inch, and the gap before its text.
constexpr int markSize = 13;
constexpr int markGap = 4;
// What a list needs on either side of an item.
constexpr int itemMargin = 2;
// Units are scaled and cut to whole pixels, and a list keeps whole items only.
constexpr int rounding = 4;

struct Control
{
    std::string type;
    std::string caption;
    RECT place;

    bool IsList() const { return type == "ListBox"; }
    bool IsPushButton() const { return type == "PushButton"; }
    bool IsFrame() const { return type == "GroupBox"; }
};

std::string TypeOf(HWND window)
{
    const std::string name = robot::ClassOf(window);
    if (name != "Button")
        return name;
    switch (static_cast<DWORD>(GetWindowLongA(window, GWL_STYLE)) & BS_TYPEMASK)
    {
    case BS_GROUPBOX: return "GroupBox";
    case BS_PUSHBUTTON:
    case BS_DEFPUSHBUTTON: return "PushButton";
    default: return name;
    }
}

// What is seen of a dialog.
std::vector<Control> VisibleControlsOf(HWND dialog)
{
    std::vector<Control> controls;
    for (HWND child : robot::ChildrenOf(dialog))
    {
        if (IsWindowVisible(child) != FALSE)
            controls.push_back({TypeOf(child), robot::TextOf(child), robot::PlaceOf(child)});
    }
    return controls;
}

// The width of a caption as a button shows it, without the mark of its access key.
int ShownWidth(HWND dialog, std::string caption)
{
    std::erase(caption, '&');
    HDC context = GetDC(dialog);
    HGDIOBJ before = SelectObject(context, reinterpret_cast<HGDIOBJ>(SendMessageA(dialog, WM_GETFONT, 0, 0)));
    SIZE extent{};
    GetTextExtentPoint32A(context, caption.c_str(), static_cast<int>(caption.size()), &extent);
    SelectObject(context, before);
    ReleaseDC(dialog, context);
    return extent.cx;
}

bool Overlap(const RECT& one, const RECT& other)
{
    return one.left < other.right && other.left < one.right && one.top < other.bottom && other.top < one.bottom;
}

bool Holds(const RECT& outer, const RECT& inner)
{
    return inner.left >= outer.left && inner.right <= outer.right && inner.top >= outer.top &&
           inner.bottom <= outer.bottom;
}

std::string Name(const Control& control)
{
    return control.type + " \"" + control.caption + "\" at " + std::to_string(control.place.left) + ", " +
           std::to_string(control.place.top) + " to " + std::to_string(control.place.right) + ", " +
           std::to_string(control.place.bottom);
}

int Scaled(HWND dialog, int pixels)
{
    HDC context = GetDC(dialog);
    const int dots = GetDeviceCaps(context, LOGPIXELSX);
    ReleaseDC(dialog, context);
    return MulDiv(pixels, dots, 96);
}

// What a control needs beside its caption.
int EdgesOf(HWND dialog, const Control& control)
{
    if (control.IsPushButton())
        return 2 * captionMargin;
    if (control.IsFrame())
        return 2 * frameMargin;
    return control.type == "Button" ? Scaled(dialog, markSize) + markGap : 0;
}

void ExpectCaptionsToFit(HWND dialog)
{
    for (const Control& control : VisibleControlsOf(dialog))
    {
        if (control.type != "Static" && control.type != "Button" && !control.IsPushButton() && !control.IsFrame())
            continue;
        EXPECT_LE(ShownWidth(dialog, control.caption) + EdgesOf(dialog, control),
                  control.place.right - control.place.left)
            << Name(control);
    }
}

// What is left of a list for an item: a check list has a mark before it, a list that drops down its button after it.
int RoomForItems(HWND dialog, HWND list)
{
    RECT client{};
    GetClientRect(list, &client);
    const int room = client.right - client.left - 2 * itemMargin;
    if (TypeOf(list) == "ComboBox")
        return room - GetSystemMetrics(SM_CXVSCROLL);
    const bool hasMarks = (GetWindowLongA(list, GWL_STYLE) & LBS_OWNERDRAWFIXED) != 0;
    return hasMarks ? room - Scaled(dialog, markSize) - markGap : room;
}

void ExpectItemsToFit(HWND dialog)
{
    for (HWND list : robot::ChildrenOf(dialog))
    {
        if (TypeOf(list) != "ListBox" && TypeOf(list) != "ComboBox")
            continue;
        for (const std::string& item : robot::ItemsOf(list))
            EXPECT_LE(ShownWidth(dialog, item), RoomForItems(dialog, list)) << TypeOf(list) << ": " << item;
    }
}

void ExpectNothingToBeCovered(HWND dialog)
{
    RECT client{};
    GetClientRect(dialog, &client);
    const std::vector<Control> controls = VisibleControlsOf(dialog);
    for (const Control& control : controls)
    {
        EXPECT_TRUE(Holds(client, control.place)) << Name(control);
        for (const Control& other : controls)
        {
            if (&other == &control || other.IsFrame())
                continue;
            // A frame holds a control whole or not at all.
            const bool mayOverlap = control.IsFrame() && Holds(control.place, other.place);
            EXPECT_TRUE(mayOverlap || !Overlap(control.place, other.place)) << Name(control) << " and " << Name(other);
        }
    }
}

void ExpectEvenMargins(HWND dialog)
{
    RECT client{};
    GetClientRect(dialog, &client);
    RECT used = {client.right, client.bottom, 0, 0};
    for (const Control& control : VisibleControlsOf(dialog))
    {
        used.left = std::min(used.left, control.place.left);
        used.right = std::max(used.right, control.place.right);
        used.bottom = std::max(used.bottom, control.place.bottom);
    }
    EXPECT_NEAR(used.left, client.right - used.right, rounding);
    EXPECT_NEAR(used.left, client.bottom - used.bottom, rounding);
}

// Beside a list, in its frame, nothing that begins next to it reaches further down.
void ExpectListsToEndLevel(HWND dialog)
{
    const std::vector<Control> controls = VisibleControlsOf(dialog);
    for (const Control& list : controls)
    {
        const auto frame = std::ranges::find_if(controls, [&](const Control& control)
                                                { return control.IsFrame() && Holds(control.place, list.place); });
        ASSERT_TRUE(!list.IsList() || frame != controls.end()) << Name(list);
        for (const Control& other : controls)
        {
            if (!list.IsList() || !Holds(frame->place, other.place) || other.place.top < list.place.top ||
                other.place.top >= list.place.bottom)
                continue;
            EXPECT_LE(other.place.bottom, list.place.bottom + rounding) << Name(list) << " and " << Name(other);
        }
    }
}

class SampleLayout : public SampleDialog
{
protected:
    // Looks at the open dialog, and at it again when a press of this button has changed a caption.
    void ExpectInDialog(const std::function<void(HWND)>& expect)
    {
        int toggled = 0;
        robot.On("", [&](HWND dialog) { expect(dialog); });
        for (const char* toggle : {"&Hide hint", "&Hinweis ausblenden", "L&ock", "&Sperren"})
        {
            robot.On("",
                     [toggle, &toggled](HWND dialog)
                     {
                         HWND button = robot::ChildWithText(dialog, toggle);
                         if (button == nullptr)
                             return;
                         robot::Press(button);
                         ++toggled;
                     });
            robot.On("", [&](HWND dialog) { expect(dialog); });
        }
        robot.On("", [](HWND dialog) { robot::Press(GetDlgItem(dialog, IDCANCEL)); });
        EXPECT_EQ(Open(), 0);
        EXPECT_EQ(toggled, GetParam().hasToggle ? 1 : 0);
    }
};

} // namespace

TEST_P(SampleLayout, GivesEveryControlRoomForItsCaption)
{
    ExpectInDialog(ExpectCaptionsToFit);
}

TEST_P(SampleLayout, GivesEveryListRoomForItsItems)
{
    ExpectInDialog(ExpectItemsToFit);
}

TEST_P(SampleLayout, CoversNothing)
{
    ExpectInDialog(ExpectNothingToBeCovered);
}

TEST_P(SampleLayout, KeepsEvenMargins)
{
    ExpectInDialog(ExpectEvenMargins);
}

TEST_P(SampleLayout, LetsListsEndLevelWithTheirNeighbours)
{
    ExpectInDialog(ExpectListsToEndLevel);
}

// The catalogue is a dialog of the library's own, with captions from the language file.
class CatalogueLayout : public testing::TestWithParam<const char*>
{
};

TEST_P(CatalogueLayout, GivesEveryButtonRoomForItsCaptionAndCoversNothing)
{
    const SampleSet samples(GetParam());
    robot::Robot robot;
    robot.On("",
             [](HWND dialog)
             {
                 ExpectCaptionsToFit(dialog);
                 ExpectNothingToBeCovered(dialog);
                 robot::Press(GetDlgItem(dialog, IDCANCEL));
             });
    char choice[256] = "";
    EXPECT_EQ(Call<decltype(lytOpenTreeView)>("lytOpenTreeView")("S", choice, 255), 0);
    EXPECT_TRUE(robot.Done()) << robot.Log();
}

INSTANTIATE_TEST_SUITE_P(In, CatalogueLayout, testing::Values("English", "German"),
                         [](const auto& language) { return std::string(language.param); });

INSTANTIATE_TEST_SUITE_P(Dialog, SampleLayout, testing::ValuesIn(Samples()), NameOfSample);
