#include "lytdlg/judge/Sightings.h"

#include "controls/ClytWindowControl.h"
#include "lytdlg/judge/Names.h"
#include "lytdlg/judge/StatementText.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

bool IsEmpty(const CRect& place)
{
    return place.right <= place.left || place.bottom <= place.top;
}

bool Touch(const CRect& left, const CRect& right)
{
    return left.left < right.right && right.left < left.right && left.top < right.bottom && right.top < left.bottom;
}

bool IsRoomFor(const Screen& screen, const PlacedControl& own, const PlacedControl& moved)
{
    const bool isWithin = moved.place.left >= 0 && moved.place.top >= 0 && moved.place.right <= screen.client.cx &&
                          moved.place.bottom <= screen.client.cy;
    return isWithin && !IsEmpty(moved.place) && screen.controls.size() <= mostCompared &&
           std::ranges::none_of(screen.controls, [&](const PlacedControl& other)
                                { return other.control != own.control && Cover(other, moved); });
}

// Whether no other control begins as far to the left, while one begins where it would with its numbers swapped.
bool IsInNoColumn(const Screen& screen, const ClytControlStatement& own)
{
    const auto isAt = [&](int left)
    {
        return std::ranges::any_of(screen.controls, [&](const PlacedControl& other)
                                   { return other.control != &own && other.control->x == left; });
    };
    return own.x != own.y && !isAt(own.x) && isAt(own.y);
}

} // namespace

std::string ShownNameOf(const ClytControlStatement& control)
{
    const CString& name = control.name.IsEmpty() ? control.text : control.name;
    return name.IsEmpty() ? "the " + std::string(control.type.GetString()) : InQuotes(name.GetString());
}

void Sightings::Add(const Screen& screen, const ClytControlStatement* control, int pixels)
{
    const auto [place, isNew] = m_places.try_emplace(control, m_sightings.size());
    if (isNew)
        m_sightings.push_back({control, &screen, 1, pixels});
    else
        ++m_sightings[place->second].count;
}

// What is so at each resolution and in each language needs no more words.
std::string WhereOf(const Sighting& sighting, const std::vector<Screen>& screens)
{
    if (sighting.count == screens.size())
        return "";
    const std::string language =
        sighting.first->language.empty() ? "" : " with the texts of " + sighting.first->language + ".nls";
    return " at " + std::to_string(sighting.first->pixelsPerInch) + " dots per inch" + language;
}

bool Holds(const CRect& frame, const CRect& place)
{
    return frame.left <= place.left && frame.top <= place.top && place.right <= frame.right &&
           place.bottom <= frame.bottom;
}

bool Cover(const PlacedControl& left, const PlacedControl& right)
{
    const bool areFrames = left.kind == Kind::Frame || right.kind == Kind::Frame;
    const bool areSeen = !IsEmpty(left.place) && !IsEmpty(right.place) && !(left.mayBeHidden && right.mayBeHidden);
    if (!areSeen || !Touch(left.place, right.place))
        return false;
    return !areFrames || !(Holds(left.place, right.place) || Holds(right.place, left.place));
}

bool GoesBack(const CRect& from, const CRect& to)
{
    const bool isAbove = to.bottom <= from.top;
    const bool isSameRow = to.top < from.bottom && from.top < to.bottom;
    return (isAbove && to.left < from.right) || (isSameRow && to.right <= from.left);
}

std::optional<SwappedNumbers> SwappedNumbersOf(const Screen& screen, const PlacedControl& control)
{
    const ClytControlStatement& own = *control.control;
    PlacedControl turned = control;
    PlacedControl moved = control;
    const float x = ResolutionOf(screen).x;
    const float y = ResolutionOf(screen).y;
    moved.place =
        lytLayoutRect({lytScaled(own.y, x), lytScaled(own.x, y)}, {control.place.Width(), control.place.Height()});
    const bool isShut = control.kind == Kind::Combo || control.kind == Kind::DropList;
    const int turnedHeight = isShut ? std::min(own.width, fieldHeight) : own.width;
    turned.place = lytLayoutRect({static_cast<int>(control.place.left), static_cast<int>(control.place.top)},
                                 {lytScaled(own.height, x), lytScaled(turnedHeight, y)});
    // Few controls are higher than wide.
    if (!IsSizedByText(control.kind) && own.height > own.width && IsRoomFor(screen, control, turned))
        return SwappedNumbers{"width and height", 3, {own.height, own.width}, turned};
    if (IsInNoColumn(screen, own) && IsRoomFor(screen, control, moved))
        return SwappedNumbers{"left and top", 1, {own.y, own.x}, moved};
    return std::nullopt;
}

void AddSwapped(const Case& judged, const ClytControlStatement& control, const SwappedNumbers& swapped,
                Finding& finding)
{
    const std::string numbers = std::to_string(swapped.numbers[0]) + ", " + std::to_string(swapped.numbers[1]);
    finding.hint = std::string(swapped.names) + " seem to be swapped: write " + numbers;
    const std::vector<LineToken> words =
        TokensOf(judged.description.text.Line(control.span.line).text, Section::Layout);
    if (words.size() <= swapped.first + 1)
        return;
    const LineToken& second = words[swapped.first + 1];
    const int begin = words[swapped.first].column;
    finding.FixPerhaps({control.span.line, begin, second.column + static_cast<int>(second.text.size()) - begin},
                       numbers);
}

} // namespace lytdlg
