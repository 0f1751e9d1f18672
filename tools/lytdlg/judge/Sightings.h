// What the rules about places have in common: where on the screens they found something, and how places lie to each other.
#pragma once

#include "lytdlg/judge/Judge.h"
#include "lytdlg/judge/Places.h"

#include <unordered_map>

namespace lytdlg
{

// No screen has room for more controls side by side: a control is compared with as many at its height.
inline constexpr size_t mostCompared = 1000;

// A control as messages name it.
std::string ShownNameOf(const ClytControlStatement& control);

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
    void Add(const Screen& screen, const ClytControlStatement* control, int pixels = 0);
    const std::vector<Sighting>& All() const { return m_sightings; }

private:
    std::vector<Sighting> m_sightings;
    std::unordered_map<const ClytControlStatement*, size_t> m_places;
};

// On which screens, in words; empty for all of them.
std::string WhereOf(const Sighting& sighting, const std::vector<Screen>& screens);

bool Holds(const CRect& frame, const CRect& place);
// Whether two controls are seen one over the other.
bool Cover(const PlacedControl& left, const PlacedControl& right);
// Up in the same column, or to the left in the same row.
bool GoesBack(const CRect& from, const CRect& to);

// The numbers of a control's statement that seem to be swapped, and as they should be: then it covers no other control
// and is within the dialog.
struct SwappedNumbers
{
    const char* names;    // of the two
    size_t first;         // the place of the first of them in the statement
    int numbers[2];       // as they should be
    PlacedControl placed; // on the first screen
};
std::optional<SwappedNumbers> SwappedNumbersOf(const Screen& screen, const PlacedControl& control);
// Says so in the way out, with the fix.
void AddSwapped(const Case& judged, const ClytControlStatement& control, const SwappedNumbers& swapped,
                Finding& finding);

// The rules about two controls in one place, and about the edges of the dialog.
void JudgeOverlap(const Case& judged, const std::vector<Screen>& screens);
void JudgeOutside(const Case& judged, const std::vector<Screen>& screens);

} // namespace lytdlg
