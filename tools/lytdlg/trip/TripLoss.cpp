#include "lytdlg/trip/TripLoss.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/Conditions.h"
#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/trip/TripEvidence.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

std::string NumberedLine(int line)
{
    return "line " + std::to_string(line);
}

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

class LossSearch
{
public:
    LossSearch(TripTeller& findings, const TripPlan& tried, const Trip& tripMade)
        : m_teller(findings), m_plan(tried), m_trip(tripMade)
    {
    }

    void Tell()
    {
        if (!HasLoss())
        {
            TellFits();
            return;
        }
        if (TellDropped() || TellIdleCut())
            return;
        bool isTold = false;
        for (const TripItem& item : m_trip.out.items)
        {
            if (!IsBack(item) || !IsLost(item))
                continue;
            isTold = true;
            if (!TellItem(item))
                return;
        }
        if (!isTold && IsChanged())
            m_teller.Tell("trip-changed", Of().PlaceOf(m_trip.out.line), m_trip.againLine,
                          Excerpt(m_trip.text) + " comes back, and " + NumberedLine(m_trip.againLine) + " makes " +
                              Excerpt(m_trip.again) + " of it",
                          "let the text say what this rule asks for, and the input read it");
    }

private:
    const Description& Of() const { return m_plan.Of(); }
    // What only a library fills is not compared: it delivers what it likes.
    bool IsTried(const std::string& name) const
    {
        const TripControl* control = m_plan.Find(name);
        return control != nullptr && !IsOfLibrary(*control) && (control->isEntered || control->isTaken);
    }
    static bool IsOfLibrary(const TripControl& control) { return control.isListed && control.kind == Kind::CheckList; }
    // A library may list something else the second time.
    bool IsChanged() const
    {
        const auto isOfLibrary = [&](const TripItem& item)
        {
            const TripControl* control = m_plan.Find(item.name);
            return control != nullptr && (IsOfLibrary(*control) || (!control->isEntered && !control->isTaken));
        };
        return m_trip.again != m_trip.text && m_trip.againLine != 0 &&
               std::ranges::none_of(m_trip.out.items, isOfLibrary);
    }
    bool IsSame(const std::string& name) const { return m_trip.before.at(name) == m_trip.after.at(name); }
    bool IsLost(const TripItem& item) const
    {
        const bool isCut = item.IsCut() && item.separators.empty();
        const bool comesBackCut = isCut && m_trip.after.at(item.name) == Put(item);
        return (isCut && IsBadCut(item)) || (!comesBackCut && !IsSame(item.name));
    }
    std::string Put(const TripItem& item) const { return m_trip.out.text.substr(item.begin, item.end - item.begin); }
    size_t Begin(const TripItem& item) const { return item.begin - m_trip.begin; }
    size_t End(const TripItem& item) const { return item.end - m_trip.begin; }
    const TripItem* ItemOf(const std::string& name) const
    {
        const auto found = std::ranges::find(m_trip.out.items, name, &TripItem::name);
        return found != m_trip.out.items.end() ? &*found : nullptr;
    }
    std::string ComesBack(const std::string& name) const
    {
        const auto found = m_trip.after.find(name);
        if (found == m_trip.after.end())
            return Excerpt(m_trip.text) + " does not come back as it was";
        const std::string& value = found->second;
        return Excerpt(m_trip.text) + " comes back with " +
               (value.empty() ? InQuotes(name) + " empty" : InQuotes(name) + " = " + Excerpt(value));
    }

    // What a statement cuts off comes into the control that it was written from. The end of the text fits everywhere.
    void TellFits()
    {
        for (const TripCut& cut : m_trip.cuts)
        {
            const bool isCut =
                cut.length > 0 ? cut.end - cut.begin == static_cast<size_t>(cut.length) : cut.next > cut.end;
            const auto isItem = [&](const TripItem& item)
            {
                return IsBack(item) && Begin(item) == cut.begin && End(item) == cut.end && Takes(cut, item.name) &&
                       (cut.length == 0 || !IsLongByChance(item, cut));
            };
            if (isCut && (!TakesAny(cut) || std::ranges::any_of(m_trip.out.items, isItem)))
                m_teller.TellFit(cut.span.line, m_trip.text.substr(cut.end, cut.next - cut.end));
        }
    }

    // A field is given a text of the length that the input takes; an author need not.
    bool IsLongByChance(const TripItem& item, const TripCut& cut) const
    {
        return !m_plan.Find(item.name)->mark.empty() && item.limit > cut.length;
    }

