#include "lytdlg/draw/SvgPen.h"

#include "commandline/Text.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

constexpr const char* noBreakSpace = "\xC2\xA0"; // other blanks would be run together

size_t CharacterCount(const std::string& utf8)
{
    return static_cast<size_t>(
        std::ranges::count_if(utf8, [](char ch) { return (static_cast<unsigned char>(ch) & 0xC0U) != 0x80U; }));
}

std::string WithFixedBlanks(const std::string& utf8)
{
    std::string fixed;
    for (const char ch : utf8)
        ch == ' ' || ch == '\t' || ch == '\n' || ch == '\r' ? fixed += noBreakSpace : fixed += ch;
    return fixed;
}

} // namespace

Area Common(const Area& one, const Area& other)
{
    const int left = std::max(one.left, other.left);
    const int top = std::max(one.top, other.top);
    return {left, top, std::max(0, std::min(one.left + one.width, other.left + other.width) - left),
            std::max(0, std::min(one.top + one.height, other.top + other.height) - top)};
}

Area Around(const Area& one, const Area& other)
{
    const int left = std::min(one.left, other.left);
    const int top = std::min(one.top, other.top);
    return {left, top, std::max(one.left + one.width, other.left + other.width) - left,
            std::max(one.top + one.height, other.top + other.height) - top};
}

int SizeOf(const Area& area)
{
    return area.width * area.height;
}

Caption::Caption(const std::string& text)
{
    for (size_t place = 0; place < text.size(); ++place)
    {
        if (text[place] == '&')
        {
            if (++place == text.size())
                return;
            if (text[place] != '&')
                underlined = static_cast<int>(shown.size());
        }
        shown += text[place];
    }
}

SvgPen::SvgPen(const SeenDialog& dialog) : m_dialog(dialog), m_clips{{0, 0, {0, 0, dialog.width, dialog.height}}} {}

void SvgPen::Fill(const Area& area, const char* fill)
{
    markup.Empty("rect", {{"x", area.left},
                          {"y", area.top},
                          {"width", std::max(0, area.width)},
                          {"height", std::max(0, area.height)},
                          {"fill", fill}});
}

void SvgPen::Frame(const Area& area, const char* fill, const char* stroke, const Attributes& more)
{
    if (area.width < 1 || area.height < 1)
        return;
    Attributes attributes = {{"x", std::to_string(area.left) + ".5"},
                             {"y", std::to_string(area.top) + ".5"},
                             {"width", area.width - 1},
                             {"height", area.height - 1},
                             {"fill", fill},
                             {"stroke", stroke}};
    attributes.insert(attributes.end(), more.begin(), more.end());
    markup.Empty("rect", attributes);
}

void SvgPen::Line(int fromX, int fromY, int toX, int toY, const char* stroke)
{
    const auto middle = [](int pixel) { return std::to_string(pixel) + ".5"; };
    markup.Empty("path", {{"d", "M" + middle(fromX) + " " + middle(fromY) + "L" + middle(toX) + " " + middle(toY)},
                          {"stroke", stroke}});
}

void SvgPen::BeginClip(const Area& area)
{
    markup.Open(
        "svg",
        {{"x", area.left}, {"y", area.top}, {"width", std::max(0, area.width)}, {"height", std::max(0, area.height)}});
    const Clip& outer = m_clips.back();
    const Area place = {outer.left + area.left, outer.top + area.top, area.width, area.height};
    m_clips.push_back({place.left, place.top, Common(outer.seen, place)});
}

void SvgPen::EndClip()
{
    markup.Close();
    m_clips.pop_back();
}

void SvgPen::KeepFree(const Area& area)
{
    const Clip& clip = m_clips.back();
    m_kept.push_back(Common(clip.seen, {clip.left + area.left, clip.top + area.top, area.width, area.height}));
}

void SvgPen::Text(int left, int top, const std::string& shown, const char* fill, int limit)
{
    const int begin = left;
    std::string places;
    std::string seen;
    for (const char ch : shown)
    {
        if (left >= limit)
            break;
        places += (places.empty() ? "" : " ") + std::to_string(left);
        seen += ch;
        left += WidthOf(std::string(1, ch));
    }
    if (seen.empty())
        return;
    KeepFree({begin, top, std::min(left, limit) - begin, TextHeight()});
    const std::string utf8 = commandline::ToUtf8(seen);
    // In a code page with characters of two bytes only the first has a place that is known.
    if (CharacterCount(utf8) != seen.size())
        places.resize(std::min(places.size(), places.find(' ')));
    markup.Leaf("text", {{"x", places}, {"y", BaselineOf(top)}, {"fill", fill}}, WithFixedBlanks(utf8));
}

void SvgPen::TextOf(const Caption& caption, int left, int top, const char* fill, int limit)
{
    Text(left, top, caption.shown, fill, limit);
    if (caption.underlined < 0)
        return;
    const auto before = static_cast<size_t>(caption.underlined);
    const int from = left + WidthOf(caption.shown.substr(0, before));
    const int width = WidthOf(caption.shown.substr(before, 1));
    if (from < limit)
        Fill({from, BaselineOf(top) + 1, width, 1}, fill);
}

Area SvgPen::NoteArea(Spot place, const std::string& text) const
{
    return {place.left - 1, place.top, NoteWidth(text) + 2, NoteHeight() + 1};
}

void SvgPen::Note(Spot place, const std::string& text, const char* fill)
{
    const Area area = NoteArea(place, text);
    KeepFree(area);
    markup.Empty("rect", {{"x", area.left},
                          {"y", area.top},
                          {"width", area.width},
                          {"height", area.height},
                          {"fill", color::window},
                          {"fill-opacity", "0.85"}});
    markup.Leaf("text",
                {{"x", place.left},
                 {"y", place.top + NoteHeight() - NoteHeight() / 5},
                 {"fill", fill},
                 {"font-size", Scaled(8)},
                 {"textLength", NoteWidth(text)},
                 {"lengthAdjust", "spacingAndGlyphs"}},
                WithFixedBlanks(commandline::ToUtf8(text)));
}

} // namespace lytdlg
