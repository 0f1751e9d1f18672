#include "lytdlg/language/PlayedTrial.h"

#include "commandline/Text.h"
#include "liveform/UserActs.h"
#include "lytdlg/draw/SvgPen.h"
#include "lytdlg/language/Workspace.h"
#include "model/ClytScale.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

// The windows of the dialog, the outermost first.
std::vector<HWND> OpenWindows()
{
    std::vector<HWND> windows;
    const auto add = [](HWND window, LPARAM found) -> BOOL
    {
        if (IsWindowVisible(window) != FALSE && robot::ClassOf(window) == "#32770" && !robot::IsMessageBox(window))
            reinterpret_cast<std::vector<HWND>*>(found)->push_back(window);
        return TRUE;
    };
    EnumThreadWindows(GetCurrentThreadId(), add, reinterpret_cast<LPARAM>(&windows));
    std::ranges::reverse(windows);
    return windows;
}

std::string PathOfDescription(const TrialDialog& dialog, const Setup& setup)
{
    const std::string& file = dialog.DescriptionFile();
    return PathBeside(setup.dialog, commandline::ToUtf8(file.substr(file.find_last_of("\\/") + 1)));
}

std::vector<std::string> GroupsOf(const TrialDialog& dialog)
{
    std::map<const ClytControl*, std::string> groups;
    for (ClytControl& group : dialog.GetControlList())
    {
        for (const ClytControl* option : OptionsOf(group))
            groups[option] = dialog.NameOf(group);
    }
    std::vector<std::string> all;
    for (const ClytControl& control : dialog.GetControlList())
        all.push_back(groups[&control]);
    return all;
}

PlayedWindow SeeDialog(const TrialDialog& dialog, std::string path)
{
    PlayedWindow window = {See(dialog), std::move(path)};
    window.state = LookAt(dialog);
    window.groups = GroupsOf(dialog);
    window.scaleX = lytScaleX;
    window.scaleY = lytScaleY;
    for (const ClytControl& control : dialog.GetControlList())
    {
        const std::string& name = dialog.NameOf(control);
        window.isNamed.push_back(!name.empty() && dialog.FindControl(name.c_str()) == &control);
    }
    return window;
}

std::vector<PlayedWindow> SeeAll(const Trial& trial, const Setup& setup, bool isDrawn)
{
    std::vector<PlayedWindow> all;
    for (const HWND window : OpenWindows())
    {
        const auto& open = trial.Open();
        const auto dialog = std::ranges::find_if(open, [&](const TrialDialog* one) { return one->m_hWnd == window; });
        if (dialog == open.end())
            all.push_back({See(window), ""});
        else
            all.push_back(
                SeeDialog(**dialog, dialog == open.begin() ? setup.dialog : PathOfDescription(**dialog, setup)));
    }
    if (isDrawn && !all.empty())
        all.back().svg = DrawSvg(all.back().seen, {});
    return all;
}

// On a window without a description, such as the catalogue.
void ActOnWindow(const script::Step& act)
{
    script::Stage stage;
    if (!FormOf(act).ready(stage, act))
        throw ActError(ReasonOf(stage, act));
    FormOf(act).act(stage, act);
}

ComposedOutput ComposedBy(TrialDialog& dialog, const Recorder& recorder)
{
    ClytOutput* group = nullptr;
    ComposedOutput output;
    if (!dialog.GetOutputMap().Lookup(lytParentName, group))
        return output;
    try
    {
        const ClytDialogOutput* rule = dialog.SelectRule(*group);
        output.refused = recorder.LastOutput();
        if (rule == nullptr)
            return output;
        {
            const ClytCounted pause = dialog.PauseRules();
            for (const ClytOutputItem& item : rule->items)
                output.items.push_back(TakenItem(item));
        }
        const std::string placed = PlacedItems(rule->format, output.items);
        CString text;
        if (dialog.ComposeOutput(*group, text, 0) != 0)
            output.line = rule->span.line;
        output.text = text.GetString();
        if (placed != output.text)
            output.items.clear();
    }
    catch (CException* failure)
    {
        failure->Delete();
    }
    return output;
}

