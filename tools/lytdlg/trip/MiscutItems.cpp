#include "lytdlg/trip/MiscutItems.h"

#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/trip/TripEvidence.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

std::string Alternatives(const std::vector<std::string>& separators)
{
    std::string list;
    for (const std::string& separator : separators)
    {
        if (separator != "Rest")
            list += (list.empty() ? "" : " or ") + InQuotes(separator);
    }
    return list;
}

} // namespace

bool MiscutItems::TellCut(const TripItem& item)
{
    const TripControl& control = *m_compared.Plan().Find(item.name);
    const std::string limit = std::to_string(item.end - item.begin);
    const auto taker =
        std::ranges::find_if(m_trip.cuts, [&](const TripCut& cut)
                             { return cut.length > 0 && cut.length < tripLongest && cut.Takes(item.name); });
    if (!control.mark.empty() && taker != m_trip.cuts.end())
    {
        const std::string length = std::to_string(taker->length);
        m_teller.TellMisfit("trip-length",
                            {item.span,
                             "at most " + limit + " characters of " + InQuotes(item.name) + " go out, and " +
                                 NumberedLine(taker->span.line) + " takes " + length,
                             "write %." + length + "s for it"},
                            {taker->span,
                             "this takes " + length + " characters, and " + NumberedLine(item.span.line) +
                                 " writes at most " + limit + " of " + InQuotes(item.name),
                             "write " + limit + " here"},
                            TripBlame::Output);
        return false;
    }
    m_teller.Tell("trip-cut",
                  {item.span,
                   "of " + InQuotes(item.name) + " only " + Excerpt(m_compared.Put(item)) + " goes out, not " +
                       Excerpt(item.value),
                   "write %s in place of %." + limit + "s, or a larger limit", m_compared.PlaceOfConversion(item),
                   "%s"},
                  0);
    return true;
}

void MiscutItems::TellEnd(const TripItem& item)
{
    if (m_trip.cuts.empty())
        return;
    const ClytSpan& last = m_trip.lastJumps.empty() ? m_trip.cuts.back().span : m_trip.lastJumps.back().span;
    m_teller.Tell("trip-end", last, m_trip.out.line,
                  "the input ends here, and leaves " + Excerpt(m_trip.rest) + " of " + Excerpt(m_trip.text) + ": " +
                      InQuotes(item.name) + " of " + NumberedLine(m_trip.out.line) + " is lost",
                  "go on with a statement for " + InQuotes(item.name));
}

void MiscutItems::TellLateBegin(const TripItem& item, const TripCut& cut)
{
    const auto first =
        std::ranges::find_if(m_trip.out.items, [&](const TripItem& each)
                             { return each.begin >= m_trip.begin && m_compared.Begin(each) >= cut.begin; });
    if (first != m_trip.out.items.end() && m_compared.Begin(*first) == cut.begin && first->end > first->begin)
        TellTooLong(*first, cut);
    else
        TellNotCutOff(first != m_trip.out.items.end() ? *first : item, cut);
}

// What comes before the item is taken for a part of the piece. After a piece of a fixed length the next one begins
// immediately.
void MiscutItems::TellNotCutOff(const TripItem& item, const TripCut& cut)
{
    const TripCut* before = m_compared.CutBefore(cut);
    const bool isAfterLength = before != nullptr && before->length > 0 && cut.TakesAny();
    const TripCut& reader = isAfterLength ? *before : cut;
    const std::string written = m_trip.text.substr(cut.begin, m_compared.Begin(item) - cut.begin);
    m_teller.TellMisfit("trip-separator",
                        {item.span,
                         "this rule writes " + Excerpt(written) + " before " + InQuotes(item.name) + ", and " +
                             NumberedLine(cut.span.line) +
                             " takes that for a part of the piece: " + m_compared.ComesBack(item.name),
                         "write what the input reads, or let the input cut " + Excerpt(written) + " off"},
                        {reader.span,
                         (isAfterLength ? "this cuts by a length, and leaves " : "this takes ") + Excerpt(written) +
                             ", which " + NumberedLine(m_trip.out.line) + " writes before " + InQuotes(item.name) +
                             (isAfterLength ? ", to the next piece: " : ", for a part of the piece: ") +
                             m_compared.ComesBack(item.name),
                         "cut " + Excerpt(written) + " off"},
                        isAfterLength && !before->TakesAny() ? TripBlame::Either : TripBlame::Output);
}

