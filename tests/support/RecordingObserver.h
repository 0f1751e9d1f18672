// Writes down what a dialog does without a word, a line for each thing.
#pragma once

#include "model/ClytControl.h"
#include "model/ClytControlDep.h"
#include "model/ClytControlFill.h"
#include "model/ClytDialogInput.h"
#include "model/ClytDialogOutput.h"
#include "model/ClytObserver.h"

#include <array>
#include <string>
#include <utility>

class RecordingObserver final : public ClytObserver
{
public:
    RecordingObserver() { lytObserver = this; }
    RecordingObserver(const RecordingObserver&) = delete;
    RecordingObserver& operator=(const RecordingObserver&) = delete;
    ~RecordingObserver() { lytObserver = nullptr; }

    // What was heard since the last look.
    std::string TakeHeard() { return std::exchange(m_heard, {}); }

    void PassedOver(ClytPassedOver what, const CString& name, const ClytSpan& place) override
    {
        constexpr std::array names = {"layout", "value", "rule", "evaluation", "fill"};
        Hear(names.at(static_cast<size_t>(what)), " ", name, " in line ", std::to_string(place.line));
    }
    void Missed(ClytMissing what, const CString& name, const ClytControl* control, const ClytSpan& place) override
    {
        constexpr std::array names = {
            "target",  "double click's target", "nested dialog", "output group", "input part", "statement", "library",
            "function"};
        Hear("no ", names.at(static_cast<size_t>(what)), " ", name, control != nullptr ? " for " : "",
             control != nullptr ? control->GetName().GetString() : "",
             place.line != 0 ? " in line " + std::to_string(place.line) : "");
    }
    void Cut(const ClytDialogInput& statement, const CString& piece, const char* rest,
             const CString& nextStatement) override
    {
        Hear(statement.name, " cut '", piece, "' before '", rest, "', on to ", nextStatement);
    }
    void Jumped(const ClytDialogInput& statement, const CString& nextStatement) override
    {
        Hear(statement.name, " on to ", nextStatement);
    }
    void Filled(const ClytControlFill& fill, const CString& piece) override
    {
        Hear(fill.controlName, " takes '", piece, "'");
    }
    void RunBegan(int depth) override { Hear("run ", std::to_string(depth)); }
    void RunEnded(int depth) override { Hear("end ", std::to_string(depth)); }
    void ConditionTested(ClytRuleKind kind, const ClytSpan& rule, const ClytCtrlValList& condition,
                         ClytTested result) override
    {
        Hear(kind == ClytRuleKind::Output ? "output" : "rule", " in line ", std::to_string(rule.line), " asks ",
             condition.GetName(), ": ", Shown(result));
    }
    void StateSet(const ClytControlDep& rule, int on) override { Hear(Shown(rule), " set to ", std::to_string(on)); }
    void EventDecided(const ClytControlDep& rule, ClytEvent event) override
    {
        constexpr std::array names = {"acts", "finds nothing changed", "is in progress"};
        Hear(Shown(rule), " ", names.at(static_cast<size_t>(event)));
    }
    void OutputChosen(const ClytDialogOutput* rule) override
    {
        Hear("output ", rule != nullptr ? "in line " + std::to_string(rule->span.line) : "by no rule");
    }

private:
    template <class... Parts>
    void Hear(const Parts&... parts)
    {
        ((m_heard += parts), ...);
        m_heard += '\n';
    }
    static std::string Shown(const ClytControlDep& rule)
    {
        return std::string(rule.controlName) + "/" + rule.stateWord.GetText().GetString();
    }
    static std::string Shown(ClytTested result)
    {
        constexpr std::array names = {"holds",       "unknown control", "inactive", "not listed",
                                      "has content", "is empty",        "changed",  "unchanged"};
        return names.at(static_cast<size_t>(result));
    }

    std::string m_heard;
};
