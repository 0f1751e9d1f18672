#include "lytdlg/draw/DrawnTrial.h"

#include "lytdlg/try/TrialRun.h"

#include <algorithm>

namespace lytdlg
{

DrawnTrial DrawAfter(const Setup& setup, const std::string& acts, int pixelsPerInch, const SvgStyle& style)
{
    DrawnTrial drawn;
    const Resolution resolution(pixelsPerInch != 0 ? pixelsPerInch : PixelsPerInch());
    TrialRun run(setup, false);
    std::deque<Trial::Step> steps;
    for (const script::Step& act : script::ReadScript("acts", acts, script::Player::OfDescriptions))
        steps.emplace_back([act](Trial& running) { running.Do(act); });
    steps.emplace_back(
        [&](const Trial& running)
        {
            const TrialDialog* top = running.Top();
            if (top == nullptr)
                return;
            const SeenDialog seen = See(*top);
            const DialogState state = LookAt(*top);
            drawn.svg = DrawSvg(seen, style);
            for (size_t index = 0; index < seen.controls.size(); ++index)
                drawn.controls.push_back({seen.controls[index], state.controls.at(index)});
        });
    drawn.outcome = run.trial.Run(std::move(steps));
    for (const Event& event : run.events)
    {
        if (event.kind == EventKind::Message)
            drawn.messages.push_back(event.text);
    }
    return drawn;
}

} // namespace lytdlg
