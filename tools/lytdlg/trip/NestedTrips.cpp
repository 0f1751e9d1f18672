#include "lytdlg/trip/NestedTrips.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/trip/TripStates.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

constexpr const char* entryHanded = "QKVZ/WJHB"; // a key and a label
constexpr const char* longKey = "QKVZWJHBGDFYQKVZWJHBGDFY";

// What a dialog has answered, and what it held then.
struct Answer
{
    TripText text;
    TripValues values;
};

// Does nothing for a dialog that is not there, or that cannot be read.
template <class ACT>
void WithDialogOf(const Case& judged, TripStage& stage, const std::string& name, ACT act)
{
    const std::string& folder = judged.surroundings.folder;
    if (folder.empty())
        return;
    const std::filesystem::path file = FileIn(PathOf(folder), name + ".dlg");
    const std::optional<std::string> bytes = file.empty() ? std::nullopt : ReadWholeFile(file);
    if (!bytes)
        return;
    const Description description(name + ".dlg", *bytes, judged.description.text.Defines());
    if (!description.mistakes.empty())
        return;
    constexpr size_t otherMarks = 1000;
    const TripPlan plan(description, true, otherMarks);
    act(plan);
    stage.Close(plan);
}

class NestedTrip
{
public:
    NestedTrip(TripTeller& findings, TripStage& trialStage, const TripPlan& tried)
        : m_teller(findings), m_stage(trialStage), m_plan(tried)
    {
    }

    // Whether what the other dialog answers comes back to it by a button of this one.
    bool Returns(const TripPlan& nested)
    {
        for (const ValueStatement& statement : Of().values)
        {
            const std::vector<std::string>& values = statement.values;
            if (!OpensDialog(statement) || PlainNameOf(values[0]) != PlainNameOf(nested.Of().path))
                continue;
            const std::optional<Answer> answer = AnswerOf(nested, "", FullState(nested));
            const std::optional<TripText> handed = answer ? HandedAfter(*answer, values) : std::nullopt;
            const std::unique_ptr<TripForm> form =
                handed && handed->line != 0 ? m_stage.Open(nested, handed->text) : std::unique_ptr<TripForm>();
            if (form != nullptr && form->Values() == answer->values)
                return true;
        }
        return false;
    }

    void TryButtons()
    {
        std::set<std::string> tried;
        for (const ValueStatement& statement : Of().values)
        {
            const std::vector<std::string>& values = statement.values;
            if (!OpensDialog(statement) || !tried.insert(values[0] + "\n" + values[1] + "\n" + values.back()).second)
                continue;
            WithDialog(values[0], [&](const TripPlan& nested) { TryDialog(nested, statement); });
            TellModified(statement);
        }
    }

    // The catalogue answers a key of any length.
    void TryCatalogue()
    {
        for (const ValueStatement& statement : Of().values)
        {
            const std::vector<std::string>& values = statement.values;
            if (RoleOf(Of(), statement) != Role::Action || values.size() < 4 || values[1] != "lytOpenTreeView" ||
                lytMeaningOf<ClytAction>(statement.keyword.c_str()) != ClytAction::Action || !HasPart(Of(), values[3]))
                continue;
            const std::unique_ptr<TripForm> form = m_stage.Open(m_plan, "");
            const auto cuts = form != nullptr ? form->Scan(values[3], longKey) : std::nullopt;
            if (cuts && !cuts->empty() && !form->Rest().empty() && cuts->back().length > 0 &&
                cuts->back().length < tripLongest)
                m_teller.Tell("trip-answer", cuts->back().span, 0,
                              "a key of the catalogue may have more than " + std::to_string(cuts->back().length) +
                                  " characters, and this part leaves " + Excerpt(form->Rest()) + " of " +
                                  Excerpt(longKey),
                              "let it take more characters");
        }
    }

