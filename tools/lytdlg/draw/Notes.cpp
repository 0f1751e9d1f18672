#include "lytdlg/draw/Notes.h"

#include "controls/TypeWords.h"

#include <algorithm>
#include <cstdlib>

namespace lytdlg
{

namespace
{

constexpr int costOfText = 20; // for a pixel of it that is covered, beside one of another control

// Where the text of a control ends at the right, at the latest.
int EndOfRoom(const SvgPen& pen, const SeenControl& control)
{
    const ClytType& type = lytTypeOf(control.type);
    if (type.isOpenList && !control.items.empty())
        return control.inside.left + control.firstItem.width;
    return control.place.width - (type.hasItems && !type.isOpenList ? pen.Scaled(arrowWidth) + 2 : 0);
}

} // namespace

// What a note within the area may cover: texts, and controls that it would seem to belong to.
std::vector<Notes::Obstacle> Notes::ObstaclesIn(const Area& area, const SeenControl& control) const
{
    std::vector<Obstacle> obstacles;
    const auto add = [&](const Area& place, int cost)
    {
        if (SizeOf(Common(place, area)) > 0)
            obstacles.push_back({place, cost});
    };
    for (const Area& kept : m_pen.KeptFree())
        add(kept, costOfText);
    for (const SeenControl& other : m_dialog.controls)
    {
        const bool isBehind = lytTypeOf(other.type).kind == ClytKind::Frame;
        if (&other != &control && other.isShown && !isBehind)
            add(other.place, 1);
    }
    return obstacles;
}

// At the best of the places, or near the first. The farther away from that, the less clear is what a note belongs to.
void Notes::Write(const SeenControl& control, const std::vector<Spot>& places, const std::string& text,
                  const char* fill)
{
    struct Choice
    {
        Spot place;
        int distance;
    };
    std::vector<Choice> choices;
    for (const Spot place : places)
        choices.push_back({place, 0});
    const int step = m_pen.NoteHeight();
    for (int right = -6 * step; right <= 6 * step; right += 2 * step)
    {
        for (int down = -3 * step; down <= 3 * step; down += step)
            choices.push_back(
                {{places.front().left + right, places.front().top + down}, 2 * std::abs(right) + std::abs(down)});
    }
    Area reach = m_pen.NoteArea(places.front(), text);
    for (const Choice& choice : choices)
        reach = Around(reach, m_pen.NoteArea(choice.place, text));
    const std::vector<Obstacle> obstacles = ObstaclesIn(reach, control);
    const auto cost = [&](const Choice& choice)
    {
        const Area note = m_pen.NoteArea(choice.place, text);
        const Area window = {0, 0, m_dialog.width, m_dialog.height};
        int sum = choice.distance + costOfText * (SizeOf(note) - SizeOf(Common(note, window)));
        for (const Obstacle& obstacle : obstacles)
            sum += obstacle.cost * SizeOf(Common(obstacle.area, note));
        return sum;
    };
    m_pen.Note(std::ranges::min_element(choices, {}, cost)->place, text, fill);
}

// A label has its name below, a box after its text, a button at its lower edge; others have room inside.
void Notes::WriteName(const SeenControl& control)
{
    const Area& place = control.place;
    const ClytType& type = lytTypeOf(control.type);
    const int bottom = place.top + place.height;
    const int inside = std::max(2, EndOfRoom(m_pen, control) - m_pen.NoteWidth(control.name) - 2) + place.left;
    const Spot below = {place.left, bottom};
    const Spot after = {place.left + place.width + 3, place.top + 1};
    const Spot atEdge = {inside, bottom - m_pen.Scaled(4)};
    const Spot within = {inside, place.top + 1};
    const Spot first = type.kind == ClytKind::Text ? below : type.isChecked ? after : type.isButton ? atEdge : within;
    Write(control, {first, {inside, bottom - m_pen.NoteHeight() - 2}, atEdge, below, {inside, bottom}, after},
          control.name, color::name);
}

void Notes::WriteTabNumber(const SeenControl& control)
{
    const std::string number = std::to_string(control.tabNumber);
    const std::string shown = control.isEnabled && control.isShown ? number : "(" + number + ")";
    const Area& place = control.place;
    const Spot corner = {place.left - 2, place.top - 3};
    const Spot before = {place.left - m_pen.NoteWidth(shown) - 2, place.top};
    Write(control, {corner, before, {place.left + place.width + 2, place.top}}, shown, color::tab);
}

} // namespace lytdlg
