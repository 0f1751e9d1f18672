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

bool MayClose(const script::Step& act)
{
    constexpr std::string_view words[] = {"ok", "cancel", "press", "key", "doubleclick"};
    return std::ranges::find(words, act.word) != std::end(words);
}

// Takes the acts of a play, and knows which one is being taken.
class Player
{
public:
    // All three outlive the player. The early look comes before the last act if that may close the dialog.
    Player(const Play& acts, const PlayLook& lastLook, const PlayLook& earlyLook)
        : m_play(acts), m_look(lastLook), m_earlyLook(earlyLook), m_run(acts.setup, false)
    {
    }

    PlayedTrial Run()
    {
        std::deque<Trial::Step> steps;
        for (const std::string& line : m_play.acts)
            steps.emplace_back([&](Trial& /*trial*/) { Take(line); });
        steps.emplace_back(
            [&](Trial& /*trial*/)
            {
                NoteMessages();
                m_look(m_run);
            });
        try
        {
            m_played.outcome = m_run.trial.Run(std::move(steps));
        }
        catch (const ActError& failure)
        {
            m_played.failed = {m_act, failure.what()};
        }
        return std::move(m_played);
    }

private:
    void Take(const std::string& line)
    {
        NoteMessages();
        if (m_played.failed)
            return;
        ++m_act;
        try
        {
            for (const script::Step& act : script::ReadScript("acts", line, script::Player::OfDescriptions))
            {
                if (m_earlyLook && &line == &m_play.acts.back() && MayClose(act))
                    m_earlyLook(m_run);
                m_run.trial.Do(act);
            }
        }
        catch (const std::runtime_error& failure)
        {
            m_played.failed = {m_act, failure.what()};
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

    const Play& m_play;
    const PlayLook& m_look;
    const PlayLook& m_earlyLook;
    PlayedTrial m_played;
    TrialRun m_run;
    int m_act = -1;
    size_t m_noted = 0;
};

PlayedTrial PlayAll(const Play& play, const PlayLook& look, const PlayLook& earlyLook)
{
    const Resolution resolution(play.pixelsPerInch != 0 ? play.pixelsPerInch : PixelsPerInch());
    return Player(play, look, earlyLook).Run();
}

// Looks at the dialog after the acts; where they close it, before the one that does.
PlayedTrial PlayToLastSight(const Play& play, const PlayLook& look)
{
    bool hasSeen = false;
    const PlayLook lookAtOpen = [&](const TrialRun& run)
    {
        if (run.trial.Open().empty())
            return;
        look(run);
        hasSeen = true;
    };
    PlayedTrial played = PlayAll(play, lookAtOpen, lookAtOpen);
    const bool isClosed = played.outcome.ending == Ending::Confirmed || played.outcome.ending == Ending::Cancelled;
    if (isClosed && !hasSeen && !play.acts.empty())
    {
        // An act follows the one that closed it, and could not be taken.
        Play before = play;
        before.acts.pop_back();
        PlayToLastSight(before, look);
    }
    return played;
}

} // namespace

PlayedTrial PlayActs(const Play& play, const PlayLook& look)
{
    return PlayAll(play, look, {});
}

PlayedTrial PlayAndSee(const Play& play, bool isDrawn)
{
    std::vector<PlayedWindow> windows;
    PlayedTrial played =
        PlayToLastSight(play, [&](const TrialRun& run) { windows = SeeAll(run.trial, play.setup, isDrawn); });
    played.windows = std::move(windows);
    return played;
}

PlayedWay PlayWay(const Play& play)
{
    PlayedWay way;
    const auto look = [&](const TrialRun& run)
    {
        way = {{}, run.recorder.Fills(), ComposedBy(*run.trial.Open().front(), run.recorder)};
        std::ranges::copy_if(run.recorder.Steps(), std::back_inserter(way.steps),
                             [](const ScanStep& step) { return step.scan == 1; });
    };
    const PlayedTrial played = PlayToLastSight(play, look);
    if (played.failed)
        throw std::runtime_error(played.failed->reason);
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