    // What the catalogue hands over comes into one control each.
    void TryEntry()
    {
        const ClytNamedDialog* named = m_plan.Named();
        const std::unique_ptr<TripForm> form = named != nullptr && named->handed == ClytHanded::Entry
                                                   ? m_stage.Open(m_plan, entryHanded)
                                                   : std::unique_ptr<TripForm>();
        std::map<std::string, ClytSpan> taken;
        for (const TripCut& cut : form != nullptr ? form->Cuts() : std::vector<TripCut>())
        {
            for (const TripFill& fill : cut.fills)
            {
                if (!fill.takesPiece || fill.action != ClytFillAction::Other || cut.piece.empty())
                    continue;
                const auto [first, isNew] = taken.try_emplace(fill.control, fill.span);
                if (!isNew && first->second.line != fill.span.line)
                {
                    TellTwice(first->second, fill.span.line, fill.control);
                    TellTwice(fill.span, first->second.line, fill.control);
                }
            }
        }
    }

    void TellTwice(const ClytSpan& place, int otherLine, const std::string& control)
    {
        m_teller.Tell("trip-control", place, otherLine,
                      "this and " + NumberedLine(otherLine) + " put what is handed over into " + InQuotes(control) +
                          ": the later piece takes the place of the earlier one",
                      "name the control that this piece is of");
    }

    // The wizard's text is a placeholder, which another dialog opens later.
    void TryWizard()
    {
        const ClytNamedDialog* named = m_plan.Named();
        if (named == nullptr || (named->which != ClytNamed::WizardSymbol && named->which != ClytNamed::WizardPhrase))
            return;
        const bool isOfSymbol = named->which == ClytNamed::WizardSymbol;
        const std::string reader = lytNamed(isOfSymbol ? ClytNamed::Symbol : ClytNamed::Phrase).description;
        WithDialog(reader.substr(0, reader.find('.')), [&](const TripPlan& other) { TryPlaceholder(other, reader); });
    }

private:
    const Description& Of() const { return m_plan.Of(); }

    bool OpensDialog(const ValueStatement& statement) const
    {
        return RoleOf(Of(), statement) == Role::Action && statement.values.size() > 2 &&
               lytMeaningOf<ClytAction>(statement.keyword.c_str()) == ClytAction::Dialog &&
               HasPart(Of(), statement.values[1]);
    }

    // What this dialog would hand over, once it has taken the answer.
    std::optional<TripText> HandedAfter(const Answer& answer, const std::vector<std::string>& words)
    {
        const std::unique_ptr<TripForm> form = m_stage.Open(m_plan, "");
        if (form == nullptr || !form->Scan(words[1], answer.text.text))
            return std::nullopt;
        return form->Compose(words.back());
    }

    template <class ACT>
    void WithDialog(const std::string& name, ACT act)
    {
        WithDialogOf(m_teller.Judged(), m_stage, name, act);
    }

    // Filled as it is when it is confirmed; nothing when no filling passes.
    std::optional<Answer> AnswerOf(const TripPlan& plan, const std::string& input, const TripState& state)
    {
        const std::unique_ptr<TripForm> form = m_stage.Open(plan, input);
        if (form == nullptr)
            return std::nullopt;
        form->Enter(state);
        const std::optional<TripText> text = form->Compose(lytParentName);
        if (!text || text->line == 0 || !text->refusing.empty() || text->text.empty())
            return std::nullopt;
        return Answer{*text, form->Values()};
    }

    void TryDialog(const TripPlan& nested, const ValueStatement& button)
    {
        constexpr size_t turns = 3;
        m_together.clear();
        m_apart.clear();
        for (size_t turn = 0; turn < turns; ++turn)
        {
            if (const std::optional<Answer> answer = AnswerOf(nested, "", FullState(nested, turn)))
                TryAnswer(nested, *answer, button.values, false);
        }
        if (const std::optional<Answer> answer = AnswerOf(nested, "", LongState(nested)))
            TryAnswer(nested, *answer, button.values, true);
        const bool isOwnInput = button.values[1] == lytParentName;
        TellTogether(button.values[0] + ".dlg", isOwnInput ? Of().PlaceOf(button.span.line) : ClytSpan());
    }

