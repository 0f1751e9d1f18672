#include "lytdlg/trip/TripTeller.h"

#include "lytdlg/judge/Names.h"

#include <algorithm>

namespace lytdlg
{

TripTeller::TripTeller(const Case& whole) : m_judged(whole)
{
    for (const Finding& finding : whole.findings.All())
    {
        if (finding.path.empty() && finding.rule->level != Level::Note)
            m_warned.insert(finding.place.line);
        m_isLeftOut = m_isLeftOut || finding.rule->id == "scan-unreached";
        m_isOfOtherForm = m_isOfOtherForm || finding.rule->id.starts_with("macro-");
    }
}

void TripTeller::Tell(RuleName rule, const ClytSpan& place, int otherLine, std::string message, std::string hint)
{
    Tell(rule, {place, std::move(message), std::move(hint)}, otherLine);
}

void TripTeller::Tell(RuleName rule, TripSide side, int otherLine)
{
    m_losses.push_back({rule, std::move(side), otherLine, m_outputLine, m_way});
}

void TripTeller::TellDropped(const std::string& control, const ClytSpan& place, int otherLine, std::string message,
                             std::string hint)
{
    Tell("trip-dropped", place, otherLine, std::move(message), std::move(hint));
    m_losses.back().dropped = control;
}

void TripTeller::ForgetDropped(const std::set<std::string>& controls)
{
    std::erase_if(m_losses, [&](const Loss& loss) { return controls.contains(loss.dropped); });
}

void TripTeller::Add(const Loss& loss)
{
    const std::string& id = loss.rule.Get().id;
    if (m_warned.contains(loss.side.place.line) || m_warned.contains(loss.otherLine) ||
        !m_told.insert(loss.side.place.line).second ||
        (id.starts_with("trip-") && (m_isOfOtherForm || (m_isLeftOut && id != "trip-end"))))
        return;
    Finding& finding = m_judged.findings.Add(loss.rule, loss.side.place, loss.side.message, loss.side.hint);
    if (!loss.side.fixed.empty() && loss.side.fixPlace.line != 0)
        finding.FixPerhaps(loss.side.fixPlace, loss.side.fixed);
}

std::set<int> TripTeller::Blamed() const
{
    std::set<int> lines;
    for (const Loss& loss : m_losses)
        lines.insert(loss.side.place.line);
    return lines;
}

// Takes away what follows from other losses: a statement that other rules get along with, when their rule is to blame; and
// what comes after a statement that is.
void TripTeller::RemoveConsequences()
{
    std::set<int> blamed = Blamed();
    std::set<int> dropping; // rules that leave an item out
    for (const Loss& loss : m_losses)
    {
        if (loss.rule.Get().id == "trip-dropped")
            dropping.insert(loss.side.place.line);
    }
    std::erase_if(m_losses,
                  [&](const Loss& loss)
                  {
                      const int line = loss.side.place.line;
                      return !loss.isEither && line != loss.outputLine &&
                             (dropping.contains(loss.outputLine) ||
                              (blamed.contains(loss.outputLine) && m_fits.contains(line)));
                  });
    blamed = Blamed();
    std::erase_if(m_losses,
                  [&](const Loss& loss)
                  {
                      const auto end = std::ranges::find(loss.way, loss.side.place.line);
                      return std::any_of(loss.way.begin(), end,
                                         [&](int line) {
                                             return blamed.contains(line) && !(loss.isEither && line == loss.otherLine);
                                         });
                  });
}

void TripTeller::TellMisfit(RuleName rule, TripSide output, TripSide input, TripBlame blame,
                            const std::vector<std::string>& separators)
{
    if (m_unfit[input.place.line].insert(output.place.line).second)
        m_misfits.push_back({rule, std::move(output), std::move(input), blame, separators, m_outputLine, m_way});
}

bool TripTeller::HasFit(const Misfit& misfit) const
{
    const auto fits = m_fits.find(misfit.input.place.line);
    return fits != m_fits.end() &&
           std::ranges::all_of(misfit.separators, [&](const std::string& separator)
                               { return separator == "Rest" || fits->second.contains(separator); });
}

bool TripTeller::FitsOtherRule(const Misfit& misfit) const
{
    const auto rules = m_fitting.find(misfit.input.place.line);
    return rules != m_fitting.end() &&
           std::ranges::any_of(rules->second, [&](int line) { return line != misfit.outputLine; });
}

TripBlame TripTeller::BlameOf(const Misfit& misfit) const
{
    if (m_unfit.at(misfit.input.place.line).size() > 1)
        return TripBlame::Input;
    // A list may be taken apart wrongly where its piece ends well.
    if (misfit.rule.Get().id == "trip-list")
        return misfit.blame;
    if (misfit.blame == TripBlame::Both)
        return FitsOtherRule(misfit) ? TripBlame::Output : TripBlame::Both;
    const bool fitsInPart = misfit.blame == TripBlame::Either && m_fits.contains(misfit.input.place.line);
    return fitsInPart || HasFit(misfit) ? TripBlame::Output : misfit.blame;
}

void TripTeller::AddSide(const Misfit& misfit, bool isInput, bool isEither)
{
    m_losses.push_back({misfit.rule, isInput ? misfit.input : misfit.output,
                        isInput ? misfit.output.place.line : misfit.input.place.line, misfit.outputLine, misfit.way,
                        isEither});
    // Only one of the two is mended.
    if (isEither && isInput)
        m_losses.back().side.fixed.clear();
}

void TripTeller::AddFindings()
{
    for (const Misfit& misfit : m_misfits)
    {
        const TripBlame blame = BlameOf(misfit);
        const bool isEither = blame == TripBlame::Either || blame == TripBlame::Both;
        if (blame != TripBlame::Input)
            AddSide(misfit, false, isEither);
        if (blame != TripBlame::Output)
            AddSide(misfit, true, isEither);
    }
    RemoveConsequences();
    std::ranges::for_each(m_losses, [&](const Loss& loss) { Add(loss); });
    Forget();
}

void TripTeller::Forget()
{
    m_misfits.clear();
    m_losses.clear();
}

std::string Excerpt(const std::string& text)
{
    constexpr size_t longest = 60;
    std::string shown = text;
    while (!shown.empty() && shown.back() == '\n')
        shown.pop_back();
    std::ranges::replace(shown, '\n', '|');
    return InQuotes(shown.size() <= longest ? shown : shown.substr(0, longest) + "...");
}

std::string NumberedLine(int line)
{
    return "line " + std::to_string(line);
}

} // namespace lytdlg
