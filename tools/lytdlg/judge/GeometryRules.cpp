#include "lytdlg/judge/Families.h"

#include "lytdlg/judge/Places.h"

#include <algorithm>
#include <deque>
#include <limits>
#include <numeric>
#include <set>
#include <unordered_map>

namespace lytdlg
{

namespace
{

// In layout units, as docs/descriptions.md has them.
constexpr int rowHeight = 15;
constexpr int listFrame = 4;

std::string NameOf(const ClytControlStatement& control)
{
    const CString& name = control.name.IsEmpty() ? control.text : control.name;
    return name.IsEmpty() ? "the " + std::string(control.type.GetString()) : InQuotes(name.GetString());
}

// Where a rule found something about a control.
struct Sighting
{
    const ClytControlStatement* control = nullptr;
    const Screen* first = nullptr;
    size_t count = 0;
    int pixels = 0; // on the first screen
};

class Sightings
{
public:
    void Add(const Screen& screen, const ClytControlStatement* control, int pixels = 0)
    {
        const auto [place, isNew] = m_places.try_emplace(control, m_sightings.size());
        if (isNew)
            m_sightings.push_back({control, &screen, 1, pixels});
        else
            ++m_sightings[place->second].count;
    }
    const std::vector<Sighting>& All() const { return m_sightings; }

private:
    std::vector<Sighting> m_sightings;
    std::unordered_map<const ClytControlStatement*, size_t> m_places;
};

// What is so at each resolution and in each language needs no more words.
std::string Where(const Sighting& sighting, const std::vector<Screen>& screens)
{
    if (sighting.count == screens.size())
        return "";
    const std::string language =
        sighting.first->language.empty() ? "" : " with the texts of " + sighting.first->language + ".nls";
    return " at " + std::to_string(sighting.first->pixelsPerInch) + " dots per inch" + language;
}

bool IsEmpty(const CRect& place)
{
    return place.right <= place.left || place.bottom <= place.top;
}

bool Touch(const CRect& left, const CRect& right)
{
    return left.left < right.right && right.left < left.right && left.top < right.bottom && right.top < left.bottom;
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

// No screen has room for more controls side by side: a control is compared with as many at its height.
constexpr size_t mostCompared = 1000;

// The controls before one in the file that overlap with it.
class Overlaps
{
public:
    void Add(size_t before)
    {
        ++m_count;
        m_first.insert(before);
        if (m_first.size() > mostTold)
            m_first.erase(std::prev(m_first.end()));
    }
    // The same control on another screen.
    void Merge(const Overlaps& other)
    {
        const size_t most = std::max(m_count, other.m_count);
        for (const size_t before : other.m_first)
            Add(before);
        m_count = std::max(most, m_first.size());
    }
    // In their order, not more than a few.
    const std::set<size_t>& First() const { return m_first; }
    size_t CountOfOthers() const { return m_count - m_first.size(); }

private:
    static constexpr size_t mostTold = 3;

    std::set<size_t> m_first;
    size_t m_count = 0;
};

// Sorted by their upper edges, a control meets only those above it that reach down to it.
std::vector<Overlaps> OverlapsOn(const Screen& screen)
{
    const std::vector<PlacedControl>& controls = screen.controls;
    std::vector<size_t> order(controls.size());
    std::iota(order.begin(), order.end(), size_t{0});
    std::ranges::stable_sort(order, {}, [&](size_t control) { return controls[control].place.top; });
    std::vector<Overlaps> found(controls.size());
    std::deque<size_t> above;
    for (const size_t control : order)
    {
        std::erase_if(above, [&](size_t other) { return controls[other].place.bottom <= controls[control].place.top; });
        for (const size_t other : above)
        {
            if (Cover(controls[other], controls[control]))
                found[std::max(control, other)].Add(std::min(control, other));
        }
        above.push_back(control);
        if (above.size() > mostCompared)
            above.pop_front();
    }
    return found;
}

Sighting SightingOf(const std::vector<Screen>& screens, size_t before, size_t control)
{
    Sighting sighting = {screens.front().controls[control].control};
    for (const Screen& screen : screens)
    {
        if (!Cover(screen.controls[before], screen.controls[control]))
            continue;
        sighting.first = sighting.count++ == 0 ? &screen : sighting.first;
    }
    return sighting;
}

// Each screen has the same controls in the same order.
void JudgeOverlap(const Case& judged, const std::vector<Screen>& screens)
{
    std::vector<Overlaps> overlaps(screens.front().controls.size());
    for (const Screen& screen : screens)
    {
        const std::vector<Overlaps> found = OverlapsOn(screen);
        for (size_t control = 0; control < found.size(); ++control)
            overlaps[control].Merge(found[control]);
    }
    for (size_t control = 0; control < overlaps.size(); ++control)
    {
        const ClytControlStatement& own = *screens.front().controls[control].control;
        for (const size_t other : overlaps[control].First())
        {
            const ClytControlStatement& before = *screens.front().controls[other].control;
            judged.findings.Add("geometry-overlap", own.span,
                                NameOf(own) + " and " + NameOf(before) + " in line " +
                                    std::to_string(before.span.line) + " overlap" +
                                    Where(SightingOf(screens, other, control), screens),
                                "move one of them, or make it smaller");
        }
        if (const size_t others = overlaps[control].CountOfOthers(); others != 0)
            judged.findings.Add("geometry-overlap", own.span,
                                "and " + std::to_string(others) + (others == 1 ? " more overlaps" : " more overlap") +
                                    " with " + NameOf(own),
                                "move it, or make it smaller");
    }
}

void JudgeOutside(const Case& judged, const std::vector<Screen>& screens)
{
    Sightings seen;
    for (const Screen& screen : screens)
    {
        for (const PlacedControl& control : screen.controls)
        {
            // Numbers that no dialog has are reported where they are.
            constexpr int least = std::numeric_limits<int>::min();
            const bool isFair = control.control->x > least && control.control->y > least;
            const bool isWithin = control.place.left >= 0 && control.place.top >= 0 &&
                                  control.place.right <= screen.client.cx && control.place.bottom <= screen.client.cy;
            if (isFair && !isWithin)
                seen.Add(screen, control.control);
        }
    }
    for (const Sighting& sighting : seen.All())
        judged.findings.Add("geometry-outside", sighting.control->span,
                            NameOf(*sighting.control) + " goes beyond the dialog" + Where(sighting, screens),
                            "move it, or make the dialog larger");
}

// What the frame of a button, or of a group with the start of its line, leaves for the text.
int RoomOf(const PlacedControl& control)
{
    constexpr int buttonEdges = 6;
    constexpr int frameEdges = 16;
    switch (control.kind)
    {
    case Kind::Button:
    case Kind::Ok:
    case Kind::Cancel: return control.place.Width() - buttonEdges;
    case Kind::Frame: return control.place.Width() - frameEdges;
    default: return control.captionWidth;
    }
}

void JudgeClipped(const Case& judged, const std::vector<Screen>& screens)
{
    Sightings seen;
    for (const Screen& screen : screens)
    {
        for (const PlacedControl& control : screen.controls)
        {
            const int lacking = control.captionWidth - RoomOf(control);
            if (lacking > 0)
                seen.Add(screen, control.control, lacking);
        }
    }
    for (const Sighting& sighting : seen.All())
        judged.findings.Add("geometry-clipped", sighting.control->span,
                            "the caption of " + NameOf(*sighting.control) + " is " + std::to_string(sighting.pixels) +
                                (sighting.pixels == 1 ? " pixel" : " pixels") + " too wide" + Where(sighting, screens),
                            "make the control wider, or the text shorter");
}

bool TakesFocus(const PlacedControl& control)
{
    return control.kind != Kind::Text && control.kind != Kind::Frame;
}

std::vector<const PlacedControl*> FramesOf(const Screen& screen)
{
    std::vector<const PlacedControl*> frames;
    for (const PlacedControl& control : screen.controls)
    {
        if (control.kind == Kind::Frame && frames.size() < mostCompared)
            frames.push_back(&control);
    }
    return frames;
}

// The smallest frame round a control; null without one.
const PlacedControl* FrameOf(const std::vector<const PlacedControl*>& frames, const PlacedControl& control)
{
    const PlacedControl* smallest = nullptr;
    for (const PlacedControl* candidate : frames)
    {
        const bool isRound = candidate != &control && Holds(candidate->place, control.place);
        if (isRound && (smallest == nullptr || Holds(smallest->place, candidate->place)))
            smallest = candidate;
    }
    return smallest;
}

// Up in the same column, or to the left in the same row.
bool GoesBack(const CRect& from, const CRect& to)
{
    const bool isAbove = to.bottom <= from.top;
    const bool isSameRow = to.top < from.bottom && from.top < to.bottom;
    return (isAbove && to.left < from.right) || (isSameRow && to.right <= from.left);
}

void JudgeTabOrder(const Case& judged, const Screen& screen)
{
    const std::vector<const PlacedControl*> frames = FramesOf(screen);
    const PlacedControl* before = nullptr;
    for (const PlacedControl& control : screen.controls)
    {
        if (!TakesFocus(control))
            continue;
        const bool isTold = before != nullptr && GoesBack(before->place, control.place) &&
                            FrameOf(frames, *before) == FrameOf(frames, control);
        if (isTold)
            judged.findings.Add("geometry-tab", control.control->span,
                                "the Tab key goes back from " + NameOf(*before->control) + " in line " +
                                    std::to_string(before->control->span.line) + " to " + NameOf(*control.control),
                                "write the statements in the order of reading");
        before = &control;
    }
}

void JudgeHeights(const Case& judged)
{
    for (const ClytControlStatement& control : judged.description.controls)
    {
        const Kind kind = KindOf(control);
        const bool isOpen = lytTypeOf(kind).isOpenList;
        if (lytTypeOf(kind).hasItems && !isOpen && control.height < fieldHeight + rowHeight)
            judged.findings.Add("geometry-drop", control.span,
                                "with a height of " + std::to_string(control.height) + " the list has no room to open",
                                "allow 19 for the field and 15 for each row");
        else if (isOpen && control.height < rowHeight + listFrame)
            judged.findings.Add("geometry-row", control.span,
                                "with a height of " + std::to_string(control.height) + " the list shows no row",
                                "allow 15 for each row and 4 for the frame");
    }
}

void JudgeFrames(const Case& judged, const Screen& screen)
{
    std::unordered_map<const ClytControlStatement*, CRect> places;
    for (const PlacedControl& control : screen.controls)
        places.emplace(control.control, control.place);
    const std::vector<const PlacedControl*> frames = FramesOf(screen);
    std::set<CString> groups;
    for (const ClytControlStatement& group : judged.description.controls)
    {
        if (KindOf(group) != Kind::OptionGroup || !groups.insert(group.name).second)
            continue;
        const std::vector<const ClytControlStatement*>& options =
            OptionButtonsOf(judged.description, group.name.GetString());
        for (const PlacedControl* frame : frames)
        {
            const auto isHeld = [&](const ClytControlStatement* option)
            {
                const auto place = places.find(option);
                return place != places.end() && Holds(frame->place, place->second);
            };
            const auto held = std::ranges::count_if(options, isHeld);
            if (held != 0 && held != std::ssize(options))
                judged.findings.Add("geometry-frame", frame->control->span,
                                    "the frame holds " + std::to_string(held) + " of the " +
                                        std::to_string(options.size()) + " options of " + NameOf(group),
                                    "let it hold all of them");
        }
    }
}

} // namespace

void ApplyGeometryRules(const Case& judged)
{
    if (judged.description.width <= 0 || judged.description.height <= 0)
        return;
    const std::vector<Screen> screens = ScreensOf(judged.description, judged.surroundings.texts);
    JudgeOverlap(judged, screens);
    JudgeOutside(judged, screens);
    JudgeClipped(judged, screens);
    JudgeTabOrder(judged, screens.front());
    JudgeFrames(judged, screens.front());
    JudgeHeights(judged);
}

} // namespace lytdlg
