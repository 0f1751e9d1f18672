#include "lytdlg/trip/TripStage.h"

#include "commandline/CommandLine.h"
#include "controls/ClytItemControl.h"
#include "environment/ProcessState.h"
#include "liveform/LiveForm.h"
#include "liveform/UserActs.h"
#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/text/Words.h"
#include "lytdlg/try/ControlState.h"
#include "lytdlg/try/Listener.h"
#include "robot/WindowRobot.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace lytdlg
{

namespace
{

// Rules that one control sets off may undo what was entered into another before.
constexpr int mostPasses = 4;

} // namespace

// Hears how an input is taken apart.
class TripListener : public Listener
{
public:
    using Listener::Listener;

    void ScanBegan(const char* text) override
    {
        m_text = text;
        m_cuts.clear();
        m_jumps.clear();
        m_place = 0;
    }
    void Cut(const ClytDialogInput& statement, const CString& piece, const char* rest,
             const CString& /*nextStatement*/) override
    {
        TripCut& cut = m_cuts.emplace_back();
        cut.statement = statement.name.GetString();
        cut.span = statement.span;
        cut.piece = piece.GetString();
        cut.begin = m_place;
        cut.next = static_cast<size_t>(rest - m_text);
        const bool isPlain = std::string_view(m_text + m_place).starts_with(cut.piece);
        cut.end = isPlain ? cut.begin + cut.piece.size() : std::min(cut.next, cut.begin + cut.piece.size() + 2);
        cut.length = statement.scanRule.scan.GetLength();
        for (const ClytSeparator* separator : Records(statement.scanRule.scan.GetSeparators()))
        {
            cut.separators.emplace_back(separator->text.GetString());
            cut.targets.emplace_back(separator->target.name.GetString());
        }
        if (cut.length > 0)
            cut.targets.emplace_back(statement.scanRule.scan.GetTarget().name.GetString());
        cut.jumps = std::exchange(m_jumps, {});
        m_place = cut.next;
        m_rest = rest;
    }
    void Jumped(const ClytDialogInput& statement, const CString& nextStatement) override
    {
        TripJump& jump = m_jumps.emplace_back();
        jump.span = statement.span;
        jump.next = nextStatement.GetString();
        for (const ClytTarget* target : {&statement.trueTarget, &statement.falseTarget})
            jump.targets.emplace_back(target->name.GetString());
    }
    void Filled(const ClytControlFill& fill, const CString& /*piece*/) override
    {
        TripFill& heard = m_cuts.back().fills.emplace_back();
        heard.control = fill.controlName.GetString();
        heard.span = fill.span;
        heard.takesPiece = TakesPiece(fill);
        heard.action = fill.action.GetMeaning();
        heard.separators = (fill.operands[0] + fill.operands[1] + fill.operands[2]).GetString();
    }
    const std::vector<TripCut>& Cuts() const { return m_cuts; }
    const std::string& Rest() const { return m_rest; }
    const std::vector<TripJump>& LastJumps() const { return m_jumps; }

private:
    const char* m_text = "";
    size_t m_place = 0;
    std::string m_rest;
    std::vector<TripCut> m_cuts;
    std::vector<TripJump> m_jumps; // since the last cut
};

namespace
{

template <class LIST>
bool SelectValue(LIST& list, const CStringArray& values, const std::string& value)
{
    for (int index = 0; index < values.GetCount() && index < list.GetCount(); ++index)
    {
        if (values[index] != value.c_str())
            continue;
        list.SetCurSel(index);
        return true;
    }
    return false;
}

template <class WINDOW>
bool SelectIn(ClytControl& control, const std::string& value)
{
    auto* list = dynamic_cast<ClytItemControl<WINDOW>*>(&control);
    return list != nullptr && SelectValue(*list, list->GetItemValues(), value);
}

std::string ListedIn(ClytControl& control)
{
    const auto* list = dynamic_cast<const CListBox*>(&control);
    std::string items;
    for (int index = 0; list != nullptr && index < list->GetCount(); ++index)
    {
        CString text;
        list->GetText(index, text);
        const auto* marks = dynamic_cast<const CCheckListBox*>(list);
        items += marks == nullptr ? "" : marks->GetCheck(index) == BST_CHECKED ? "X" : "-";
        items += std::string(text.GetString()) + "\n";
    }
    return items;
}

// Its window is shown, since rules ask for that, but off the screen.
class FormOffScreen : public LiveForm
{
public:
    using LiveForm::LiveForm;

    void ConstructThere()
    {
        constexpr int farAway = -30000;
        ReadDescription();
        SetWindowPos(nullptr, farAway, farAway, 0, 0, SWP_SHOWWINDOW | SWP_NOACTIVATE | SWP_NOSIZE | SWP_NOZORDER);
    }
};

class OpenForm : public TripForm
{
public:
    // The present plan is what libraries deliver by.
    OpenForm(const TripPlan& tried, const TripPlan*& presentPlan, TripListener& heard, const std::string& file)
        : m_plan(tried),
          m_present(presentPlan),
          m_listener(heard),
          m_form(file.c_str(), Joined(tried.Of().text.Defines(), ",").c_str())
    {
    }

    bool Open(const std::string& text)
    {
        m_present = &m_plan;
        lytInputKey = text.c_str();
        const bool isOpen = Succeeds([&] { m_form.ConstructThere(); });
        lytInputKey.Empty();
        m_cuts = m_listener.Cuts();
        m_rest = m_listener.Rest();
        m_lastJumps = m_listener.LastJumps();
        return isOpen && m_form.RunRules();
    }

    void Enter(const TripState& state) override
    {
        m_present = &m_plan;
        for (int pass = 0; pass < mostPasses; ++pass)
        {
            bool hasChanged = false;
            {
                const ClytCounted pause = m_form.PauseRules();
                for (size_t index = 0; index < state.size(); ++index)
                    hasChanged = EnterOne(m_plan.Controls()[index], state[index]) || hasChanged;
            }
            if (!hasChanged || !m_form.RunRules())
                return;
        }
    }

    std::optional<TripText> Compose(const std::string& group) override
    {
        std::optional<TripText> composed;
        ClytOutput* output = nullptr;
        if (!m_form.GetOutputMap().Lookup(group.c_str(), output))
            return TripText();
        const bool isDone = Succeeds([&] { composed = ComposeOutput(*output); });
        return isDone ? composed : std::nullopt;
    }

    TripValues Values() override
    {
        TripValues values;
        const ClytCounted pause = m_form.PauseRules();
        for (const TripControl& tried : m_plan.Controls())
        {
            ClytControl* control = m_form.FindControl(tried.name.c_str());
            const bool isList = tried.isJoined && (tried.collects || tried.kind == Kind::CheckList);
            values[tried.name] = isList ? ListedIn(*control) : ValueOf(*control).value_or("");
        }
        return values;
    }

    bool IsReached(const std::string& name) override
    {
        ClytControl* control = m_form.FindControl(name.c_str());
        return control != nullptr && IsSeenEnabled(*control) && IsSeen(*control);
    }

    std::optional<std::vector<TripCut>> Scan(const std::string& part, const std::string& text) override
    {
        m_present = &m_plan;
        const bool isDone = Succeeds([&] { m_form.RunInput(part.c_str(), text.c_str()); }) && m_form.RunRules();
        m_rest = m_listener.Rest();
        return isDone ? std::optional(m_listener.Cuts()) : std::nullopt;
    }

    const std::vector<TripCut>& Cuts() const override { return m_cuts; }
    const std::string& Rest() const override { return m_rest; }
    const std::vector<TripJump>& LastJumps() const override { return m_lastJumps; }
    bool RunRules() override { return m_form.RunRules(); }

private:
    template <class ACT>
    static bool Succeeds(ACT act)
    {
        try
        {
            act();
            return true;
        }
        catch (CException* e)
        {
            e->Delete();
            return false;
        }
    }

    // True when something was entered.
    bool EnterOne(const TripControl& tried, const TripWish& wish)
    {
        ClytControl& control = *m_form.FindControl(tried.name.c_str());
        if (wish.kind == TripWish::Kind::Leave)
            return false;
        if (!tried.button.empty() && IsReached(tried.button))
        {
            control.SetState(ClytState::Active, 1);
            control.SetState(ClytState::Visible, 1);
        }
        if ((tried.isEntered && (!IsSeenEnabled(control) || !IsSeen(control))))
            return false;
        return wish.kind == TripWish::Kind::Items ? EnterItems(tried, control, wish.count)
                                                  : EnterValue(tried, control, wish.value);
    }

    static bool EnterItems(const TripControl& tried, ClytControl& control, size_t count)
    {
        const auto* list = dynamic_cast<const CListBox*>(&control);
        const auto present = static_cast<size_t>(list->GetCount());
        for (size_t index = present; index < count; ++index)
        {
            const CString text = tried.values[index].c_str();
            if (tried.kind == Kind::CheckList)
                control.AddValues(text + "\n", "|\n");
            else
                control.AddItem(CString(), text, 0, 0);
        }
        return present < count;
    }

    static bool EnterValue(const TripControl& tried, ClytControl& control, const std::string& value)
    {
        if (ValueOf(control).value_or("\n") == value)
            return false;
        switch (tried.kind)
        {
        case Kind::Field: dynamic_cast<CWnd&>(control).SetWindowText(value.c_str()); return true;
        case Kind::List: return SelectIn<CListBox>(control, value);
        case Kind::CheckList: return SelectIn<CCheckListBox>(control, value);
        case Kind::DropList: return SelectIn<CComboBox>(control, value);
        case Kind::Combo:
            if (!tried.mark.empty())
                control.SetValue(value.c_str());
            return !tried.mark.empty() || SelectIn<CComboBox>(control, value);
        default: control.SetValue(value.c_str()); return true;
        }
    }

    std::optional<TripText> ComposeOutput(const ClytOutput& output)
    {
        const ClytDialogOutput* rule = m_form.SelectRule(output);
        if (rule == nullptr)
            return TripText();
        TripText composed;
        composed.line = rule->span.line;
        {
            const ClytCounted pause = m_form.PauseRules();
            for (const ClytOutputItem& item : rule->items)
                composed.items.push_back(Take(item, composed.refusing));
        }
        const std::string placed = PlacedItems(rule->format, composed.items);
        CString text;
        if (m_form.ComposeOutput(output, text, 0) == 0)
            return std::nullopt;
        composed.text = text.GetString();
        return placed == composed.text ? std::optional(composed) : std::nullopt;
    }

    static TripItem Take(const ClytOutputItem& item, std::vector<std::string>& refusing)
    {
        if (item.control != nullptr && !item.control->GetName().IsEmpty() && item.control->Evaluate() == 0)
            refusing.emplace_back(item.text.GetString());
        return TakenItem(item);
    }

    const TripPlan& m_plan; // of the caller, as the others are
    const TripPlan*& m_present;
    TripListener& m_listener;
    FormOffScreen m_form;
    std::vector<TripCut> m_cuts;
    std::vector<TripJump> m_lastJumps;
    std::string m_rest;
};

} // namespace

class TripStage::Works
{
public:
    Works()
        : m_library([this](const ClytControl& control) { return m_plan->ListedBy(control.GetName().GetString()); }),
          m_listener(m_library)
    {
        m_user.AnswerAll(std::numeric_limits<int>::max());
    }

    std::unique_ptr<TripForm> Open(const TripPlan& plan, const std::string& text)
    {
        auto form = std::make_unique<OpenForm>(plan, m_plan, m_listener, FileOf(plan));
        return form->Open(text) ? std::move(form) : nullptr;
    }
    const std::vector<TripCut>& LastCuts() const { return m_listener.Cuts(); }

    void Close(const TripPlan& plan) { m_files.erase(&plan); }

private:
    const std::string& FileOf(const TripPlan& plan)
    {
        const auto known = m_files.find(&plan);
        if (known != m_files.end())
            return known->second.name;
        File& file = m_files.try_emplace(&plan, plan.Of().text.Bytes()).first->second;
        m_texts.emplace(NameForLibrary(file.content.Name().parent_path() / "none"));
        return file.name;
    }

    struct File
    {
        explicit File(const std::string& bytes) : content(bytes), name(NameForLibrary(content.Name())) {}

        FileForLibrary content;
        std::string name;
    };

    const TripPlan* m_plan = nullptr; // of the dialog that is at work
    std::map<const TripPlan*, File> m_files;
    std::optional<WithoutTexts> m_texts;
    robot::Robot m_user;
    ItemsLibrary m_library;
    TripListener m_listener;
};

TripStage::TripStage(GiveUpQuestion isGivenUp) : m_isGivenUp(std::move(isGivenUp)), m_works(std::make_unique<Works>())
{
}
TripStage::~TripStage() = default;

std::unique_ptr<TripForm> TripStage::Open(const TripPlan& plan, const std::string& text)
{
    if (m_isGivenUp && m_isGivenUp())
        throw JudgementGivenUp();
    return m_works->Open(plan, text);
}

const std::vector<TripCut>& TripStage::LastCuts() const
{
    return m_works->LastCuts();
}

void TripStage::Close(const TripPlan& plan)
{
    m_works->Close(plan);
}

} // namespace lytdlg