bool MiscutItems::TellIdleCut()
{
    for (const TripCut& cut : m_trip.cuts)
    {
        const bool isIdle = cut.begin == cut.end && cut.length == 0 && cut.next > cut.end && cut.TakesAny();
        const TripCut* before = m_compared.CutBefore(cut);
        if (!isIdle || before == nullptr || before->length == 0)
            continue;
        const auto next =
            std::ranges::find_if(m_trip.out.items, [&](const TripItem& item)
                                 { return item.begin >= m_trip.begin && m_compared.Begin(item) > cut.begin; });
        if (next == m_trip.out.items.end() || !cut.Takes(next->name))
            continue;
        TellNotCutOff(*next, cut);
        return true;
    }
    return false;
}

void MiscutItems::TellSkipped(const TripItem& item, const TripCut& cut)
{
    const TripItem* before = &item == m_trip.out.items.data() ? nullptr : &item - 1;
    const std::string gap =
        before != nullptr ? GapAfter(*before) : m_trip.out.text.substr(m_trip.begin, m_compared.Begin(item));
    const std::string length = std::to_string(cut.length);
    const std::vector<std::string> gaps = GapsOf(m_compared.Of());
    m_teller.TellMisfit("trip-separator",
                        {item.span,
                         "this rule writes " + (gap.empty() ? "nothing" : Excerpt(gap)) + " before " +
                             InQuotes(item.name) + ", and " + NumberedLine(cut.span.line) + " passes over " + length +
                             " characters of the piece: " + m_compared.ComesBack(item.name),
                         "write what the input passes over"},
                        {cut.span,
                         "this passes over " + length + " characters, and " + NumberedLine(m_trip.out.line) +
                             " writes " + Excerpt(gap) + " before " + InQuotes(item.name) + ": " +
                             m_compared.ComesBack(item.name),
                         "pass over as many characters as the output writes"},
                        std::ranges::count(gaps, gap) > 1 ? TripBlame::Input : TripBlame::Output);
}

void MiscutItems::TellTooLong(const TripItem& item, const TripCut& cut)
{
    if (cut.length > 0 && cut.length < tripLongest)
        TellLength(item, cut);
    else
        TellNotSeparated(item, cut);
}

void MiscutItems::TellLength(const TripItem& item, const TripCut& cut)
{
    const TripControl& control = *m_compared.Plan().Find(item.name);
    const bool isShort = item.value.size() < static_cast<size_t>(cut.length);
    const std::string characters = std::to_string(cut.length) + " characters, and ";
    const std::string may = isShort ? " may have fewer: " : " may have more: ";
    m_teller.TellMisfit(
        "trip-length",
        {item.span,
         "this writes " + InQuotes(item.name) + " where " + NumberedLine(cut.span.line) + " takes " +
             std::to_string(cut.length) + " characters: " + m_compared.ComesBack(item.name),
         "write here what the input takes"},
        {cut.span, "this takes " + characters + InQuotes(item.name) + may + m_compared.ComesBack(item.name),
         control.mark.empty() || isShort ? "cut at a separator, and let " + NumberedLine(m_trip.out.line) + " write it"
                                         : "write %." + std::to_string(cut.length) + "s in " +
                                               NumberedLine(m_trip.out.line) + ", or cut at a separator"},
        TripBlame::Input);
}

std::string MiscutItems::GapAfter(const TripItem& item) const
{
    const TripItem* next = &item == &m_trip.out.items.back() ? nullptr : &item + 1;
    // What comes before the bracket of a group does not come back.
    const size_t begin = item.end < m_trip.begin ? 0 : std::min(m_compared.End(item), m_trip.text.size());
    const size_t end = next != nullptr && next->begin >= m_trip.begin ? m_compared.Begin(*next) : m_trip.text.size();
    return m_trip.text.substr(begin, end > begin ? end - begin : 0);
}

// How many statements read a separator that a gap begins with.
size_t MiscutItems::ReadersOf(const std::string& gap) const
{
    size_t count = 0;
    for (const TripCut& cut : m_trip.cuts)
    {
        count += std::ranges::any_of(cut.separators, [&](const std::string& separator)
                                     { return !separator.empty() && gap.starts_with(separator); })
                     ? 1
                     : 0;
    }
    return count;
}

