#include "lytdlg/draw/SvgPen.h"

#include "controls/TypeWords.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

constexpr int markSize = 13; // of a check box, at 96 dots per inch
// Between a mark and its text, and before the text of a group; they do not grow with the resolution.
constexpr int markGap = 4;
constexpr int groupIndent = 8;

const char* TextColor(const SeenControl& control)
{
    return control.isEnabled ? color::text : color::greyed;
}

const char* FieldColor(const SeenControl& control)
{
    return control.isEnabled ? color::window : color::face;
}

int Middle(int outer, int inner)
{
    return (outer - inner) / 2;
}

// The frame of a field or a list. It has an inner edge where it is wide enough.
void DrawFrame(SvgPen& pen, const SeenControl& control)
{
    const int width = control.place.width;
    const int height = control.place.height;
    pen.Frame({0, 0, width, height}, FieldColor(control), color::edge);
    if (control.inside.left < 3)
        return;
    pen.Line(2, 2, width - 3, 2, color::shadow);
    pen.Line(2, 2, 2, height - 3, color::shadow);
    pen.Line(2, height - 3, width - 3, height - 3, color::light);
    pen.Line(width - 3, 2, width - 3, height - 3, color::light);
}

// The lines of a text that is broken between words where it is too wide.
std::vector<std::string> BrokenLines(const SvgPen& pen, const std::string& text, int width)
{
    std::vector<std::string> lines(1);
    size_t place = 0;
    while (place < text.size())
    {
        const size_t end = std::min(text.find_first_of(" \n", place), text.size());
        const std::string word = text.substr(place, end - place);
        std::string& line = lines.back();
        const std::string longer = line.empty() ? word : line + " " + word;
        if (line.empty() || pen.WidthOf(longer) <= width)
            line = longer;
        else
            lines.push_back(word);
        if (end < text.size() && text[end] == '\n')
            lines.emplace_back();
        place = end + 1;
    }
    return lines;
}

void DrawLabel(SvgPen& pen, const SeenControl& control)
{
    const Caption caption(control.text);
    const int width = control.place.width;
    if (pen.WidthOf(caption.shown) <= width && caption.shown.find('\n') == std::string::npos)
    {
        pen.TextOf(caption, 0, 0, TextColor(control), width);
        return;
    }
    int top = 0;
    for (const std::string& line : BrokenLines(pen, caption.shown, width))
    {
        if (top >= control.place.height)
            return;
        pen.Text(0, top, line, TextColor(control), width);
        top += pen.TextHeight();
    }
}

// A line of text in a field, with what is selected while the field has the focus. A field without a frame has no margin.
void DrawFieldText(SvgPen& pen, const SeenControl& control, const Area& field, int margin)
{
    pen.BeginClip(field);
    const int top = field.height > pen.TextHeight() + margin ? margin : 0;
    pen.Text(margin, top, control.text, TextColor(control), field.width);
    const int length = static_cast<int>(control.text.size());
    const int from = std::clamp(control.selectedFrom, 0, length);
    const int to = std::clamp(control.selectedTo, 0, length);
    if (control.hasFocus && from < to)
    {
        const int left = margin + pen.WidthOf(control.text.substr(0, static_cast<size_t>(from)));
        const std::string selected = control.text.substr(static_cast<size_t>(from), static_cast<size_t>(to - from));
        const int width = std::min(pen.WidthOf(selected), field.width);
        pen.Fill({left, top, width, pen.TextHeight()}, color::chosen);
        pen.Text(left, top, selected, color::chosenText, field.width);
    }
    pen.EndClip();
}

void DrawField(SvgPen& pen, const SeenControl& control)
{
    DrawFrame(pen, control);
    DrawFieldText(pen, control, control.inside, 1);
}

enum class Arrow
{
    Up,
    Down
};

