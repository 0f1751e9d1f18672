// A check list draws its items itself: in the colours that somebody has chosen for the system, high contrast among them.
// What is drawn only real windows show.
#include "dialogs/DialogFixture.h"

#include <algorithm>
#include <array>
#include <memory>

namespace
{

// A scheme in which no channel has a value that the usual schemes have, so that none of their colours goes unnoticed.
constexpr std::array<int, 5> elements = {COLOR_WINDOW, COLOR_WINDOWTEXT, COLOR_HIGHLIGHT, COLOR_HIGHLIGHTTEXT,
                                         COLOR_GRAYTEXT};
constexpr std::array<COLORREF, 5> scheme = {RGB(20, 30, 40), RGB(230, 220, 100), RGB(90, 30, 150), RGB(200, 240, 210),
                                            RGB(60, 190, 70)};

class ChosenScheme
{
public:
    ChosenScheme()
    {
        std::ranges::transform(elements, m_before.begin(), [](int element) { return GetSysColor(element); });
        SetSysColors(static_cast<int>(elements.size()), elements.data(), scheme.data());
    }
    ChosenScheme(const ChosenScheme&) = delete;
    ChosenScheme& operator=(const ChosenScheme&) = delete;
    ~ChosenScheme() { SetSysColors(static_cast<int>(elements.size()), elements.data(), m_before.data()); }

private:
    std::array<COLORREF, 5> m_before{};
};

struct ContextDeleter
{
    void operator()(HDC context) const { DeleteDC(context); }
};

struct BitmapDeleter
{
    void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
};

// Where an item is drawn on instead of the screen.
class Canvas
{
public:
    static constexpr int width = 120;
    static constexpr int height = 16;

    explicit Canvas(HWND list)
    {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* pixels = nullptr;
        m_bitmap.reset(CreateDIBSection(m_context.get(), &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
        SelectObject(m_context.get(), m_bitmap.get());
        SelectObject(m_context.get(), reinterpret_cast<HGDIOBJ>(SendMessageA(list, WM_GETFONT, 0, 0)));
    }

    void Draw(HWND list, UINT state) const
    {
        DRAWITEMSTRUCT draw = {};
        draw.CtlType = ODT_LISTBOX;
        draw.itemAction = ODA_DRAWENTIRE;
        draw.itemState = state;
        draw.hwndItem = list;
        draw.hDC = m_context.get();
        draw.rcItem = {0, 0, width, height};
        SendMessageA(GetParent(list), WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&draw));
    }
    COLORREF At(int x, int y) const { return GetPixel(m_context.get(), x, y); }

private:
    // The bitmap goes after the context that it is selected into.
    std::unique_ptr<std::remove_pointer_t<HBITMAP>, BitmapDeleter> m_bitmap;
    std::unique_ptr<std::remove_pointer_t<HDC>, ContextDeleter> m_context{CreateCompatibleDC(nullptr)};
};

bool IsBetween(int value, int one, int other)
{
    return value >= std::min(one, other) && value <= std::max(one, other);
}

// The smoothed edge of a letter has a colour between that of the text and that of its ground.
bool IsBlend(COLORREF colour, COLORREF one, COLORREF other)
{
    return IsBetween(GetRValue(colour), GetRValue(one), GetRValue(other)) &&
           IsBetween(GetGValue(colour), GetGValue(one), GetGValue(other)) &&
           IsBetween(GetBValue(colour), GetBValue(one), GetBValue(other));
}

// The text after the mark has one colour on the other.
void ExpectText(const Canvas& canvas, COLORREF text, COLORREF ground)
{
    constexpr int afterMark = 20;
    int inked = 0;
    for (int y = 0; y < Canvas::height; ++y)
    {
        for (int x = afterMark; x < Canvas::width; ++x)
        {
            const COLORREF colour = canvas.At(x, y);
            ASSERT_TRUE(IsBlend(colour, text, ground)) << std::hex << colour << " at " << std::dec << x << ", " << y;
            inked += colour != ground ? 1 : 0;
        }
    }
    EXPECT_GT(inked, 0);
    EXPECT_EQ(canvas.At(Canvas::width - 1, Canvas::height - 1), ground);
}

class CheckListColours : public DialogFixture
{
protected:
    // Opens a dialog with a check list, and looks at it.
    void Look(const std::function<void(HWND list)>& look, const std::string& values = "")
    {
        Description description;
        description.controls += "CheckListBox 10, 40, 130, 62, .List\n";
        description.values = "List=ONE,Xone\nList=TWO,xtwo\n" + values;
        Describe(description);
        On([&look](HWND dialog) { look(robot::ChildOfClass(dialog, "ListBox")); });
        EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
    }
    // Draws the first item in that state and looks at it.
    void Expect(UINT state, COLORREF ink, COLORREF ground, const std::string& values = "")
    {
        Look(
            [=](HWND list)
            {
                const Canvas canvas(list);
                canvas.Draw(list, state);
                ExpectText(canvas, ink, ground);
                EXPECT_EQ(canvas.At(0, 0), scheme[0]) << "the ground of the mark";
            },
            values);
    }

    const ChosenScheme chosen;
};

} // namespace

TEST_F(CheckListColours, AreThoseThatTheSystemHasForTheState)
{
    Expect(0, scheme[1], scheme[0]);
    Expect(ODS_SELECTED, scheme[3], scheme[2]);
    Expect(ODS_SELECTED, scheme[4], scheme[0], "List=INACTIVE\n");
}

TEST_F(CheckListColours, MarkTheItemWithTheFocus)
{
    Look(
        [](HWND list)
        {
            const Canvas without(list);
            const Canvas with(list);
            without.Draw(list, ODS_SELECTED);
            with.Draw(list, ODS_SELECTED | ODS_FOCUS);
            int different = 0;
            for (int x = 0; x < Canvas::width; ++x)
                different += with.At(x, 0) != without.At(x, 0) ? 1 : 0;
            EXPECT_GT(different, Canvas::width / 4);
        });
}
