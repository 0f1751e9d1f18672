#include "lytdlg/draw/Notes.h"

#include "commandline/Text.h"

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
        Annotate();
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

    // A name has more room to go to than a number.
    void Annotate()
    {
        Notes notes(m_pen, m_dialog);
        ForEach(
            [&](const SeenControl& control, size_t /*number*/)
            {
                if (m_style.showsTabs && control.tabNumber > 0)
                    notes.WriteTabNumber(control);
            });
        ForEach(
            [&](const SeenControl& control, size_t /*number*/)
            {
                if (m_style.showsNames && !control.name.empty())
                    notes.WriteName(control);
            });
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