    // Fields hold more than a few words.
    static TripState LongState(const TripPlan& plan)
    {
        constexpr size_t longText = 24;
        TripState state = FullState(plan);
        for (const TripControl& control : plan.Controls())
        {
            std::string text = control.mark;
            while (!text.empty() && text.size() < longText)
                text += control.mark;
            if (control.isEntered && !text.empty() && control.limit == 0 && control.cutLength == 0)
                WishOf(plan, state, control.name) = {TripWish::Kind::Value, text};
        }
        return state;
    }

    void TryAnswer(const TripPlan& nested, const Answer& answer, const std::vector<std::string>& words, bool isLong)
    {
        const std::unique_ptr<TripForm> form = m_stage.Open(m_plan, "");
        if (form == nullptr)
            return;
        form->Enter(FullState(m_plan));
        const std::optional<std::vector<TripCut>> cuts = form->Scan(words[1], answer.text.text);
        if (!cuts || cuts->empty())
            return;
        NoteTogether(*cuts, answer);
        const bool hasRoom =
            isLong && std::ranges::any_of(*cuts, [](const TripCut& cut) { return cut.length >= tripLongest; });
        if (hasRoom || !TellArrival(*cuts, form->Rest(), answer, words[0]) || isLong)
            return;
        if (const std::optional<TripText> handed = form->Compose(words.back()); handed && handed->line != 0)
            TellReturn(nested, answer, *handed, *cuts, words[0]);
    }

    // Which statements find their separators in an answer, and which take several items of it together instead.
    void NoteTogether(const std::vector<TripCut>& cuts, const Answer& answer)
    {
        for (const TripCut& cut : cuts)
        {
            const auto isInside = [&](const TripItem& item)
            { return item.begin < item.end && item.begin >= cut.begin && item.end <= cut.end; };
            const auto isMark = [](const std::string& separator) { return !separator.empty() && separator != "Rest"; };
            if (cut.next > cut.end)
                m_apart.insert(cut.span.line);
            else if (std::ranges::count_if(answer.text.items, isInside) > 1 &&
                     std::ranges::any_of(cut.separators, isMark))
                m_together.try_emplace(cut.span.line, cut, answer.text.text);
        }
    }

    void TellTogether(const std::string& answering, const ClytSpan& place)
    {
        for (const auto& [line, found] : m_together)
        {
            const auto& [cut, text] = found;
            if (!m_apart.contains(line))
                m_teller.Tell("trip-answer", place.line != 0 ? place : cut.span, 0,
                              InQuotes(answering) + " answers " + Excerpt(text) + ", in which " + NumberedLine(line) +
                                  " does not find " + InQuotes(cut.separators.front()) +
                                  ": several items come in one piece",
                              place.line != 0 ? "name the part that takes the answer apart"
                                              : "cut at what that dialog writes between its items");
        }
    }

    // A part puts the answer in the place of an item, and that item is not handed over.
    void TellModified(const ValueStatement& button)
    {
        const auto part = std::ranges::find(Of().inputs, button.values[1], &InputPart::name);
        const auto group = std::ranges::find(Of().outputs, button.values.back(), &OutputGroup::name);
        if (part == Of().inputs.end() || group == Of().outputs.end())
            return;
        std::string list;
        for (const ClytDialogInput* statement : Records(part->part->GetStatements()))
        {
            for (const ClytConditionFill* rule : Records(statement->scanRule.rules))
            {
                const ClytControlFill& fill = *rule->fills.GetHead();
                list = fill.action.GetMeaning() == ClytFillAction::Modify ? fill.controlName.GetString() : list;
            }
        }
        const ClytDialogOutput* other = nullptr;
        for (const ClytDialogOutput* rule : Records(group->rules))
        {
            for (const ClytOutputItem& item : rule->items)
            {
                if (list == item.text.GetString())
                    return;
                other = m_plan.Find(item.text.GetString()) != nullptr ? rule : other;
            }
        }
        if (!list.empty() && other != nullptr)
            m_teller.Tell("trip-answer", Of().PlaceOf(other->span.line), 0,
                          "the answer takes the place of the item that is chosen in " + InQuotes(list) +
                              ", and this hands another control over",
                          "write " + InQuotes(list) + " here");
    }

