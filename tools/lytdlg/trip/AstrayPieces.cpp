#include "lytdlg/trip/AstrayPieces.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/trip/TripEvidence.h"

#include <algorithm>

namespace lytdlg
{

bool AstrayPieces::TellGiven(const TripItem& item)
{
    for (const TripCut& cut : m_trip.cuts)
    {
        for (const TripFill& fill : cut.fills)
        {
            if (fill.control != item.name || fill.takesPiece || fill.action == ClytFillAction::Fill)
                continue;
            const TripCut* before = m_compared.CutBefore(cut);
            for (const std::string& target : before != nullptr ? before->targets : std::vector<std::string>())
            {
                if (target != cut.statement && GivesValue(m_compared.Plan(), target, item.name, item.value))
                    return TellWay(item, before->span, cut.statement, target, TripBlame::Input);
            }
            m_teller.Tell("trip-control", fill.span, m_trip.out.line,
                          "the text has " + Excerpt(item.value) + " for " + InQuotes(item.name) +
                              ", and this puts another one into it: " + m_compared.ComesBack(item.name),
                          "give it the value that the input has found");
            return true;
        }
    }
    return false;
}

// Whether the user could have entered it, when somebody enters it at all.
bool AstrayPieces::IsHeld(const std::string& name) const
{
    return m_trip.reached.contains(name) || !m_compared.Plan().Find(name)->isEntered;
}

// Where the run took another way than that to the item: a jump, or a statement with several separators.
bool AstrayPieces::TellWrongWay(const TripItem& item, const TripCut& cut)
{
    if (cut.Takes(item.name) || !IsHeld(item.name))
        return false;
    for (const TripJump& jump : cut.jumps)
    {
        for (const std::string& target : jump.targets)
        {
            if (target != jump.next && LeadsTo(m_compared.Plan(), target, item.name))
                return TellWay(item, jump.span, jump.next, target, TripBlame::Either);
        }
    }
    const TripCut* before = m_compared.CutBefore(cut);
    const auto taker = std::ranges::find_if(cut.fills, &TripFill::takesPiece);
    const bool isSwapped = taker != cut.fills.end() && IsSwapped(item, *taker);
    if (before == nullptr || !cut.jumps.empty() || isSwapped)
        return false;
    if (taker != cut.fills.end() && IsSkipped(item, taker->control))
        return TellWay(item, before->span, cut.statement,
                       m_compared.Plan().TakersOf(item.name).front().statement->name.GetString(), TripBlame::Input);
    if (before->targets.size() < 2)
        return false;
    for (const std::string& target : before->targets)
    {
        if (target != cut.statement && LeadsTo(m_compared.Plan(), target, item.name))
            return TellWay(item, before->span, cut.statement, target, TripBlame::Output);
    }
    return false;
}

// Whether the run has come to the statement of a later item, and to none that takes this one.
bool AstrayPieces::IsSkipped(const TripItem& item, const std::string& taken) const
{
    const TripItem* later = m_compared.ItemOf(taken);
    const std::vector<TripTaker>& takers = m_compared.Plan().TakersOf(item.name);
    return later != nullptr && later > &item && takers.size() == 1 && takers.front().isAlone &&
           std::ranges::none_of(m_trip.cuts, [&](const TripCut& each) { return each.Takes(item.name); });
}

bool AstrayPieces::TellWay(const TripItem& item, const ClytSpan& jump, const std::string& taken,
                           const std::string& other, TripBlame blame)
{
    m_teller.TellMisfit("trip-control",
                        {item.span,
                         "this rule writes " + InQuotes(item.name) + ", and " + NumberedLine(jump.line) + " leads to " +
                             InQuotes(taken) + ": " + m_compared.ComesBack(item.name),
                         "write what is read there"},
                        {jump,
                         NumberedLine(m_trip.out.line) + " writes " + InQuotes(item.name) + ", and this leads to " +
                             InQuotes(taken) + " where " + InQuotes(other) +
                             " would read it: " + m_compared.ComesBack(item.name),
                         "lead to " + InQuotes(other) + " for such a text"},
                        blame);
    return true;
}

const TripFill* AstrayPieces::LastFillOf(const std::string& name, const TripCut*& of) const
{
    const TripFill* last = nullptr;
    for (const TripCut& cut : m_trip.cuts)
    {
        for (const TripFill& fill : cut.fills)
        {
            if (fill.control != name || !fill.takesPiece)
                continue;
            last = &fill;
            of = &cut;
        }
    }
    return last;
}

void AstrayPieces::TellAstray(const TripItem& item, const TripCut& cut)
{
    const auto taker = std::ranges::find_if(cut.fills, &TripFill::takesPiece);
    if (taker == cut.fills.end())
        TellAstrayTo(item, cut.span, "nowhere", "put it into " + InQuotes(item.name) + ": = " + item.name,
                     TripBlame::Input);
    else if (cut.Takes(item.name))
        TellNotKept(item, cut);
    else if (IsSwapped(item, *taker))
        TellSwapped(item, cut, *taker);
    else
        TellAstrayTo(item, taker->span, "into " + InQuotes(taker->control), "write " + InQuotes(item.name) + " here",
                     BlameFor(item, cut, *taker));
}

// A statement that has the name of what it takes, or of what the rule writes at another place, is likely to be right.
TripBlame AstrayPieces::BlameFor(const TripItem& item, const TripCut& cut, const TripFill& taker) const
{
    const bool isMeant = cut.statement == taker.control && m_compared.ItemOf(taker.control) == nullptr;
    if (cut.statement != item.name && m_compared.ItemOf(cut.statement) != nullptr && !cut.Takes(cut.statement))
        return TripBlame::Output;
    return isMeant && (!m_compared.Plan().IsFilled(item.name) || !IsHeld(item.name)) ? TripBlame::Output
                                                                                     : TripBlame::Input;
}

void AstrayPieces::TellAstrayTo(const TripItem& item, const ClytSpan& reader, const std::string& where,
                                const std::string& hint, TripBlame blame)
{
    m_teller.TellMisfit("trip-control",
                        {item.span,
                         "this rule writes " + InQuotes(item.name) + ", and " + NumberedLine(reader.line) +
                             " puts the piece " + where + ": " + m_compared.ComesBack(item.name),
                         "write the items in the order in which the input reads them"},
                        {reader,
                         NumberedLine(m_trip.out.line) + " writes " + InQuotes(item.name) +
                             " here, and the piece goes " + where + ": " + m_compared.ComesBack(item.name),
                         hint},
                        blame);
}

// The piece of the other control goes somewhere else in turn, and some piece comes here.
bool AstrayPieces::IsSwapped(const TripItem& item, const TripFill& taker) const
{
    const TripItem* other = m_compared.ItemOf(taker.control);
    if (other == nullptr || m_compared.Plan().TakersOf(item.name).empty())
        return false;
    const TripCut* cut = m_compared.CutAt(*other);
    return cut != nullptr && !cut->Takes(taker.control);
}

// Statements often have the names of what they take.
void AstrayPieces::TellSwapped(const TripItem& item, const TripCut& cut, const TripFill& taker)
{
    m_teller.TellMisfit("trip-swapped",
                        {item.span,
                         "this rule writes " + InQuotes(item.name) + " where " + NumberedLine(taker.span.line) +
                             " reads " + InQuotes(taker.control) + ": " + m_compared.ComesBack(item.name),
                         "write " + InQuotes(taker.control) + " here, in the order in which the input reads them"},
                        {taker.span,
                         NumberedLine(m_trip.out.line) + " writes " + InQuotes(item.name) + " here, and this reads " +
                             InQuotes(taker.control) + ": " + m_compared.ComesBack(item.name),
                         "write " + InQuotes(item.name) + " here"},
                        cut.statement == item.name && cut.statement != taker.control ? TripBlame::Input
                                                                                     : TripBlame::Output);
}

void AstrayPieces::TellNotKept(const TripItem& item, const TripCut& cut)
{
    const TripCut* lastCut = nullptr;
    const TripFill* last = LastFillOf(item.name, lastCut);
    if (last == nullptr || lastCut == nullptr)
        return;
    const auto isThere = [&](const TripItem& each)
    { return each.begin >= m_trip.begin && m_compared.Begin(each) == lastCut->begin && each.name != item.name; };
    const auto meant = std::ranges::find_if(m_trip.out.items, isThere);
    const std::string name = meant != m_trip.out.items.end() ? meant->name : "";
    if (lastCut != &cut && lastCut->piece != cut.piece)
        m_teller.Tell("trip-control",
                      {last->span,
                       "this puts " + Excerpt(lastCut->piece) + " into " + InQuotes(item.name) +
                           ", which has its piece from " + NumberedLine(cut.span.line) + " already",
                       name.empty() ? "name the control that this piece is of" : "write " + InQuotes(name) + " here",
                       {last->span.line, last->span.column, static_cast<int>(item.name.size())},
                       name},
                      cut.span.line);
    else if (last->action == ClytFillAction::Concat && !item.separators.empty())
        TellList(item, *last);
    else
        m_teller.Tell("trip-changed", last->span, m_trip.out.line,
                      "the piece " + Excerpt(cut.piece) + " goes into " + InQuotes(item.name) +
                          ", which does not keep it: " + m_compared.ComesBack(item.name),
                      "use a control that takes the value back");
}

void AstrayPieces::TellList(const TripItem& item, const TripFill& fill)
{
    const bool isBlank = lytMeans<ClytFillAction::Concat>(item.separators.c_str());
    const std::string joined = isBlank ? " " : item.separators.substr(0, 1);
    const bool isOther = fill.separators.find(joined) == std::string::npos || item.separators.size() > 1;
    const bool isSplit = IsSplitAnywhere(m_compared.Of(), joined[0]);
    const bool isJoined = IsJoinedAnywhere(m_compared.Of(), fill.separators);
    if (!isOther)
        m_teller.Tell("trip-list", fill.span, item.span.line,
                      "the items of " + InQuotes(item.name) + " do not come back as they were: " +
                          Excerpt(m_trip.text) + " goes out again as " + Excerpt(m_trip.again),
                      "use a ListBox without items in $VALUES");
    else
        m_teller.TellMisfit("trip-list",
                            {item.span,
                             "this joins the items with " + InQuotes(item.separators) + ", and " +
                                 NumberedLine(fill.span.line) + " takes them apart at " + InQuotes(fill.separators),
                             "write " + item.name + "(\"" + fill.separators.substr(0, 1) + "\")",
                             m_compared.Of().PlaceOf(item.span.line, item.separators,
                                                     item.span.column + static_cast<int>(item.name.size())),
                             item.separators.size() == 1 ? fill.separators.substr(0, 1) : ""},
                            {fill.span,
                             "this takes the items apart at " + InQuotes(fill.separators) + ", and " +
                                 NumberedLine(item.span.line) + " joins them with " + InQuotes(item.separators),
                             "write " + InQuotes(joined) + " here"},
                            isSplit == isJoined ? TripBlame::Either
                            : isSplit           ? TripBlame::Input
                                                : TripBlame::Output);
}

} // namespace lytdlg