// Takes the acts of a play, and knows which one is being taken.
class Player
{
public:
    Player(PlayedTrial& playedTrial, TrialRun& trialRun) : m_played(playedTrial), m_run(trialRun) {}

    void Take(const std::string& line, int number)
    {
        NoteMessages();
        if (m_played.failed)
            return;
        m_act = number;
        try
        {
            for (const script::Step& act : script::ReadScript("acts", line, script::Player::OfDescriptions))
                Do(act);
        }
        catch (const std::runtime_error& failure)
        {
            m_played.failed = {number, failure.what()};
        }
    }

    // All that were shown since belong to the act.
    void NoteMessages()
    {
        for (; m_noted < m_run.events.size(); ++m_noted)
        {
            if (m_run.events[m_noted].kind == EventKind::Message)
                m_played.messages.push_back({m_act, m_run.events[m_noted].text});
        }
    }

    int Act() const { return m_act; }

private:
    void Do(const script::Step& act)
    {
        const bool isOnWindow = !m_run.trial.Open().empty() && m_run.trial.Top() == nullptr;
        if (isOnWindow && act.word != "ok" && act.word != "cancel")
            ActOnWindow(act);
        else
            m_run.trial.Do(act);
    }

    PlayedTrial& m_played;
    TrialRun& m_run;
    int m_act = -1;
    size_t m_noted = 0;
};

} // namespace

PlayedTrial PlayActs(const Play& play, const PlayLook& look)
{
    PlayedTrial played;
    const Resolution resolution(play.pixelsPerInch != 0 ? play.pixelsPerInch : PixelsPerInch());
    TrialRun run(play.setup, false);
    Player player(played, run);
    std::deque<Trial::Step> steps;
    for (const std::string& act : play.acts)
        steps.emplace_back([&player, &act, number = static_cast<int>(steps.size())](Trial& /*trial*/)
                           { player.Take(act, number); });
    steps.emplace_back(
        [&](Trial& /*trial*/)
        {
            player.NoteMessages();
            look(run);
        });
    try
    {
        played.outcome = run.trial.Run(std::move(steps));
    }
    catch (const ActError& failure)
    {
        played.failed = {player.Act(), failure.what()};
    }
    return played;
}

PlayedTrial PlayAndSee(const Play& play, bool isDrawn)
{
    std::vector<PlayedWindow> windows;
    PlayedTrial played = PlayActs(play, [&](TrialRun& run) { windows = SeeAll(run.trial, play.setup, isDrawn); });
    played.windows = std::move(windows);
    const bool isClosed = played.outcome.ending == Ending::Confirmed || played.outcome.ending == Ending::Cancelled;
    if (isClosed && !play.acts.empty())
    {
        Play before = play;
        before.acts.pop_back();
        played.windows = PlayAndSee(before, isDrawn).windows;
    }
    return played;
}

PlayedWay PlayWay(const Play& play)
{
    PlayedWay way;
    bool isClosed = false;
    const auto look = [&](TrialRun& run)
    {
        for (const ScanStep& step : run.recorder.Steps())
        {
            if (step.scan == 1)
                way.steps.push_back(step);
        }
        way.fills = run.recorder.Fills();
        isClosed = run.trial.Open().empty();
        if (!isClosed)
            way.output = ComposedBy(*run.trial.Open().front(), run.recorder);
    };
    const PlayedTrial played = PlayActs(play, look);
    if (played.failed)
        throw std::runtime_error(played.failed->reason);
    if (!isClosed || play.acts.empty())
        return way;
    // A dialog that is gone is asked before its last act.
    Play before = play;
    before.acts.pop_back();
    way.output = PlayWay(before).output;
    if (played.outcome.ending == Ending::Confirmed && way.output.text != played.outcome.text)
        way.output = {way.output.line, played.outcome.text};
    return way;
}

ClytControl& ControlOfTarget(const TrialDialog& dialog, const std::string& target)
{
    const std::vector<script::Step> step =
        script::ReadScript("target", "focus " + target, script::Player::OfDescriptions);
    ClytControl* control = step.empty() ? nullptr : TargetOf(dialog, step.front());
    return control != nullptr ? *control : ControlNamed(dialog, commandline::ToAnsi(target));
}

} // namespace lytdlg
