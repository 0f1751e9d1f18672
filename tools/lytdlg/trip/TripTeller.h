// What trials of a dialog find, and which side of a loss is to blame.
#pragma once

#include "lytdlg/judge/Judge.h"

#include <map>
#include <set>

namespace lytdlg
{

// One side of a loss: a line of the output, or one of the input.
struct TripSide
{
    ClytSpan place;
    std::string message;
    std::string hint;
    ClytSpan fixPlace = {}; // where the one text that fixes it goes
    std::string fixed = {}; // empty where it takes more than that
};

// Which side of a misfit is likely to be wrong.
enum class TripBlame
{
    Output,
    Input,
    Either,
    Both // either, also where another text of the rule has come back
};

// Collects what trials find, and adds it at their end: each rule once for a line, and nothing for a line about which other
// rules warn already.
class TripTeller
{
public:
    explicit TripTeller(const Case& whole);

    // What is reported from here on is of a text that the rule of a line has written, and that came back through statements.
    void BeginTrip(int outputLine, std::vector<int> way)
    {
        m_outputLine = outputLine;
        m_way = std::move(way);
    }
    // The place, and the other line that the loss comes about by; 0 for none.
    void Tell(RuleName rule, const ClytSpan& place, int otherLine, std::string message, std::string hint);
    void Tell(RuleName rule, TripSide side, int otherLine);
    // A rule does not write a control.
    void TellDropped(const std::string& control, const ClytSpan& place, int otherLine, std::string message,
                     std::string hint);
    // The controls have findings that explain why rules do not write them.
    void ForgetDropped(const std::set<std::string>& controls);
    // The two sides do not fit each other. A statement of the input that does not fit several rules of the output is the one
    // that is wrong, and one that fits another rule is right. For any other the caller says which side is likely; when it is
    // either, both are reported.
    // Where separators do not fit, a statement is right when each of its separators fits some rule.
    void TellMisfit(RuleName rule, TripSide output, TripSide input, TripBlame blame,
                    const std::vector<std::string>& separators = {});
    // A text has come back through the statement, which cut it at that separator.
    void TellFit(int inputLine, const std::string& separator)
    {
        m_fits[inputLine].insert(separator);
        m_fitting[inputLine].insert(m_outputLine);
    }
    bool HasFindings() const { return !m_losses.empty() || !m_misfits.empty(); }
    // Forgets what was collected.
    void Forget();
    void AddFindings();
    const Case& Judged() const { return m_judged; }

private:
    struct Misfit
    {
        RuleName rule;
        TripSide output;
        TripSide input;
        TripBlame blame = TripBlame::Output;
        std::vector<std::string> separators;
        int outputLine = 0;
        std::vector<int> way;
    };
    struct Loss
    {
        RuleName rule;
        TripSide side;
        int otherLine = 0;
        int outputLine = 0;
        std::vector<int> way;
        bool isEither = false;    // the other line has a finding as well
        std::string dropped = {}; // the control that the rule does not write
    };

    void Add(const Loss& loss);
    std::set<int> Blamed() const;
    void RemoveConsequences();
    bool HasFit(const Misfit& misfit) const;
    bool FitsOtherRule(const Misfit& misfit) const;
    TripBlame BlameOf(const Misfit& misfit) const;
    void AddSide(const Misfit& misfit, bool isInput, bool isEither);

    const Case& m_judged;
    std::set<int> m_warned;
    std::set<int> m_told;
    bool m_isLeftOut = false;     // a statement that nothing leads to explains most losses
    bool m_isOfOtherForm = false; // an answer that the macros do not understand explains all
    int m_outputLine = 0;
    std::vector<int> m_way;
    std::vector<Loss> m_losses;
    std::vector<Misfit> m_misfits;
    std::map<int, std::set<int>> m_unfit;        // by the line of the input, those of the output
    std::map<int, std::set<std::string>> m_fits; // by the line of the input, the separators
    std::map<int, std::set<int>> m_fitting;      // and the lines of the rules
};

// A text in quotes, and not too long.
std::string Excerpt(const std::string& text);
// A line, as a sentence has it.
std::string NumberedLine(int line);

} // namespace lytdlg