    // False when something of the answer does not arrive.
    bool TellArrival(const std::vector<TripCut>& cuts, const std::string& rest, const Answer& answer,
                     const std::string& dialog)
    {
        const std::string& text = answer.text.text;
        const size_t read = text.size() - std::min(rest.size(), text.size());
        for (const TripItem& item : answer.text.items)
        {
            if (item.begin == item.end)
                continue;
            const auto within = [&](const TripCut& cut) { return item.begin < cut.end && cut.begin < item.end; };
            const auto cut = std::ranges::find_if(cuts, within);
            if (item.begin >= read || cut == cuts.end())
                return TellLeft(cuts.back(), answer, item, dialog, text.substr(read));
            if (item.separators.empty() && (cut->end < item.end || cut->begin > item.begin))
                return TellTorn(*cut, answer, item, dialog);
        }
        return true;
    }

    bool TellLeft(const TripCut& cut, const Answer& answer, const TripItem& item, const std::string& dialog,
                  const std::string& left)
    {
        m_teller.Tell("trip-answer", cut.span, 0,
                      InQuotes(dialog + ".dlg") + " answers " + Excerpt(answer.text.text) + ", and this part leaves " +
                          Excerpt(left) + ": " + InQuotes(item.name) + " is lost",
                      "go on with a statement for the rest");
        return false;
    }

    bool TellTorn(const TripCut& cut, const Answer& answer, const TripItem& item, const std::string& dialog)
    {
        m_teller.Tell("trip-answer", cut.span, 0,
                      InQuotes(dialog + ".dlg") + " answers " + Excerpt(answer.text.text) + ", and this cuts its " +
                          InQuotes(item.name) + " into pieces: " + Excerpt(cut.piece),
                      cut.length > 0 ? "let it take more characters"
                                     : "cut at what that dialog writes between its items");
        return false;
    }

    // What comes from the dialog and is handed back to it must be what it was.
    void TellReturn(const TripPlan& nested, const Answer& answer, const TripText& handed,
                    const std::vector<TripCut>& cuts, const std::string& dialog)
    {
        const auto isHanded = [&](const TripItem& item) { return IsMarkIn(nested, answer, item, handed.text); };
        if (std::ranges::none_of(answer.text.items, isHanded))
            return;
        const std::unique_ptr<TripForm> form = m_stage.Open(nested, handed.text);
        if (form == nullptr)
            return;
        const TripValues after = form->Values();
        for (const TripItem& item : answer.text.items)
        {
            const TripControl* control = nested.Find(item.name);
            if (control == nullptr || !control->isTaken || !control->isEntered || item.IsCut() ||
                answer.values.at(item.name) == after.at(item.name) ||
                IsLostByItself(nested, answer, handed.text, item.name))
                continue;
            if (const TripFill* fill = AstrayIn(cuts, item, handed))
            {
                m_teller.Tell("trip-answer", fill->span, 0,
                              InQuotes(item.name) + " of " + InQuotes(dialog + ".dlg") + " comes into " +
                                  InQuotes(fill->control) + ", which is not handed back to it",
                              "name the control that is handed over for it");
                return;
            }
            m_teller.Tell("trip-answer", Of().PlaceOf(handed.line), 0,
                          InQuotes(dialog + ".dlg") + " answers " + Excerpt(answer.text.text) + " and is handed " +
                              Excerpt(handed.text) + " by this rule: " + InQuotes(item.name) + " comes back as " +
                              Excerpt(after.at(item.name)),
                          "hand it the text in the form in which it answers");
            return;
        }
    }

    // The fill that gives the item to a control that is not handed back; null when there is none.
    const TripFill* AstrayIn(const std::vector<TripCut>& cuts, const TripItem& item, const TripText& handed) const
    {
        for (const TripCut& cut : cuts)
        {
            for (const TripFill& fill : cut.fills)
            {
                if (cut.begin <= item.begin && item.end <= cut.end && fill.takesPiece &&
                    std::ranges::find(handed.items, fill.control, &TripItem::name) == handed.items.end())
                    return &fill;
            }
        }
        return nullptr;
    }