void DrawArrow(SvgPen& pen, const Area& button, Arrow arrow, const char* stroke)
{
    pen.Frame(button, color::window, color::edge, {{"rx", 2}});
    const bool isUp = arrow == Arrow::Up;
    const int x = button.left + Middle(button.width, 0);
    const int y = button.top + Middle(button.height, 0) + (isUp ? 1 : -1);
    pen.markup.Empty("path",
                     {{"d", "M" + std::to_string(x - 3) + " " + std::to_string(y) + (isUp ? "l3 -3l3 3" : "l3 3l3 -3")},
                      {"fill", "none"},
                      {"stroke", stroke}});
}

void DrawCombo(SvgPen& pen, const SeenControl& control)
{
    const int width = control.place.width;
    const int height = control.place.height;
    pen.Frame({0, 0, width, height}, FieldColor(control), color::edge);
    const int arrow = pen.Scaled(arrowWidth);
    const Area button = {width - arrow - 2, 2, arrow, height - 4};
    pen.KeepFree(button);
    DrawArrow(pen, button, Arrow::Down, TextColor(control));
    if (control.field.width > 0)
    {
        DrawFieldText(pen, control, control.field, 0);
        return;
    }
    const Area text = {3, 3, width - arrow - 6, height - 6};
    pen.BeginClip(text);
    if (control.hasFocus)
        pen.Fill({0, 0, text.width, text.height}, color::chosen);
    pen.Text(1, Middle(text.height, pen.TextHeight()), control.text,
             control.hasFocus ? color::chosenText : TextColor(control), text.width);
    pen.EndClip();
}

void DrawMark(SvgPen& pen, const Area& box, bool isChecked, const SeenControl& control)
{
    pen.KeepFree(box);
    pen.Frame(box, FieldColor(control), color::edge, {{"rx", 2}});
    if (!isChecked)
        return;
    const int third = box.width / 3;
    pen.markup.Empty(
        "path", {{"d", "M" + std::to_string(box.left + third - 1) + " " + std::to_string(box.top + box.height / 2) +
                           "l" + std::to_string(third - 1) + " " + std::to_string(third - 1) + "l" +
                           std::to_string(third + 1) + " -" + std::to_string(third + 2)},
                 {"fill", "none"},
                 {"stroke", TextColor(control)},
                 {"stroke-width", 2}});
}

void DrawScrollBar(SvgPen& pen, const Area& bar, const SeenControl& control)
{
    pen.KeepFree(bar);
    pen.Fill(bar, color::light);
    const int count = static_cast<int>(control.items.size());
    const int shown = std::max(1, control.inside.height / std::max(1, control.firstItem.height));
    const int arrow = std::min(bar.width, bar.height / 2);
    const int room = bar.height - 2 * arrow;
    const int thumb = std::min(room, std::max(8, room * shown / std::max(1, count)));
    const int top = bar.top + arrow + (room - thumb) * control.topItem / std::max(1, count - shown);
    pen.Frame({bar.left, top, bar.width, thumb}, color::window, color::edge);
    DrawArrow(pen, {bar.left, bar.top, bar.width, arrow}, Arrow::Up, color::text);
    DrawArrow(pen, {bar.left, bar.top + bar.height - arrow, bar.width, arrow}, Arrow::Down, color::text);
}

void DrawItem(SvgPen& pen, const SeenControl& control, size_t index, const Area& item)
{
    const SeenItem& shown = control.items[index];
    const bool isChosen = control.chosen == static_cast<int>(index) && control.isEnabled;
    const char* const textColor = isChosen ? color::chosenText : TextColor(control);
    Area text = item;
    if (lytTypeOf(control.type).hasMarks)
    {
        const int margin = pen.Scaled(2);
        const int side = std::min(pen.Scaled(markSize), item.height);
        DrawMark(pen, {margin, item.top + Middle(item.height, side), side, side}, shown.isMarked, control);
        text.left = side + 2 * margin;
        text.width -= text.left;
    }
    if (isChosen)
        pen.Fill(text, color::chosen);
    const int indent = lytTypeOf(control.type).hasMarks ? pen.Scaled(2) : 1;
    pen.Text(text.left + indent, text.top + Middle(item.height, pen.TextHeight()), shown.text, textColor, item.width);
}