    bool HasLoss() const
    {
        return IsChanged() ||
               std::ranges::any_of(m_trip.out.items,
                                   [&](const TripItem& item) { return IsBack(item) && IsLost(item); }) ||
               std::ranges::any_of(m_plan.Controls(), [&](const TripControl& control) { return IsDropped(control); });
    }
    // Whether the item is in what comes back, and can be compared.
    bool IsBack(const TripItem& item) const
    {
        return item.end <= m_trip.begin + m_trip.text.size() && item.begin >= m_trip.begin && IsTried(item.name);
    }

    // ---- A field that the output leaves out

    bool IsPutByRule(const std::string& name) const { return ItemOf(name) != nullptr; }

    const ClytDialogOutput* Rule() const
    {
        const std::vector<const ClytDialogOutput*> rules = RulesOfResult(Of());
        const auto rule = std::ranges::find_if(rules, [&](const ClytDialogOutput* each)
                                               { return each->span.line == m_trip.out.line; });
        return rule != rules.end() ? *rule : nullptr;
    }

    // The conditions of a rule on choices. One for what is empty is no choice.
    std::vector<const ClytCtrlValList*> ChoicesOf(const ClytDialogOutput& rule) const
    {
        std::vector<const ClytCtrlValList*> choices;
        for (const ClytCtrlValList* condition : Records(rule.conditions))
        {
            const TripControl* asked = m_plan.Find(condition->GetName().GetString());
            if ((asked == nullptr || asked->mark.empty()) && ValuesAskedBy(*condition) != std::vector<std::string>{""})
                choices.push_back(condition);
        }
        return choices;
    }

    // Whether the other rule is for the same choice as well.
    bool IsForSame(const ClytCtrlValList& choice, const ClytDialogOutput& other) const
    {
        for (const ClytCtrlValList* condition : ChoicesOf(other))
        {
            const std::vector<std::string> values = ValuesAskedBy(*condition);
            const auto isShared = [&](const std::string& value)
            { return std::ranges::find(values, value) != values.end(); };
            if (condition->GetName() == choice.GetName() && std::ranges::any_of(ValuesAskedBy(choice), isShared))
                return true;
        }
        return false;
    }

    // A rule for one choice may well leave out what belongs to another one, unless another rule for that choice has it.
    bool MayLeaveOut(const std::string& name) const
    {
        const ClytDialogOutput* rule = Rule();
        if (rule == nullptr || ChoicesOf(*rule).empty())
            return rule == nullptr;
        for (const ClytDialogOutput* other : RulesOfResult(Of()))
        {
            const bool puts = std::ranges::any_of(other->items, [&](const ClytOutputItem& item)
                                                  { return name == item.text.GetString(); });
            if (puts && std::ranges::all_of(ChoicesOf(*rule),
                                            [&](const ClytCtrlValList* choice) { return IsForSame(*choice, *other); }))
                return false;
        }
        return true;
    }

    bool IsDropped(const TripControl& control) const
    {
        const std::vector<TripTaker>& takers = m_plan.TakersOf(control.name);
        const bool isRead = std::ranges::any_of(takers, &TripTaker::isAlone) ||
                            (takers.empty() && m_plan.IsFilled(control.name) && m_plan.IsPut(control.name));
        const bool isHeld = control.isEntered ? m_trip.reached.contains(control.name) : control.isAnswered;
        return isHeld && !IsPutByRule(control.name) && isRead && !m_trip.before.at(control.name).empty() &&
               !IsSame(control.name) && (!MayLeaveOut(control.name) || !m_plan.IsPut(control.name));
    }

    bool TellDropped()
    {
        const auto isAstray = [&](const TripItem& item) { return IsBack(item) && !m_plan.IsFilled(item.name); };
        if (std::ranges::any_of(m_trip.out.items, isAstray))
            return false;
        bool isTold = false;
        for (const TripControl& control : m_plan.Controls())
        {
            if (!IsDropped(control))
                continue;
            const std::vector<TripTaker>& takers = m_plan.TakersOf(control.name);
            const int reader = takers.empty() ? 0 : takers.front().fill->span.line;
            m_teller.Tell("trip-dropped", Of().PlaceOf(m_trip.out.line), reader,
                          (reader != 0 ? NumberedLine(reader) : std::string("the input")) + " reads " +
                              InQuotes(control.name) +
                              ", and this rule does not write it: " + Excerpt(m_trip.before.at(control.name)) +
                              " is lost, and " + Excerpt(m_trip.text) + " goes out",
                          "put " + InQuotes(control.name) + " among the items where the input reads it");
            isTold = true;
        }
        return isTold;
    }

