#include "lytdlg/draw/SvgPen.h"

#include "commandline/Text.h"
#include "controls/TypeWords.h"

#include <algorithm>

namespace lytdlg
{

using commandline::ToUtf8;

namespace
{

constexpr int frameWidth = 3;
constexpr int titleIndent = 2;
// The dialog's font has eight points.
constexpr int fontPoints = 8;
constexpr int pointsPerInch = 72;

// What a font has of a size in pixels, to one hundredth.
std::string FontSize(int pixelsPerInch)
{
    const int hundredths = fontPoints * pixelsPerInch * 100 / pointsPerInch;
    return std::to_string(hundredths / 100) + "." + std::to_string(hundredths % 100 / 10);
}

void DrawWindow(SvgPen& pen, const SeenDialog& dialog)
{
    pen.Frame({0, 0, dialog.width, dialog.height}, color::face, color::shadow);
    const int height = dialog.client.top - frameWidth - 1;
    const Area caption = {frameWidth, frameWidth, dialog.width - 2 * frameWidth, height};
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

// Nothing that is read is covered: a label has its name below, a box after its text, a button at its lower edge. Others
// have room inside.
void DrawName(SvgPen& pen, const SeenControl& control)
{
    if (control.name.empty())
        return;
    const Area& place = control.place;
    const int right = place.left + place.width;
    const int bottom = place.top + place.height;
    const ClytType& type = lytTypeOf(control.type);
    const int inside = std::max(place.left + 2, right - pen.NoteWidth(control.name) - 2);
    if (type.kind == ClytKind::Text)
        pen.Note(place.left, bottom, control.name, color::name);
    else if (type.isChecked)
        pen.Note(right + 3, place.top + 1, control.name, color::name);
    else if (type.isButton)
        pen.Note(inside, bottom - pen.Scaled(4), control.name, color::name);
    else
        pen.Note(inside, place.top + 1, control.name, color::name);
}

// A number in brackets belongs to a control that the Tab key passes over in the dialog as it is.
void DrawTabNumber(SvgPen& pen, const SeenControl& control)
{
    const std::string number = std::to_string(control.tabNumber);
    const std::string shown = control.isEnabled && control.isShown ? number : "(" + number + ")";
    pen.Note(control.place.left - 2, control.place.top - 3, shown, color::tab);
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
        ForEach([this](const SeenControl& control, size_t /*number*/) { Annotate(control); });
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

    void Annotate(const SeenControl& control)
    {
        if (m_style.showsNames)
            DrawName(m_pen, control);
        if (m_style.showsTabs && control.tabNumber > 0)
            DrawTabNumber(m_pen, control);
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
