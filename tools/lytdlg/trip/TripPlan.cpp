#include "lytdlg/trip/TripPlan.h"

#include "dialog/ClytDialog.h"
#include "dialog/FormatReader.h"
#include "lytdlg/judge/Conditions.h"
#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/judge/ScanPaths.h"
#include "lytdlg/text/Words.h"

#include <algorithm>
#include <limits>

namespace lytdlg
{

namespace
{

constexpr size_t markLength = 6;
constexpr size_t fewestLetters = 8;
constexpr size_t longestName = 12;
constexpr size_t fewestOfName = 3; // letters of a name that are enough to name it
constexpr size_t mostAsked = 6;
constexpr size_t itemsOfList = 3;

} // namespace

std::vector<int> LimitsOf(const std::string& format)
{
    std::vector<int> limits;
    const CString text(format.c_str());
    ClytFormatReader reader(text);
    while (text.Find('%') >= 0 && !reader.IsAtEnd())
    {
        const ClytFormatPiece piece = reader.Take();
        if (piece.kind == ClytFormatPiece::Kind::Item)
            limits.push_back(piece.limit);
    }
    return limits;
}

std::string PlainNameOf(const std::string& path)
{
    const std::string name = path.substr(path.find_last_of("\\/") + 1);
    return CString(name.substr(0, name.find_last_of('.')).c_str()).MakeLower().GetString();
}

TripPlan::TripPlan(const Description& description, bool isNested, size_t firstMark)
    : m_description(description), m_marks(firstMark), m_isOfNames(firstMark == 0)
{
    TakeInput();
    TakeOutput();
    ChooseLetters();
    TakeWords();
    TakeControls();
    m_comesBack = IsMeantToComeBack(isNested);
}

const ClytNamedDialog* TripPlan::Named() const
{
    return NamedDialogOf(PlainNameOf(m_description.path) + ".dlg");
}

const TripControl* TripPlan::Find(const std::string& name) const
{
    const auto place = m_places.find(name);
    return place != m_places.end() ? &m_controls[place->second] : nullptr;
}

const std::vector<TripTaker>& TripPlan::TakersOf(const std::string& name) const
{
    static const std::vector<TripTaker> none;
    const auto found = m_takers.find(name);
    return found != m_takers.end() ? found->second : none;
}

std::vector<std::string> TripPlan::ListedBy(const std::string& name) const
{
    const auto found = m_listed.find(name);
    return found != m_listed.end() ? found->second : std::vector<std::string>();
}

void TripPlan::TakeInput()
{
    for (const InputPart& part : m_description.inputs)
    {
        if (part.name != lytParentName)
        {
            TakeAnswers(*part.part);
            continue;
        }
        m_takers.clear();
        m_given.clear();
        m_filled.clear();
        m_pieces = 0;
        const std::set<const ClytDialogInput*> reached = Reached(m_description, *part.part);
        m_takesWhole = reached.size() == 1 && (*reached.begin())->scanRule.scan.GetLength() >= tripLongest;
        for (const ClytDialogInput* statement : reached)
        {
            std::set<std::string> taking;
            for (const ClytConditionFill* rule : Records(statement->scanRule.rules))
            {
                if (rule->values.IsEmpty() && TakesPiece(*rule->fills.GetHead()))
                    taking.insert(rule->fills.GetHead()->controlName.GetString());
            }
            m_pieces += taking.empty() ? 0 : 1;
            for (const ClytConditionFill* rule : Records(statement->scanRule.rules))
            {
                const ClytControlFill& fill = *rule->fills.GetHead();
                const std::string name = fill.controlName.GetString();
                m_filled.insert(name);
                if (!fill.value.IsEmpty() && fill.action.GetMeaning() == ClytFillAction::Other)
                    m_given[name].insert(fill.value.GetString());
                if (rule->values.IsEmpty() && TakesPiece(fill))
                    m_takers[name].push_back({statement, &fill, taking.size() == 1});
            }
        }
    }
    const auto inOrder = [](const TripTaker& left, const TripTaker& right)
    { return left.statement->span.line < right.statement->span.line; };
    for (auto& [name, takers] : m_takers)
        std::ranges::sort(takers, inOrder);
}

// A button runs such a part.
void TripPlan::TakeAnswers(const ClytInputPart& part)
{
    for (const ClytDialogInput* statement : Records(part.GetStatements()))
    {
        for (const ClytConditionFill* rule : Records(statement->scanRule.rules))
            m_answered.insert(rule->fills.GetHead()->controlName.GetString());
    }
}

void TripPlan::TakeOutput()
{
    const auto ask = [&](const ClytCtrlValList& condition)
    {
        std::vector<std::string>& asked = m_asked[condition.GetName().GetString()];
        for (const std::string& value : ValuesAskedBy(condition))
        {
            if (!value.empty() && asked.size() < mostAsked && std::ranges::find(asked, value) == asked.end())
                asked.push_back(value);
        }
    };
    for (const OutputGroup& group : m_description.outputs)
    {
        if (group.name != lytParentName)
            continue;
        for (const ClytDialogOutput* rule : Records(group.rules))
        {
            std::ranges::for_each(Records(rule->conditions), [&](const auto* each) { ask(*each); });
            const std::vector<int> limits = LimitsOf(rule->format.GetString());
            for (size_t index = 0; index < std::min(limits.size(), rule->items.size()); ++index)
            {
                const std::string name = rule->items[index].text.GetString();
                m_put.insert(name);
                if (!rule->items[index].action.IsEmpty())
                    m_joined.insert(name);
                int& limit = m_limits[name];
                if (limits[index] != std::numeric_limits<int>::max() && limits[index] > 0)
                    limit = limit == 0 ? limits[index] : std::min(limit, limits[index]);
            }
        }
    }
    for (const ClytControlDep* rule : Records(m_description.rules))
        std::ranges::for_each(Records(rule->conditions), [&](const auto* each) { ask(*each); });
    for (const EvaluationStatement& statement : m_description.evaluations)
    {
        ask(statement.own);
        ask(statement.other);
    }
    for (const InputPart& part : m_description.inputs)
    {
        for (const ClytDialogInput* statement : Records(part.part->GetStatements()))
            std::ranges::for_each(Records(statement->conditions), [&](const auto* each) { ask(*each); });
    }
}

// No letter of a mark may end a piece, or separate the items of a list.
void TripPlan::ChooseLetters()
{
    std::string taken = "XR";
    for (const InputPart& part : m_description.inputs)
    {
        for (const ClytDialogInput* statement : Records(part.part->GetStatements()))
        {
            for (const ClytSeparator* separator : Records(statement->scanRule.scan.GetSeparators()))
                taken += separator->text != "Rest" ? separator->text.GetString() : "";
            for (const ClytConditionFill* rule : Records(statement->scanRule.rules))
            {
                for (const CString& operand : rule->fills.GetHead()->operands)
                    taken += operand.GetString();
            }
        }
    }
    for (const OutputGroup& group : m_description.outputs)
    {
        for (const ClytDialogOutput* rule : Records(group.rules))
        {
            for (const ClytOutputItem& item : rule->items)
                taken += item.action != lytTextOf(ClytFillAction::Concat) ? item.action.GetString() : "";
        }
    }
    for (const char letter : std::string("QKVZWJHBGDFYMPTLUCEAOINSxqkvzwjhbgdfymptluceaoinsr123456789"))
    {
        if (taken.find(letter) == std::string::npos)
            m_letters += letter;
    }
    m_hasMarks = m_letters.size() >= fewestLetters;
}

void TripPlan::TakeWords()
{
    for (const SourceLine& line : m_description.text.Lines())
    {
        if (line.isRead && (line.section == Section::Values || line.section == Section::Output))
            m_words += line.text.substr(std::min(line.text.find_first_of("=:"), line.text.size())) + "\n";
    }
    for (const auto& [name, values] : m_asked)
        m_words += Joined(values, "\n") + "\n";
}

std::string TripPlan::MarkFor(const std::string& name, size_t length)
{
    std::string mark;
    for (const char letter : std::string(CString(name.c_str()).MakeLower().GetString()))
    {
        if (m_letters.find(letter) != std::string::npos && mark.size() < longestName)
            mark += letter;
    }
    const size_t size = length == 0 ? mark.size() : length;
    const bool isKnown = mark.size() < fewestOfName || m_words.find("\"" + mark) != std::string::npos ||
                         m_words.find(" " + mark) != std::string::npos;
    if (!m_isOfNames || isKnown || size < fewestOfName || !m_beginnings.insert(mark.substr(0, fewestOfName)).second)
        return NextMark(length == 0 ? markLength : length);
    while (mark.size() < size)
        mark += mark;
    return mark.substr(0, size);
}

std::string TripPlan::NextMark(size_t length)
{
    const size_t count = m_letters.size();
    const size_t number = m_marks++;
    std::string mark;
    for (size_t place = 0; place < length; ++place)
        mark += m_letters[(place == 0   ? number
                           : place == 1 ? number / count + number
                                        : number * place + place * place) %
                          count];
    return mark;
}

void TripPlan::TakeControls()
{
    if (!m_hasMarks)
        return;
    for (const ValueStatement& value : m_description.values)
    {
        const auto action = lytMeaningOf<ClytAction>(value.keyword.c_str());
        if ((action == ClytAction::Active || action == ClytAction::Visible) &&
            RoleOf(m_description, value) == Role::Action)
            m_buttons[value.values.front()] = value.name;
    }
    for (const ClytControlStatement& statement : m_description.controls)
    {
        const std::string name = statement.name.GetString();
        if (!name.empty() && m_description.FindControl(name) == &statement && lytTypeOf(KindOf(statement)).hasValue &&
            KindOf(statement) != Kind::Option)
            TakeControl(statement);
    }
}

void TripPlan::TakeControl(const ClytControlStatement& statement)
{
    TripControl control;
    control.name = statement.name.GetString();
    control.kind = KindOf(statement);
    control.isEntered = !HasOption(m_description, control.name, ClytOption::Hidden) &&
                        !HasOption(m_description, control.name, ClytOption::DisplayOnly);
    const auto button = m_buttons.find(control.name);
    control.button = button != m_buttons.end() ? button->second : "";
    control.isAnswered = m_answered.contains(control.name);
    control.isTaken = !TakersOf(control.name).empty();
    control.isJoined = m_joined.contains(control.name);
    control.isListed = LastStatementOf(m_description, control.name, Role::Source) != nullptr;
    const auto limit = m_limits.find(control.name);
    control.limit = limit != m_limits.end() ? limit->second : 0;
    for (const TripTaker& taker : TakersOf(control.name))
        control.cutLength = std::max(control.cutLength, taker.statement->scanRule.scan.GetLength());
    GiveValues(control);
    m_places[control.name] = m_controls.size();
    m_controls.push_back(std::move(control));
}

std::vector<std::string> TripPlan::AskedOf(const std::string& name) const
{
    const auto found = m_asked.find(name);
    return found != m_asked.end() ? found->second : std::vector<std::string>();
}

void TripPlan::GiveValues(TripControl& control)
{
    const std::vector<const ValueStatement*>& items = StatementsOf(m_description, control.name, Role::Item);
    const std::vector<std::string> asked = AskedOf(control.name);
    // A fixed length is kept to; a limit is gone beyond.
    size_t length = markLength;
    if (control.cutLength > 0 && static_cast<size_t>(control.cutLength) < longestName)
        length = static_cast<size_t>(control.cutLength);
    else if (control.limit >= static_cast<int>(markLength) && control.limit < tripLongest)
        length = static_cast<size_t>(control.limit) + 2;
    const bool isFree = control.kind == Kind::Field || (control.kind == Kind::Combo && items.empty());
    const bool isOpenList = lytTypeOf(control.kind).isOpenList;
    if (control.isListed)
    {
        std::vector<std::string>& listed = m_listed[control.name];
        if (control.kind != Kind::Field)
            listed = asked;
        while (listed.size() < itemsOfList + asked.size())
            listed.push_back(NextMark(length));
        if (control.kind == Kind::DropList || control.kind == Kind::Combo)
            control.values = listed;
        // The input cannot choose the last two items of an open list.
        if (control.kind == Kind::List)
            control.values.assign(listed.begin(), listed.end() - 2);
    }
    else if (items.empty() && isOpenList)
    {
        control.collects = GetsItems(m_description, control.name) || !TakersOf(control.name).empty();
        for (size_t index = 0; index < itemsOfList && control.collects; ++index)
            control.values.push_back(control.values.empty() ? MarkFor(control.name, 0) : NextMark(markLength));
    }
    else if (!items.empty() && control.kind != Kind::CheckList)
    {
        for (const ValueStatement* item : items)
            control.values.push_back(item->values.front());
    }
    else if (control.kind == Kind::CheckBox || control.kind == Kind::OptionGroup)
    {
        if (const auto& possible = m_description.Index().PossibleValuesOf(*m_description.FindControl(control.name)))
            control.values.assign(possible->begin(), possible->end());
    }
    if (control.kind == Kind::Field)
    {
        const ValueStatement* preset = LastStatementOf(m_description, control.name, Role::Default);
        control.preset = preset != nullptr ? preset->values.front() : "";
    }
    // What only a few fixed texts are ever put into has no others.
    const auto given = m_given.find(control.name);
    if (isFree && TakersOf(control.name).empty() && given != m_given.end() && control.isEntered)
    {
        control.values.assign(given->second.begin(), given->second.end());
        return;
    }
    if (!isFree)
        return;
    const bool isBound = control.cutLength > 0 && static_cast<size_t>(control.cutLength) < longestName;
    control.mark = MarkFor(control.name, isBound || control.limit > 0 ? length : 0);
    // What the input brings into a field that nobody enters is what its statements ask for.
    if (control.isEntered || asked.empty())
        control.values.insert(control.values.begin(), control.mark);
    for (const std::string& value : asked)
    {
        const bool fits = control.limit == 0 || value.size() <= static_cast<size_t>(control.limit);
        const bool isCut = control.cutLength > 0 && value.size() != static_cast<size_t>(control.cutLength);
        if (fits && !isCut)
            control.values.push_back(value);
    }
}

// Whether the input knows the values by what it finds, and puts each of them there.
bool TripPlan::IsFound(const std::string& name) const
{
    const auto given = m_given.find(name);
    return given != m_given.end() && given->second.size() > 1;
}

// The mistakes that this is to find take a piece or an item away, or send one astray, and few of them at a time. A dialog
// that another one opens may answer something else than it is given.
bool TripPlan::IsMeantToComeBack(bool isNested) const
{
    const ClytNamedDialog* named = Named();
    // The wizard hands over entries of the catalogue, and is answered with texts.
    if (named != nullptr && (named->handed == ClytHanded::Entry || named->handed == ClytHanded::Label))
        return false;
    size_t put = 0;
    size_t both = 0;
    for (const TripControl& control : m_controls)
    {
        put += IsPut(control.name) && (control.isEntered || control.isTaken) ? 1 : 0;
        const std::vector<TripTaker>& takers = TakersOf(control.name);
        const bool isRead = takers.empty() ? IsFound(control.name) : std::ranges::any_of(takers, &TripTaker::isAlone);
        both += IsPut(control.name) && isRead ? 1 : 0;
    }
    const size_t read = std::max(both, m_pieces);
    if (named != nullptr)
        return 2 * read >= put;
    // What takes any text whole reads none in particular.
    return both > 0 && !m_takesWhole && (isNested ? read >= put : 3 * read >= 2 * put);
}

} // namespace lytdlg
