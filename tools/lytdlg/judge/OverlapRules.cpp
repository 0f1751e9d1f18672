#include "lytdlg/judge/Names.h"
#include "lytdlg/judge/Sightings.h"
#include "lytdlg/judge/StatementText.h"

#include <algorithm>
#include <cmath>
#include <deque>
#include <iterator>
#include <limits>
#include <map>
#include <numeric>
#include <set>

namespace lytdlg
{

namespace
{

int UnitsOf(int pixels, float factor)
{
    return static_cast<int>(std::ceil(static_cast<float>(pixels) / factor));
}

// Calls the act with each two controls that overlap, the earlier first. Sorted by their upper edges, a control meets only
// those above it that reach down to it.
template <class ACT>
void ForEachOverlap(const Screen& screen, ACT act)
{
    const std::vector<PlacedControl>& controls = screen.controls;
    std::vector<size_t> order(controls.size());
    std::iota(order.begin(), order.end(), size_t{0});
    std::ranges::stable_sort(order, {}, [&](size_t control) { return controls[control].place.top; });
    std::deque<size_t> above;
    for (const size_t control : order)
    {
        std::erase_if(above, [&](size_t other) { return controls[other].place.bottom <= controls[control].place.top; });
        for (const size_t other : above)
        {
            if (Cover(controls[other], controls[control]))
                act(std::min(control, other), std::max(control, other));
        }
        above.push_back(control);
        if (above.size() > mostCompared)
            above.pop_front();
    }
}

// The controls that one overlaps with.
class Overlaps
{
public:
    void Add(size_t other)
    {
        if (m_first.contains(other))
            return;
        ++m_count;
        m_first.insert(other);
        if (m_first.size() > mostTold)
            m_first.erase(std::prev(m_first.end()));
    }
    // The same control on another screen.
    void Merge(const Overlaps& other)
    {
        const size_t most = std::max(m_count, other.m_count);
        for (const size_t each : other.m_first)
            Add(each);
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

// Of two controls that overlap the one that is in a wrong place: the one that overlaps with more, or else the later one.
class Culprits
{
public:
    // Each screen has the same controls in the same order.
    explicit Culprits(const std::vector<Screen>& screens)
        : m_first(screens.front()), m_degrees(m_first.controls.size(), 0), m_swapped(m_first.controls.size())
    {
        for (const Screen& screen : screens)
            ForEachOverlap(screen,
                           [&](size_t before, size_t control)
                           {
                               ++m_degrees[before];
                               ++m_degrees[control];
                           });
        for (size_t control = 0; control < m_degrees.size() && m_degrees.size() <= mostCompared; ++control)
        {
            if (m_degrees[control] != 0)
                m_swapped[control] = SwappedNumbersOf(m_first, m_first.controls[control]);
        }
    }

    size_t Of(size_t before, size_t control) const
    {
        if (m_swapped[before].has_value() != m_swapped[control].has_value())
            return m_swapped[before] ? before : control;
        return m_degrees[before] > m_degrees[control] ? before : control;
    }
    const std::optional<SwappedNumbers>& SwappedIn(size_t control) const { return m_swapped[control]; }

private:
    const Screen& m_first;
    std::vector<size_t> m_degrees;
    std::vector<std::optional<SwappedNumbers>> m_swapped;
};

Sighting SightingOf(const std::vector<Screen>& screens, size_t left, size_t right)
{
    Sighting sighting = {screens.front().controls[right].control};
    for (const Screen& screen : screens)
    {
        if (!Cover(screen.controls[left], screen.controls[right]))
            continue;
        sighting.first = sighting.count++ == 0 ? &screen : sighting.first;
    }
    return sighting;
}

// How far two controls overlap on a screen, and what of that the description does not say.
std::string ExtentOf(const Screen& screen, size_t own, size_t other)
{
    const CRect& left = screen.controls[own].place;
    const CRect& right = screen.controls[other].place;
    const ClytResolution& resolution = ResolutionOf(screen);
    const int width = UnitsOf(std::min(left.right, right.right) - std::max(left.left, right.left), resolution.x);
    const int height = UnitsOf(std::min(left.bottom, right.bottom) - std::max(left.top, right.top), resolution.y);
    std::string extent = " by " + std::to_string(width) + " x " + std::to_string(height) + " units";
    for (const size_t control : {own, other})
    {
        const PlacedControl& placed = screen.controls[control];
        if (IsSizedByText(placed.kind))
            extent += "; " + ShownNameOf(*placed.control) + " is sized by its text, " +
                      std::to_string(UnitsOf(placed.place.Width(), resolution.x)) + " wide";
    }
    return extent;
}

void AddOverlap(const Case& judged, const std::vector<Screen>& screens, const Culprits& culprits, size_t own,
                size_t other)
{
    const ClytControlStatement& control = *screens.front().controls[own].control;
    const ClytControlStatement& second = *screens.front().controls[other].control;
    const Sighting sighting = SightingOf(screens, other, own);
    Finding& finding = judged.findings.Add("geometry-overlap", control.span,
                                           ShownNameOf(control) + " and " + ShownNameOf(second) + " in line " +
                                               std::to_string(second.span.line) + " overlap" +
                                               WhereOf(sighting, screens) + ExtentOf(*sighting.first, own, other),
                                           "move one of them, or make it smaller");
    if (culprits.SwappedIn(own))
        AddSwapped(judged, control, *culprits.SwappedIn(own), finding);
}

// The controls beyond one edge of the dialog, and how many units are missing there.
struct Edge
{
    const char* name;
    const char* size;
    size_t word; // of the dialog's line
    std::set<const ClytControlStatement*> controls = {};
    int missing = 0;

    void Add(const PlacedControl& control, int pixels, float factor)
    {
        if (pixels <= 0)
            return;
        controls.insert(control.control);
        missing = std::max(missing, UnitsOf(pixels, factor));
    }
};

// Several controls beyond one edge make it likely that the dialog has a wrong size.
void AddTooSmall(const Case& judged, const Edge& edge, int size)
{
    const Description& description = judged.description;
    const int line = description.dialogHeader.line;
    const std::vector<LineToken> words = TokensOf(description.text.Line(line).text, Section::Layout);
    const bool hasWord = words.size() > edge.word;
    // A wrong number is reported by itself.
    if (hasWord && words[edge.word].text != std::to_string(size))
        return;
    const ClytSpan place = hasWord
                               ? ClytSpan{line, words[edge.word].column, static_cast<int>(words[edge.word].text.size())}
                               : description.PlaceOf(line);
    const auto first =
        std::ranges::min_element(edge.controls, {}, [](const auto* control) { return control->span.line; });
    const std::string needed = std::to_string(size + edge.missing);
    Finding& finding = judged.findings.Add("geometry-outside", place,
                                           std::to_string(edge.controls.size()) + " controls go beyond the " +
                                               edge.name + " edge of the dialog, the first " + ShownNameOf(**first) +
                                               " in line " + std::to_string((*first)->span.line),
                                           std::string("they need a ") + edge.size + " of " + needed);
    if (hasWord)
        finding.FixPerhaps(place, needed);
}

bool IsWithin(const Screen& screen, const CRect& place)
{
    return place.left >= 0 && place.top >= 0 && place.right <= screen.client.cx && place.bottom <= screen.client.cy;
}

// Numbers that no dialog has are reported where they are.
bool IsFair(const ClytControlStatement& control)
{
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = 1 << 20;
    return control.x > least && control.y > least && control.x < most && control.y < most && control.width < most &&
           control.height < most;
}

} // namespace

void JudgeOverlap(const Case& judged, const std::vector<Screen>& screens)
{
    const Culprits culprits(screens);
    std::vector<Overlaps> overlaps(screens.front().controls.size());
    for (const Screen& screen : screens)
    {
        std::vector<Overlaps> found(screen.controls.size());
        ForEachOverlap(screen,
                       [&](size_t before, size_t control)
                       {
                           const size_t own = culprits.Of(before, control);
                           found[own].Add(own == control ? before : control);
                       });
        for (size_t control = 0; control < found.size(); ++control)
            overlaps[control].Merge(found[control]);
    }
    for (size_t control = 0; control < overlaps.size(); ++control)
    {
        for (const size_t other : overlaps[control].First())
            AddOverlap(judged, screens, culprits, control, other);
        const ClytControlStatement& own = *screens.front().controls[control].control;
        if (const size_t others = overlaps[control].CountOfOthers(); others != 0)
            judged.findings.Add("geometry-overlap", own.span,
                                "and " + std::to_string(others) + (others == 1 ? " more overlaps" : " more overlap") +
                                    " with " + ShownNameOf(own),
                                "move it, or make it smaller");
    }
}

void JudgeOutside(const Case& judged, const std::vector<Screen>& screens)
{
    Sightings seen;
    std::map<const ClytControlStatement*, SwappedNumbers> swapped;
    Edge right = {"right", "width", 3};
    Edge bottom = {"lower", "height", 4};
    for (const Screen& screen : screens)
    {
        for (const PlacedControl& control : screen.controls)
        {
            constexpr int least = std::numeric_limits<int>::min();
            const bool isMinimal = control.control->x == least || control.control->y == least;
            if (isMinimal || IsWithin(screen, control.place))
                continue;
            seen.Add(screen, control.control);
            if (const auto numbers = SwappedNumbersOf(screen, control))
                swapped.emplace(control.control, *numbers);
            if (!IsFair(*control.control))
                continue;
            right.Add(control, control.place.right - screen.client.cx, ResolutionOf(screen).x);
            bottom.Add(control, control.place.bottom - screen.client.cy, ResolutionOf(screen).y);
        }
    }
    // One slip is likelier than several.
    if (swapped.size() > 1)
        swapped.clear();
    for (const auto& [control, numbers] : swapped)
    {
        right.controls.erase(control);
        bottom.controls.erase(control);
    }
    const auto isTooSmall = [](const Edge& edge) { return edge.controls.size() > 1; };
    if (isTooSmall(right))
        AddTooSmall(judged, right, judged.description.width);
    if (isTooSmall(bottom))
        AddTooSmall(judged, bottom, judged.description.height);
    for (const Sighting& sighting : seen.All())
    {
        const auto isTold = [&](const Edge& edge)
        { return isTooSmall(edge) && edge.controls.contains(sighting.control); };
        if (isTold(right) || isTold(bottom))
            continue;
        Finding& finding =
            judged.findings.Add("geometry-outside", sighting.control->span,
                                ShownNameOf(*sighting.control) + " goes beyond the dialog" + WhereOf(sighting, screens),
                                "move it, or make the dialog larger");
        if (const auto numbers = swapped.find(sighting.control); numbers != swapped.end())
            AddSwapped(judged, *sighting.control, numbers->second, finding);
    }
}

} // namespace lytdlg