    // ---- An item that does not come back

    // The cut in which the item begins; null when the scan ended before it.
    const TripCut* CutAt(const TripItem& item) const
    {
        const TripCut* last = nullptr;
        for (const TripCut& cut : m_trip.cuts)
        {
            const bool isIn = cut.begin <= Begin(item) && (Begin(item) < cut.end || item.begin == item.end);
            if (isIn && (last == nullptr || cut.begin > last->begin || Takes(cut, item.name)))
                last = &cut;
        }
        return last;
    }

    static bool Takes(const TripCut& cut, const std::string& name)
    {
        return std::ranges::any_of(cut.fills,
                                   [&](const TripFill& fill) { return fill.takesPiece && fill.control == name; });
    }

    static bool TakesAny(const TripCut& cut) { return std::ranges::any_of(cut.fills, &TripFill::takesPiece); }

    // True when the pieces after this one may still be right.
    bool TellItem(const TripItem& item)
    {
        if (item.IsCut() && item.separators.empty() && IsBadCut(item))
            return TellCut(item);
        const TripCut* cut = CutAt(item);
        if (cut == nullptr && !TellGiven(item))
            TellEnd(item);
        else if (cut == nullptr)
            return true;
        else if (cut->length > 0 && !TakesAny(*cut) && cut->end > Begin(item))
            TellSkipped(item, *cut);
        else if (cut->begin < Begin(item))
            TellLateBegin(item, *cut);
        else if (cut->end > End(item))
            TellTooLong(item, *cut);
        else if (cut->end < End(item))
            TellTooShort(item, *cut);
        else
        {
            TellAstray(item, *cut);
            return true;
        }
        return false;
    }

    // An author who writes a limit means it, unless the dialog has longer values itself, the limit leaves next to nothing, or
    // another rule does without it.
    bool IsBadCut(const TripItem& item) const
    {
        constexpr size_t nextToNothing = 2;
        const TripControl& control = *m_plan.Find(item.name);
        const bool isFree = !control.mark.empty();
        const size_t limit = item.end - item.begin;
        if (!isFree || (item.value == control.preset && !item.value.empty()))
            return true;
        const bool isCutByInput = control.cutLength > 0 && static_cast<size_t>(control.cutLength) <= limit;
        return !isCutByInput && (limit <= nextToNothing || HasLargerLimit(Of(), item.name, limit));
    }

    // The input knows the value by its separator, and then puts a fixed text into the control.
    bool TellGiven(const TripItem& item)
    {
        for (const TripCut& cut : m_trip.cuts)
        {
            for (const TripFill& fill : cut.fills)
            {
                if (fill.control != item.name || fill.takesPiece)
                    continue;
                m_teller.Tell("trip-control", fill.span, m_trip.out.line,
                              "the text has " + Excerpt(item.value) + " for " + InQuotes(item.name) +
                                  ", and this puts another one into it: " + ComesBack(item.name),
                              "give it the value that the input has found");
                return true;
            }
        }
        return false;
    }

