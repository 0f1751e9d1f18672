// The sample dialogs on the screen, in both languages, at the resolution that the test runs at: nothing is clipped,
// nothing covers another, lists end where their neighbours end. The same program runs at 96 and 120 dots per inch.
#include "lyt64.h"

#include "robot/WindowRobot.h"
#include "support/Library.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <functional>

namespace
{

namespace fs = std::filesystem;

// What a button needs on either side of its caption.
constexpr int captionMargin = 5;
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

RECT PlaceOf(HWND window)
{
    RECT rect{};
    GetWindowRect(window, &rect);
    MapWindowPoints(nullptr, GetParent(window), reinterpret_cast<POINT*>(&rect), 2);
    return rect;
}

// What is seen of a dialog.
std::vector<Control> VisibleControlsOf(HWND dialog)
{
    std::vector<Control> controls;
    for (HWND child : robot::ChildrenOf(dialog))
    {
        if (IsWindowVisible(child) != FALSE)
            controls.push_back({TypeOf(child), robot::TextOf(child), PlaceOf(child)});
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

void ExpectCaptionsToFit(HWND dialog)
{
    for (const Control& control : VisibleControlsOf(dialog))
    {
        if (!control.IsPushButton())
            continue;
        EXPECT_LE(ShownWidth(dialog, control.caption) + 2 * captionMargin, control.place.right - control.place.left)
            << Name(control);
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

struct Sample
{
    const char* file;
    const char* language;
    bool hasToggle; // a button of it has two captions
};

void PrintTo(const Sample& sample, std::ostream* out)
{
    *out << sample.file << " in " << sample.language;
}

class SampleLayout : public testing::TestWithParam<Sample>
{
protected:
    SampleLayout()
    {
        folder.Write("lyt.ini", std::string("[global]\r\nCurrent Language=") + GetParam().language + "\r\n");
        const fs::path samples = fs::path(ProgramFolder()) / "samples" / "dialogs";
        // Every description opens as that of a symbol: what it is called is not looked at.
        fs::copy(samples, folder.Path(), fs::copy_options::recursive | fs::copy_options::overwrite_existing);
        fs::copy_file(samples / (GetParam().file + std::string(".dlg")), fs::path(folder.Path()) / "lytInSym.dlg",
                      fs::copy_options::overwrite_existing);
        Call<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")("x.doc", folder.Path().c_str(),
                                                                             folder.Path().c_str());
    }
    ~SampleLayout() override { Call<decltype(FreeGlobalObject)>("FreeGlobalObject")(); }

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
        char text[1025] = "";
        Call<decltype(lytSymbolPropertyDialog)>("lytSymbolPropertyDialog")("", text, 1024);
        EXPECT_TRUE(robot.Done()) << robot.Log();
        EXPECT_TRUE(robot.Messages().empty());
        EXPECT_EQ(toggled, GetParam().hasToggle ? 1 : 0);
    }

    const TestFolder folder;
    robot::Robot robot;
};

std::vector<Sample> Samples()
{
    std::vector<Sample> samples;
    for (const char* language : {"English", "German"})
    {
        for (const char* file : {"lytCdGrp", "lytInPhr", "lytInSym", "lytRpGrp", "lytWzPhr", "lytWzSym"})
            samples.push_back({file, language, false});
        for (const char* file : {"finding", "lytWzGrp"})
            samples.push_back({file, language, true});
    }
    return samples;
}

} // namespace

TEST_P(SampleLayout, GivesEveryButtonRoomForItsCaption)
{
    ExpectInDialog(ExpectCaptionsToFit);
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

INSTANTIATE_TEST_SUITE_P(Dialog, SampleLayout, testing::ValuesIn(Samples()),
                         [](const auto& sample)
                         { return std::string(sample.param.file) + "In" + sample.param.language; });
