#include "lytdlg/trip/NestedTrips.h"

#include "dialog/ClytDialog.h"
#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/trip/TripStates.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

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
    const TripPlan plan(description, true);
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
            const std::optional<Answer> answer = AnswerOf(nested, "", 0);
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
            WithDialog(values[0], [&](const TripPlan& nested) { TryDialog(nested, values); });
        }
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
    std::optional<Answer> AnswerOf(const TripPlan& plan, const std::string& input, size_t turn)
    {
        const std::unique_ptr<TripForm> form = m_stage.Open(plan, input);
        if (form == nullptr)
            return std::nullopt;
        form->Enter(FullState(plan, turn));
        const std::optional<TripText> text = form->Compose(lytParentName);
        if (!text || text->line == 0 || !text->refusing.empty() || text->text.empty())
            return std::nullopt;
        return Answer{*text, form->Values()};
    }

    void TryDialog(const TripPlan& nested, const std::vector<std::string>& words)
    {
        constexpr size_t turns = 3;
        for (size_t turn = 0; turn < turns; ++turn)
        {
            if (const std::optional<Answer> answer = AnswerOf(nested, "", turn))
                TryAnswer(nested, *answer, words);
        }
    }

    void TryAnswer(const TripPlan& nested, const Answer& answer, const std::vector<std::string>& words)
    {
        const std::unique_ptr<TripForm> form = m_stage.Open(m_plan, "");
        if (form == nullptr)
            return;
        form->Enter(FullState(m_plan));
        const std::optional<std::vector<TripCut>> cuts = form->Scan(words[1], answer.text.text);
        if (!cuts || cuts->empty() || !TellArrival(*cuts, form->Rest(), answer, words[0]))
            return;
        if (const std::optional<TripText> handed = form->Compose(words.back()); handed && handed->line != 0)
            TellReturn(nested, answer, *handed, words[0]);
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
    void TellReturn(const TripPlan& nested, const Answer& answer, const TripText& handed, const std::string& dialog)
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
                answer.values.at(item.name) == after.at(item.name) || IsLostByItself(nested, answer, item.name))
                continue;
            m_teller.Tell("trip-answer", Of().PlaceOf(handed.line), 0,
                          InQuotes(dialog + ".dlg") + " answers " + Excerpt(answer.text.text) + " and is handed " +
                              Excerpt(handed.text) + " by this rule: " + InQuotes(item.name) + " comes back as " +
                              Excerpt(after.at(item.name)),
                          "hand it the text in the form in which it answers");
            return;
        }
    }

    // A dialog that does not read its own text has separate findings.
    bool IsLostByItself(const TripPlan& nested, const Answer& answer, const std::string& name)
    {
        if (!nested.ComesBack())
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
        for (size_t turn = 0; turn < turns; ++turn)
        {
            const std::optional<Answer> answer = AnswerOf(m_plan, "QKVZ/WJHB", turn);
            const std::unique_ptr<TripForm> form =
                answer ? m_stage.Open(reader, answer->text.text) : std::unique_ptr<TripForm>();
            const std::optional<TripText> again = form != nullptr ? form->Compose(lytParentName) : std::nullopt;
            if (!again || again->line == 0)
                continue;
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
    }

    TripTeller& m_teller; // of the caller, as the others are
    TripStage& m_stage;
    const TripPlan& m_plan;
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
    trip.TryWizard();
}

} // namespace lytdlg
