#include "lytdlg/draw/SvgPen.h"

#include "commandline/Text.h"
#include "controls/TypeWords.h"

#include <algorithm>
#include <cstdlib>

namespace lytdlg
{

using commandline::ToUtf8;

namespace
{

constexpr int frameWidth = 3;
constexpr int titleIndent = 2;

// The dialog's font has eight points.
int FontSize(int pixelsPerInch)
{
    constexpr int points = 8;
    constexpr int pointsPerInch = 72;
    return (points * pixelsPerInch + pointsPerInch / 2) / pointsPerInch;
}

void DrawWindow(SvgPen& pen, const SeenDialog& dialog)
{
    pen.Frame({0, 0, dialog.width, dialog.height}, color::face, color::shadow);
    const int height = dialog.client.top - frameWidth - 1;
    const Area caption = {frameWidth, frameWidth, dialog.width - 2 * frameWidth, height};
    pen.KeepFree(caption);
    pen.Fill(caption, color::chosen);
    const Area close = {caption.width - height + 2, 2, height - 4, height - 4};
    pen.BeginClip(caption);
    pen.markup.Leaf("text",
                    {{"x", titleIndent},
                     {"y", (height + dialog.textHeight) / 2 - 2},
                     {"fill", color::text},
                     {"font-weight", "bold"}},
                    ToUtf8(dialog.title));
    pen.Frame(close, color::window, color::edge);
    pen.Line(close.left + 3, close.top + 3, close.left + close.width - 4, close.top + close.height - 4, color::text);
    pen.Line(close.left + 3, close.top + close.height - 4, close.left + close.width - 4, close.top + 3, color::text);
    pen.EndClip();
}

// At the first place that covers nothing; else at that which covers the least, or near by.
void DrawNote(SvgPen& pen, const std::vector<Spot>& places, const std::string& text, const char* fill)
{
    constexpr int weight = 20; // of a pixel that is covered, beside one of distance
    const auto covered = [&](Spot place) { return pen.CoveredByNote(place, text); };
    Spot best = *std::ranges::min_element(places, {}, covered);
    int least = weight * covered(best);
    constexpr int farthest = 3;
    const int step = pen.NoteHeight();
    for (int right = -farthest * 2 * step; right <= farthest * 2 * step; right += 2 * step)
    {
        for (int down = -farthest * step; down <= farthest * step; down += step)
        {
            const Spot shifted = {places.front().left + right, places.front().top + down};
            // The farther away, the less clear is what it belongs to.
            const int cost = weight * covered(shifted) + 2 * std::abs(right) + std::abs(down);
            if (cost < least)
            {
                best = shifted;
                least = cost;
            }
        }
    }
    pen.Note(best, text, fill);
}

// Where the text of a control ends at the right, at the latest.
int EndOfRoom(const SvgPen& pen, const SeenControl& control)
{
    const ClytType& type = lytTypeOf(control.type);
    if (type.isOpenList && !control.items.empty())
        return control.inside.left + control.firstItem.width;
    return control.place.width - (type.hasItems && !type.isOpenList ? pen.Scaled(arrowWidth) + 2 : 0);
}

// A label has its name below, a box after its text, a button at its lower edge; others have room inside.
void DrawName(SvgPen& pen, const SeenControl& control)
{
    const Area& place = control.place;
    const ClytType& type = lytTypeOf(control.type);
    const int bottom = place.top + place.height;
    const int inside = std::max(2, EndOfRoom(pen, control) - pen.NoteWidth(control.name) - 2) + place.left;
    const Spot below = {place.left, bottom};
    const Spot after = {place.left + place.width + 3, place.top + 1};
    const Spot atEdge = {inside, bottom - pen.Scaled(4)};
    const Spot within = {inside, place.top + 1};
    const Spot first = type.kind == ClytKind::Text ? below : type.isChecked ? after : type.isButton ? atEdge : within;
    DrawNote(pen, {first, {inside, bottom - pen.NoteHeight() - 2}, atEdge, below, {inside, bottom}, after},
             control.name, color::name);
}

// A number in brackets belongs to a control that the Tab key passes over in the dialog as it is.
void DrawTabNumber(SvgPen& pen, const SeenControl& control)
{
    const std::string number = std::to_string(control.tabNumber);
    const std::string shown = control.isEnabled && control.isShown ? number : "(" + number + ")";
    const Area& place = control.place;
    const Spot corner = {place.left - 2, place.top - 3};
    const Spot before = {place.left - pen.NoteWidth(shown) - 2, place.top};
    DrawNote(pen, {corner, before, {place.left + place.width + 2, place.top}}, shown, color::tab);
}

class Drawing
{
public:
    Drawing(const SeenDialog& dialog, const SvgStyle& style) : m_dialog(dialog), m_style(style), m_pen(dialog) {}

    std::string Draw()
    {
        m_pen.markup.Open("svg",
                          {{"xmlns", "http://www.w3.org/2000/svg"},
                           {"width", m_dialog.width},
                           {"height", m_dialog.height},
                           {"viewBox", "0 0 " + std::to_string(m_dialog.width) + " " + std::to_string(m_dialog.height)},
                           {"font-family", "Tahoma, 'DejaVu Sans Condensed', 'Liberation Sans', sans-serif"},
                           {"font-size", FontSize(m_dialog.pixelsPerInch)}});
        m_pen.markup.Leaf("title", {}, ToUtf8(m_dialog.title));
        DrawWindow(m_pen, m_dialog);
        m_pen.BeginClip(m_dialog.client);
        ForEach([this](const SeenControl& control, size_t number) { Place(control, number); });
        m_pen.EndClip();
        // A name has more room to go to than a number.
        ForEach([this](const SeenControl& control, size_t /*number*/) { Number(control); });
        ForEach([this](const SeenControl& control, size_t /*number*/) { Name(control); });
        m_pen.markup.Close();
        return m_pen.markup.Text();
    }

private:
    template <class ACT>
    void ForEach(ACT act)
    {
        size_t number = 0;
        for (const SeenControl& control : m_dialog.controls)
        {
            ++number;
            if (control.hasWindow && (control.isShown || m_style.showsNames))
                act(control, number);
        }
    }

    void Place(const SeenControl& control, size_t number)
    {
        m_pen.markup.Open("g", {{"id", "control-" + std::to_string(number)}});
        const std::string name = control.name.empty() ? "" : control.name + ": ";
        m_pen.markup.Leaf("title", {}, ToUtf8(name + control.type));
        Area place = control.place;
        place.left -= m_dialog.client.left;
        place.top -= m_dialog.client.top;
        if (control.isShown)
        {
            m_pen.BeginClip(place);
            DrawControl(m_pen, control);
            m_pen.EndClip();
        }
        else
            m_pen.Frame(place, "none", color::name, {{"stroke-dasharray", "3 2"}});
        m_pen.markup.Close();
    }

    void Number(const SeenControl& control)
    {
        if (m_style.showsTabs && control.tabNumber > 0)
            DrawTabNumber(m_pen, control);
    }

    void Name(const SeenControl& control)
    {
        if (m_style.showsNames && !control.name.empty())
            DrawName(m_pen, control);
    }

    const SeenDialog& m_dialog;
    const SvgStyle& m_style;
    SvgPen m_pen;
};

} // namespace

std::string DrawSvg(const SeenDialog& dialog, const SvgStyle& style)
{
    return Drawing(dialog, style).Draw();
}

} // namespace lytdlg