void DrawList(SvgPen& pen, const SeenControl& control)
{
    DrawFrame(pen, control);
    if (control.items.empty() || control.firstItem.height <= 0)
        return;
    // On some platforms the inside ends where the scroll bar begins.
    Area inside = control.inside;
    inside.width = std::max(0, control.place.width - 2 * inside.left);
    pen.BeginClip(inside);
    Area item = control.firstItem;
    for (auto index = static_cast<size_t>(std::max(0, control.topItem));
         index < control.items.size() && item.top < inside.height; ++index, item.top += item.height)
        DrawItem(pen, control, index, item);
    if (static_cast<int>(control.items.size()) > inside.height / item.height)
        DrawScrollBar(pen, {item.width, 0, inside.width - item.width, inside.height}, control);
    pen.EndClip();
}

void DrawMarkedCaption(SvgPen& pen, const SeenControl& control, int mark)
{
    pen.TextOf(Caption(control.text), mark + markGap, Middle(control.place.height, pen.TextHeight()),
               TextColor(control), control.place.width);
}

void DrawCheckBox(SvgPen& pen, const SeenControl& control)
{
    const int side = pen.Scaled(markSize);
    DrawMark(pen, {0, Middle(control.place.height, side), side, side}, control.isChecked, control);
    DrawMarkedCaption(pen, control, side);
}

void DrawOption(SvgPen& pen, const SeenControl& control)
{
    const int side = pen.Scaled(markSize);
    pen.KeepFree({0, Middle(control.place.height, side), side, side});
    const std::string x = std::to_string(side / 2) + ".5";
    const std::string y = std::to_string(control.place.height / 2) + ".5";
    pen.markup.Empty("circle", {{"cx", x},
                                {"cy", y},
                                {"r", std::to_string(side / 2 - 1) + ".5"},
                                {"fill", FieldColor(control)},
                                {"stroke", color::edge}});
    if (control.isChecked)
        pen.markup.Empty("circle", {{"cx", x}, {"cy", y}, {"r", side / 4}, {"fill", TextColor(control)}});
    DrawMarkedCaption(pen, control, side);
}

void DrawGroupFrame(SvgPen& pen, const SeenControl& control)
{
    const int line = pen.TextHeight() / 2;
    const Caption caption(control.text);
    pen.Frame({0, line, control.place.width, control.place.height - line}, "none", color::edge, {{"rx", 2}});
    if (caption.shown.empty())
        return;
    const int width = std::min(pen.WidthOf(caption.shown), control.place.width - 2 * groupIndent);
    pen.Fill({groupIndent - 1, 0, width + 2, pen.TextHeight()}, color::face);
    pen.TextOf(caption, groupIndent, 0, TextColor(control), groupIndent + width);
}

void DrawButton(SvgPen& pen, const SeenControl& control)
{
    const Caption caption(control.text);
    const int width = control.place.width;
    pen.Frame({0, 0, width, control.place.height}, FieldColor(control), control.isDefault ? color::chosen : color::edge,
              {{"rx", 2}});
    pen.TextOf(caption, Middle(width, pen.WidthOf(caption.shown)), Middle(control.place.height, pen.TextHeight()),
               TextColor(control), width);
}

} // namespace

void DrawControl(SvgPen& pen, const SeenControl& control)
{
    struct Drawing
    {
        ClytKind kind;
        void (*draw)(SvgPen& pen, const SeenControl& control);
    };
    static constexpr Drawing drawings[] = {
        {ClytKind::Text, DrawLabel},     {ClytKind::Field, DrawField},       {ClytKind::Frame, DrawGroupFrame},
        {ClytKind::Combo, DrawCombo},    {ClytKind::DropList, DrawCombo},    {ClytKind::List, DrawList},
        {ClytKind::CheckList, DrawList}, {ClytKind::CheckBox, DrawCheckBox}, {ClytKind::Option, DrawOption},
        {ClytKind::Button, DrawButton},  {ClytKind::Ok, DrawButton},         {ClytKind::Cancel, DrawButton}};
    const auto* const drawn = std::ranges::find(drawings, lytTypeOf(control.type).kind, &Drawing::kind);
    if (drawn != std::end(drawings))
        drawn->draw(pen, control);
}

} // namespace lytdlg