    // A dialog that does not read its own text has separate findings.
    bool IsLostByItself(const TripPlan& nested, const Answer& answer, const std::string& handed,
                        const std::string& name)
    {
        if (!nested.ComesBack() || handed != answer.text.text)
            return false;
        const std::unique_ptr<TripForm> form = m_stage.Open(nested, answer.text.text);
        return form == nullptr || form->Values().at(name) != answer.values.at(name);
    }

    static bool IsMarkIn(const TripPlan& nested, const Answer& answer, const TripItem& item, const std::string& text)
    {
        const TripControl* control = nested.Find(item.name);
        constexpr size_t known = 3; // letters that no other mark begins with
        return control != nullptr && !control->mark.empty() && answer.values.at(item.name) == control->mark &&
               text.find(control->mark.substr(0, known)) != std::string::npos;
    }

    // The wizard hands a key and a label.
    void TryPlaceholder(const TripPlan& reader, const std::string& file)
    {
        constexpr size_t turns = 3;
        ClytSpan place;
        for (size_t turn = 0; turn < turns; ++turn)
        {
            const std::optional<Answer> answer = AnswerOf(m_plan, entryHanded, FullState(m_plan, turn));
            const std::unique_ptr<TripForm> form =
                answer ? m_stage.Open(reader, answer->text.text) : std::unique_ptr<TripForm>();
            const std::optional<TripText> again = form != nullptr ? form->Compose(lytParentName) : std::nullopt;
            if (!again || again->line == 0)
                continue;
            NoteTogether(form->Cuts(), *answer);
            place = Of().PlaceOf(answer->text.line);
            for (const TripItem& item : answer->text.items)
            {
                const std::string put = answer->text.text.substr(item.begin, item.end - item.begin);
                if (again->text.find(put) != std::string::npos || m_plan.Find(item.name) == nullptr)
                    continue;
                m_teller.Tell("trip-answer", Of().PlaceOf(answer->text.line), 0,
                              "this placeholder is read by " + InQuotes(file) + ", which makes " +
                                  Excerpt(again->text) + " of " + Excerpt(answer->text.text) + ": " +
                                  InQuotes(item.name) + " is lost",
                              "write it in the form that " + InQuotes(file) + " reads");
                return;
            }
        }
        TellPlaceholderTogether(file, place);
    }

    void TellPlaceholderTogether(const std::string& file, const ClytSpan& place)
    {
        for (const auto& [line, found] : m_together)
        {
            if (!m_apart.contains(line))
                m_teller.Tell("trip-answer", place, 0,
                              InQuotes(file) + " reads this placeholder, and does not find " +
                                  InQuotes(found.first.separators.front()) + " in " + Excerpt(found.second) +
                                  ": several items come in one piece",
                              "write it in the form that " + InQuotes(file) + " reads");
        }
    }

    TripTeller& m_teller; // of the caller, as the others are
    TripStage& m_stage;
    const TripPlan& m_plan;
    std::map<int, std::pair<TripCut, std::string>> m_together; // statements that take items together, and of which text
    std::set<int> m_apart;                                     // statements that have found a separator
};

} // namespace

bool ReturnsThroughCaller(const Case& judged, TripStage& stage, const TripPlan& plan)
{
    bool returns = false;
    for (const DescriptionTexts& caller : judged.surroundings.descriptions.All())
    {
        if (returns || !caller.opens.contains(FoldedName(PlainNameOf(judged.description.path))))
            continue;
        const std::string name = caller.fileName.substr(0, caller.fileName.find_last_of('.'));
        const auto look = [&](const TripPlan& other)
        {
            TripTeller nobody(judged);
            returns = NestedTrip(nobody, stage, other).Returns(plan);
        };
        WithDialogOf(judged, stage, name, look);
    }
    return returns;
}

void TryNested(TripTeller& teller, TripStage& stage, const TripPlan& plan)
{
    NestedTrip trip(teller, stage, plan);
    trip.TryButtons();
    trip.TryCatalogue();
    trip.TryEntry();
    trip.TryWizard();
}

} // namespace lytdlg