    bool TellCut(const TripItem& item)
    {
        const TripControl& control = *m_plan.Find(item.name);
        const std::string limit = std::to_string(item.end - item.begin);
        const auto taker =
            std::ranges::find_if(m_trip.cuts, [&](const TripCut& cut)
                                 { return cut.length > 0 && cut.length < tripLongest && Takes(cut, item.name); });
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
                                false);
            return false;
        }
        m_teller.Tell("trip-cut", item.span, 0,
                      "of " + InQuotes(item.name) + " only " + Excerpt(Put(item)) + " goes out, not " +
                          Excerpt(item.value),
                      "write %s in place of %." + limit + "s, or a larger limit");
        return true;
    }

    void TellEnd(const TripItem& item)
    {
        if (m_trip.cuts.empty())
            return;
        const TripCut& last = m_trip.cuts.back();
        m_teller.Tell("trip-end", last.span, m_trip.out.line,
                      "the input ends here, and leaves " + Excerpt(m_trip.rest) + " of " + Excerpt(m_trip.text) + ": " +
                          InQuotes(item.name) + " of " + NumberedLine(m_trip.out.line) + " is lost",
                      "go on with a statement for " + InQuotes(item.name));
    }

    // The cut before this one; null for the first.
    const TripCut* CutBefore(const TripCut& cut) const { return &cut == m_trip.cuts.data() ? nullptr : &cut - 1; }

    // The piece began before the item: with another item, or with what the format has there.
    void TellLateBegin(const TripItem& item, const TripCut& cut)
    {
        const auto first = std::ranges::find_if(m_trip.out.items, [&](const TripItem& each)
                                                { return each.begin >= m_trip.begin && Begin(each) >= cut.begin; });
        if (first != m_trip.out.items.end() && Begin(*first) == cut.begin && first->end > first->begin)
            TellNotSeparated(*first, cut);
        else
            TellNotCutOff(first != m_trip.out.items.end() ? *first : item, cut);
    }

    // What comes before the item is taken for a part of the piece. After a piece of a fixed length the next one begins at
    // once.
    void TellNotCutOff(const TripItem& item, const TripCut& cut)
    {
        const TripCut* before = CutBefore(cut);
        const bool isAfterLength = before != nullptr && before->length > 0 && TakesAny(cut);
        const TripCut& reader = isAfterLength ? *before : cut;
        const std::string written = m_trip.text.substr(cut.begin, Begin(item) - cut.begin);
        m_teller.TellMisfit(
            "trip-separator",
            {item.span,
             "this rule writes " + Excerpt(written) + " before " + InQuotes(item.name) + ", and " +
                 NumberedLine(cut.span.line) + " takes that for a part of the piece: " + ComesBack(item.name),
             "write what the input reads, or let the input cut " + Excerpt(written) + " off"},
            {reader.span,
             (isAfterLength ? "this cuts by a length, and leaves " : "this takes ") + Excerpt(written) + ", which " +
                 NumberedLine(m_trip.out.line) + " writes before " + InQuotes(item.name) +
                 (isAfterLength ? ", to the next piece: " : ", for a part of the piece: ") + ComesBack(item.name),
             "cut " + Excerpt(written) + " off"},
            false);
    }

    // A separator that no statement cuts off makes an empty piece, and all others come one place too late.
    bool TellIdleCut()
    {
        for (const TripCut& cut : m_trip.cuts)
        {
            const bool isIdle = cut.begin == cut.end && cut.length == 0 && cut.next > cut.end && TakesAny(cut);
            const TripCut* before = CutBefore(cut);
            if (!isIdle || before == nullptr || before->length == 0)
                continue;
            const auto next = std::ranges::find_if(m_trip.out.items, [&](const TripItem& item)
                                                   { return item.begin >= m_trip.begin && Begin(item) > cut.begin; });
            if (next == m_trip.out.items.end() || !Takes(cut, next->name))
                continue;
            TellNotCutOff(*next, cut);
            return true;
        }
        return false;
    }

    // A statement that passes over as many characters as the output writes between two items, as it was meant.
    void TellSkipped(const TripItem& item, const TripCut& cut)
    {
        const TripItem* before = &item == m_trip.out.items.data() ? nullptr : &item - 1;
        const std::string gap =
            before != nullptr ? GapAfter(*before) : m_trip.out.text.substr(m_trip.begin, Begin(item));
        const std::string length = std::to_string(cut.length);
        const std::vector<std::string> gaps = GapsOf(Of());
        m_teller.TellMisfit("trip-separator",
                            {item.span,
                             "this rule writes " + (gap.empty() ? "nothing" : Excerpt(gap)) + " before " +
                                 InQuotes(item.name) + ", and " + NumberedLine(cut.span.line) + " passes over " +
                                 length + " characters of the piece: " + ComesBack(item.name),
                             "write what the input passes over"},
                            {cut.span,
                             "this passes over " + length + " characters, and " + NumberedLine(m_trip.out.line) +
                                 " writes " + Excerpt(gap) + " before " + InQuotes(item.name) + ": " +
                                 ComesBack(item.name),
                             "pass over as many characters as the output writes"},
                            std::ranges::count(gaps, gap) > 1);
    }

    std::string GapAfter(const TripItem& item) const
    {
        const TripItem* next = &item == &m_trip.out.items.back() ? nullptr : &item + 1;
        // What comes before the bracket of a group does not come back.
        const size_t begin = item.end < m_trip.begin ? 0 : std::min(End(item), m_trip.text.size());
        const size_t end = next != nullptr && next->begin >= m_trip.begin ? Begin(*next) : m_trip.text.size();
        return m_trip.text.substr(begin, end > begin ? end - begin : 0);
    }

    void TellTooLong(const TripItem& item, const TripCut& cut)
    {
        if (cut.length > 0 && cut.length < tripLongest)
            TellLength(item, cut);
        else
            TellNotSeparated(item, cut);
    }

    void TellLength(const TripItem& item, const TripCut& cut)
    {
        const TripControl& control = *m_plan.Find(item.name);
        const bool isShort = item.value.size() < static_cast<size_t>(cut.length);
        const std::string characters = std::to_string(cut.length) + " characters, and ";
        const std::string may = isShort ? " may have fewer: " : " may have more: ";
        m_teller.TellMisfit("trip-length",
                            {item.span,
                             "this writes " + InQuotes(item.name) + " where " + NumberedLine(cut.span.line) +
                                 " takes " + std::to_string(cut.length) + " characters: " + ComesBack(item.name),
                             "write here what the input takes"},
                            {cut.span, "this takes " + characters + InQuotes(item.name) + may + ComesBack(item.name),
                             control.mark.empty() || isShort
                                 ? "cut at a separator, and let " + NumberedLine(m_trip.out.line) + " write it"
                                 : "write %." + std::to_string(cut.length) + "s in " + NumberedLine(m_trip.out.line) +
                                       ", or cut at a separator"},
                            true);
    }

    // How many statements read a separator that a gap begins with.
    size_t ReadersOf(const std::string& gap) const
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

    // The one of the two that is alone with its separator is the one that is wrong.
    void TellNotSeparated(const TripItem& item, const TripCut& cut)
    {
        const std::string gap = GapAfter(item);
        const std::string read = Alternatives(cut.separators);
        const std::string reads = read.empty() ? "reads to the end of the text" : "reads up to " + read;
        const std::string comesBack = ComesBack(item.name);
        const std::string writes = gap.empty() ? "writes nothing" : "writes " + Excerpt(gap);
        m_teller.TellMisfit("trip-separator",
                            {item.span,
                             "this rule " + writes + " after " + InQuotes(item.name) + ", and " +
                                 NumberedLine(cut.span.line) + " " + reads + ": " + comesBack,
                             read.empty() ? "let the input cut the piece where it ends"
                                          : "write " + read + " after " + InQuotes(item.name) + ", or read " +
                                                Excerpt(gap) + " in " + NumberedLine(cut.span.line)},
                            {cut.span,
                             "this " + reads + ", and " + NumberedLine(m_trip.out.line) + " " + writes + " after " +
                                 InQuotes(item.name) + ": " + comesBack,
                             "read what the output writes"},
                            ClosesBracket(m_trip.text.substr(0, End(item)), gap) ||
                                (ReadersOf(gap) > 0 && !IsWrittenAnywhere(Of(), cut.separators)),
                            cut.separators);
    }

    // The statement that gives a control the value.
    const ValueStatement* StatementOf(const std::string& name, const std::string& value) const
    {
        for (const Role role : {Role::Item, Role::Default, Role::On, Role::Off, Role::OptionValue})
        {
            for (const ValueStatement* statement : StatementsOf(Of(), name, role))
            {
                if (statement->values.front() == value)
                    return statement;
            }
        }
        for (const ClytControlStatement* option : OptionButtonsOf(Of(), name))
        {
            if (const ValueStatement* statement = StatementOf(option->name.GetString(), value))
                return statement;
        }
        return nullptr;
    }

    void TellTooShort(const TripItem& item, const TripCut& cut)
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
            m_teller.Tell("trip-value", Of().PlaceOf(statement->span.line, item.value), cut.span.line,
                          "the value " + InQuotes(item.value) + " holds " + InQuotes(separator) +
                              ", which ends the piece in " + NumberedLine(cut.span.line) + ": " + ComesBack(item.name),
                          "give it a value without " + InQuotes(separator));
    }

    // ---- A piece that is cut well and goes elsewhere

    const TripFill* LastFillOf(const std::string& name, const TripCut*& of) const
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

    void TellAstray(const TripItem& item, const TripCut& cut)
    {
        const auto taker = std::ranges::find_if(cut.fills, &TripFill::takesPiece);
        if (taker == cut.fills.end())
            TellAstrayTo(item, cut.span, "nowhere", "put it into " + InQuotes(item.name) + ": = " + item.name);
        else if (Takes(cut, item.name))
            TellNotKept(item, cut);
        else if (IsSwapped(item, *taker))
            TellSwapped(item, cut, *taker);
        else
            TellAstrayTo(item, taker->span, "into " + InQuotes(taker->control),
                         "write " + InQuotes(item.name) + " here");
    }

    void TellAstrayTo(const TripItem& item, const ClytSpan& reader, const std::string& where, const std::string& hint)
    {
        m_teller.TellMisfit("trip-control",
                            {item.span,
                             "this rule writes " + InQuotes(item.name) + ", and " + NumberedLine(reader.line) +
                                 " puts the piece " + where + ": " + ComesBack(item.name),
                             "write the items in the order in which the input reads them"},
                            {reader,
                             NumberedLine(m_trip.out.line) + " writes " + InQuotes(item.name) +
                                 " here, and the piece goes " + where + ": " + ComesBack(item.name),
                             hint},
                            true);
    }

    // The piece of the other control goes somewhere else in turn, and some piece comes here.
    bool IsSwapped(const TripItem& item, const TripFill& taker) const
    {
        const TripItem* other = ItemOf(taker.control);
        if (other == nullptr || m_plan.TakersOf(item.name).empty())
            return false;
        const TripCut* cut = CutAt(*other);
        return cut != nullptr && !Takes(*cut, taker.control);
    }

    // Statements often have the names of what they take.
    void TellSwapped(const TripItem& item, const TripCut& cut, const TripFill& taker)
    {
        m_teller.TellMisfit("trip-swapped",
                            {item.span,
                             "this rule writes " + InQuotes(item.name) + " where " + NumberedLine(taker.span.line) +
                                 " reads " + InQuotes(taker.control) + ": " + ComesBack(item.name),
                             "write " + InQuotes(taker.control) + " here, in the order in which the input reads them"},
                            {taker.span,
                             NumberedLine(m_trip.out.line) + " writes " + InQuotes(item.name) +
                                 " here, and this reads " + InQuotes(taker.control) + ": " + ComesBack(item.name),
                             "write " + InQuotes(item.name) + " here"},
                            cut.statement == item.name && cut.statement != taker.control);
    }

    void TellNotKept(const TripItem& item, const TripCut& cut)
    {
        const TripCut* lastCut = nullptr;
        const TripFill* last = LastFillOf(item.name, lastCut);
        if (last == nullptr || (lastCut != &cut && lastCut->piece != cut.piece))
            m_teller.Tell("trip-control", last != nullptr ? last->span : cut.span, cut.span.line,
                          "this puts " + Excerpt(lastCut->piece) + " into " + InQuotes(item.name) +
                              ", which has its piece from " + NumberedLine(cut.span.line) + " already",
                          "name the control that this piece is of");
        else if (last->isConcat && !item.separators.empty())
            TellList(item, *last);
        else
            m_teller.Tell("trip-changed", last->span, m_trip.out.line,
                          "the piece " + Excerpt(cut.piece) + " goes into " + InQuotes(item.name) +
                              ", which does not keep it: " + ComesBack(item.name),
                          "use a control that takes the value back");
    }

    void TellList(const TripItem& item, const TripFill& fill)
    {
        const bool isBlank = lytMeans<ClytFillAction::Concat>(item.separators.c_str());
        const std::string joined = isBlank ? " " : item.separators.substr(0, 1);
        const bool isOther = fill.separators.find(joined) == std::string::npos || item.separators.size() > 1;
        const bool isInputWrong = IsSplitAnywhere(Of(), joined[0]) && !IsJoinedAnywhere(Of(), fill.separators);
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
                                 "write " + item.name + "(\"" + fill.separators.substr(0, 1) + "\")"},
                                {fill.span,
                                 "this takes the items apart at " + InQuotes(fill.separators) + ", and " +
                                     NumberedLine(item.span.line) + " joins them with " + InQuotes(item.separators),
                                 "write " + InQuotes(joined) + " here"},
                                isInputWrong);
    }

    TripTeller& m_teller; // of the caller, as the others are
    const TripPlan& m_plan;
    const Trip& m_trip;
};

} // namespace

std::string Excerpt(const std::string& text)
{
    constexpr size_t longest = 60;
    std::string shown = text;
    while (!shown.empty() && shown.back() == '\n')
        shown.pop_back();
    std::ranges::replace(shown, '\n', '|');
    return InQuotes(shown.size() <= longest ? shown : shown.substr(0, longest) + "...");
}

void TellLosses(TripTeller& teller, const TripPlan& plan, const Trip& trip)
{
    std::vector<int> way;
    for (const TripCut& cut : trip.cuts)
        way.push_back(cut.span.line);
    teller.BeginTrip(trip.out.line, std::move(way));
    LossSearch(teller, plan, trip).Tell();
    teller.BeginTrip(0, {});
}

} // namespace lytdlg