void MiscutItems::TellNotSeparated(const TripItem& item, const TripCut& cut)
{
    const std::string gap = GapAfter(item);
    const std::string read = Alternatives(cut.separators);
    const std::string reads = read.empty() ? "reads to the end of the text" : "reads up to " + read;
    const std::string comesBack = m_compared.ComesBack(item.name);
    const std::string writes = gap.empty() ? "writes nothing" : "writes " + Excerpt(gap);
    m_teller.TellMisfit("trip-separator",
                        {item.span,
                         "this rule " + writes + " after " + InQuotes(item.name) + ", and " +
                             NumberedLine(cut.span.line) + " " + reads + ": " + comesBack,
                         read.empty() ? "let the input cut the piece where it ends"
                                      : "write " + read + " after " + InQuotes(item.name) + ", or read " +
                                            Excerpt(gap) + " in " + NumberedLine(cut.span.line),
                         gap.size() == 1 ? m_compared.PlaceAfterConversion(item) : ClytSpan(),
                         cut.separators.size() == 1 ? cut.separators.front() : ""},
                        {cut.span,
                         "this " + reads + ", and " + NumberedLine(m_trip.out.line) + " " + writes + " after " +
                             InQuotes(item.name) + ": " + comesBack,
                         "read what the output writes"},
                        BlameFor(item, cut, gap), cut.separators);
}

// The one of the two that is alone with its separator is the one that is wrong. A bracket that ends the text as well is
// beside the matter.
TripBlame MiscutItems::BlameFor(const TripItem& item, const TripCut& cut, const std::string& gap) const
{
    std::vector<std::string> separators = cut.separators;
    if (separators.size() > 1)
        std::erase_if(separators, [](const std::string& each) { return each == ")" || each == "]" || each == "}"; });
    const bool isRead = ReadersOf(gap) > 0;
    const bool isWritten = IsWrittenAnywhere(m_compared.Of(), separators);
    // A choice has values of a certain length, and what is entered has not.
    if (gap.empty())
        return m_compared.Plan().Find(item.name)->mark.empty() ? TripBlame::Both : TripBlame::Output;
    if (ClosesBracket(m_trip.text.substr(0, m_compared.End(item)), gap) || (isRead && !isWritten))
        return TripBlame::Input;
    return isWritten && !isRead ? TripBlame::Output : TripBlame::Either;
}

// The statement that gives a control the value.
const ValueStatement* MiscutItems::StatementOf(const std::string& name, const std::string& value) const
{
    for (const Role role : {Role::Item, Role::Default, Role::On, Role::Off, Role::OptionValue})
    {
        for (const ValueStatement* statement : StatementsOf(m_compared.Of(), name, role))
        {
            if (statement->values.front() == value)
                return statement;
        }
    }
    for (const ClytControlStatement* option : OptionButtonsOf(m_compared.Of(), name))
    {
        if (const ValueStatement* statement = StatementOf(option->name.GetString(), value))
            return statement;
    }
    return nullptr;
}

void MiscutItems::TellTooShort(const TripItem& item, const TripCut& cut)
{
    if (cut.length > 0)
    {
        TellLength(item, cut);
        return;
    }
    const std::string separator = m_trip.text.substr(cut.end, cut.next - cut.end);
    const ValueStatement* statement = StatementOf(item.name, item.value);
    if (!item.separators.empty())
        m_teller.Tell("trip-list", item.span, cut.span.line,
                      InQuotes(separator) + " between the items of " + InQuotes(item.name) + " ends the piece in " +
                          NumberedLine(cut.span.line),
                      "put another character between the items, here and where the input takes them apart");
    else if (statement != nullptr)
        m_teller.Tell("trip-value", m_compared.Of().PlaceOf(statement->span.line, item.value), cut.span.line,
                      "the value " + InQuotes(item.value) + " holds " + InQuotes(separator) +
                          ", which ends the piece in " + NumberedLine(cut.span.line) + ": " +
                          m_compared.ComesBack(item.name),
                      "give it a value without " + InQuotes(separator));
}

} // namespace lytdlg
