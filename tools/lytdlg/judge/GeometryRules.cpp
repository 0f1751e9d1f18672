#include "lytdlg/judge/Families.h"

#include "lytdlg/judge/Names.h"
#include "lytdlg/judge/Sightings.h"

#include <algorithm>
#include <set>
#include <unordered_map>

namespace lytdlg
{

namespace
{

// In layout units, as docs/descriptions.md has them.
constexpr int rowHeight = 15;
constexpr int listFrame = 4;

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
                            "the caption of " + ShownNameOf(*sighting.control) + " is " +
                                std::to_string(sighting.pixels) + (sighting.pixels == 1 ? " pixel" : " pixels") +
                                " too wide" + WhereOf(sighting, screens),
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

// Of two controls between which the Tab key goes back the one that is in a wrong place: without it the key moves forward.
bool IsEarlierOneWrong(const std::vector<const PlacedControl*>& order, size_t later)
{
    const auto isBack = [&](size_t from, size_t to) { return GoesBack(order[from]->place, order[to]->place); };
    const bool isRightWithoutLater = later + 1 == order.size() || !isBack(later - 1, later + 1);
    const bool isRightWithoutEarlier = later < 2 || !isBack(later - 2, later);
    return !isRightWithoutLater && isRightWithoutEarlier;
}

void AddTabOrder(const Case& judged, const Screen& screen, const std::vector<const PlacedControl*>& order, size_t later)
{
    const bool isEarlier = IsEarlierOneWrong(order, later);
    const PlacedControl& from = *order[later - 1];
    const PlacedControl& to = *order[later];
    const auto lineOf = [](const PlacedControl& control)
    { return " in line " + std::to_string(control.control->span.line); };
    const PlacedControl& wrong = isEarlier ? from : to;
    Finding& finding = judged.findings.Add("geometry-tab", wrong.control->span,
                                           "the Tab key goes back from " + ShownNameOf(*from.control) +
                                               (isEarlier ? "" : lineOf(from)) + " to " + ShownNameOf(*to.control) +
                                               (isEarlier ? lineOf(to) : ""),
                                           "write the statements in the order of reading");
    const size_t place = isEarlier ? later - 1 : later;
    const std::optional<SwappedNumbers> swapped = SwappedNumbersOf(screen, wrong);
    const bool isAfter = swapped && (place == 0 || !GoesBack(order[place - 1]->place, swapped->placed.place));
    const bool isBefore =
        swapped && (place + 1 == order.size() || !GoesBack(swapped->placed.place, order[place + 1]->place));
    if (isAfter && isBefore)
        AddSwapped(judged, *wrong.control, *swapped, finding);
}

// The lines of the controls that are in a wrong place by another rule: what follows from that needs no more words.
std::set<int> LinesOfMisplaced(const Findings& findings)
{
    const std::set<const Rule*> rules = {&RuleName("geometry-overlap").Get(), &RuleName("geometry-outside").Get()};
    std::set<int> lines;
    for (const Finding& finding : findings.All())
    {
        if (rules.contains(finding.rule))
            lines.insert(finding.place.line);
    }
    return lines;
}

void JudgeTabOrder(const Case& judged, const Screen& screen)
{
    const std::set<int> misplaced = LinesOfMisplaced(judged.findings);
    const std::vector<const PlacedControl*> frames = FramesOf(screen);
    std::vector<const PlacedControl*> order;
    for (const PlacedControl& control : screen.controls)
    {
        if (TakesFocus(control) && !misplaced.contains(control.control->span.line))
            order.push_back(&control);
    }
    for (size_t later = 1; later < order.size(); ++later)
    {
        if (GoesBack(order[later - 1]->place, order[later]->place) &&
            FrameOf(frames, *order[later - 1]) == FrameOf(frames, *order[later]))
            AddTabOrder(judged, screen, order, later);
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
    const std::set<int> misplaced = LinesOfMisplaced(judged.findings);
    for (const ClytControlStatement& group : judged.description.controls)
    {
        if (KindOf(group) != Kind::OptionGroup || !groups.insert(group.name).second)
            continue;
        const std::vector<const ClytControlStatement*>& options =
            OptionButtonsOf(judged.description, group.name.GetString());
        if (std::ranges::any_of(options, [&](const ClytControlStatement* option)
                                { return misplaced.contains(option->span.line); }))
            continue;
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
                                        std::to_string(options.size()) + " options of " + ShownNameOf(group),
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
