// Writes down how a dialog scans its input, runs its rules and chooses its output, for traces and explanations.
#pragma once

#include "lytdlg/try/EventLog.h"
#include "lytdlg/try/Listener.h"
#include "model/ClytControlDep.h"
#include "model/ClytDialogInput.h"
#include "model/ClytDialogOutput.h"

#include <optional>

namespace lytdlg
{

struct TestedCondition
{
    std::string text; // a clause: `Digits is "2"`, `and not one of ...`
    ClytTested result = ClytTested::Holds;
};

struct RuleRecord
{
    std::string control;
    std::string word; // VISIBLE, ACTIVE, CLEAR, FILL or any other
    int line = 0;
    std::vector<TestedCondition> conditions = {}; // those that were tested
    bool isOn = false;                            // what a state rule set; whether an event rule acted
    bool isEvent = false;
    const ClytControl* target = nullptr; // gone with its dialog
    bool setsNothing = false;            // a push button knows no state but ACTIVE and VISIBLE
};

// A statement that a scan came to. The pointer is for comparing: the statement goes with its dialog.
struct ScanStep
{
    const ClytDialogInput* statement = nullptr;
    std::string name;
    std::string next;  // the statement that follows
    int line = 0;      // of the statement
    int scan = 0;      // counted from 1
    size_t begin = 0;  // of the piece, in the text of the scan
    size_t end = 0;    // of the piece
    size_t restAt = 0; // after what ended it
};

struct FillRecord
{
    std::string control;
    int line = 0;
    std::string text;   // "takes ...", and what that means
    std::string value;  // what it puts there
    std::string action; // its word; empty when it sets the value
    std::string statement;
    const ClytDialogInput* source = nullptr; // for comparing
    size_t step = 0;                         // the one whose piece it was
};

struct OutputRecord
{
    int line = 0; // 0 when no rule holds
    std::vector<TestedCondition> refusals = {};
    std::vector<int> refusedLines = {};
};

// Texts are in UTF-8, names as the description has them in the code page of the dialogs.
class Recorder : public Listener
{
public:
    // Both outlive the recorder. Without a log only records are kept.
    Recorder(ItemsLibrary& itemsLibrary, EventLog* traceLog) : Listener(itemsLibrary), m_log(traceLog) {}

    void LibraryAsked(const ClytControl& control) override;
    void PassedOver(ClytPassedOver what, const CString& name, const ClytSpan& place) override;
    void Missed(ClytMissing what, const CString& name, const ClytControl* control, const ClytSpan& place) override;
    void ScanBegan(const char* text) override;
    void Cut(const ClytDialogInput& statement, const CString& piece, const char* rest,
             const CString& nextStatement) override;
    void Jumped(const ClytDialogInput& statement, const CString& nextStatement) override;
    void Filled(const ClytControlFill& fill, const CString& piece) override;
    void RunBegan(int depth) override;
    void RunEnded(int depth) override;
    void ConditionTested(ClytRuleKind kind, const ClytSpan& rule, const ClytCtrlValList& condition,
                         ClytTested result) override;
    void StateSet(const ClytControlDep& rule, int on) override;
    void EventDecided(const ClytControlDep& rule, ClytEvent event) override;
    void OutputChosen(const ClytDialogOutput* rule) override;

    // Later reports are not traced.
    void EndTrace() { m_log = nullptr; }
    // Forgets what was reported about scans so far.
    void ForgetScan();
    const std::vector<RuleRecord>& Rules() const { return m_rules; }
    const std::vector<FillRecord>& Fills() const { return m_fills; }
    // Of all scans, in their order.
    const std::vector<ScanStep>& Steps() const { return m_steps; }
    // What the last scan left.
    const std::string& Rest() const { return m_restText; }
    const OutputRecord& LastOutput() const { return m_output; }
    // The controls that have asked their library, with what was missing at that.
    const std::map<std::string, std::string>& Asked() const { return m_asked; }

private:
    void Trace(const std::string& text);
    std::string SeparatorOf(const ClytDialogInput& statement, const CString& piece, const char* rest,
                            const CString& nextStatement) const;

    EventLog* m_log;
    std::vector<RuleRecord> m_rules;
    std::vector<FillRecord> m_fills;
    std::vector<ScanStep> m_steps;
    std::map<std::string, std::string> m_asked;
    std::string m_asking;
    std::vector<TestedCondition> m_tested; // of the rule whose test is in progress
    OutputRecord m_output;
    OutputRecord m_nextOutput;
    int m_scans = 0;
    const char* m_scanned = nullptr; // the text of the scan in progress
    size_t m_runBegin = 0;           // where the outermost run begins in the log
    size_t m_runEnd = 0;             // where the last one ended
    std::vector<Event> m_lastRun;    // what it came to
    const char* m_rest = nullptr;    // of the scan in progress
    std::string m_restText;
    int m_depth = 0;
};

// A sentence's end about a tested condition, such as `Digits is empty`.
std::string ClauseOf(const ClytCtrlValList& condition, ClytTested result);

} // namespace lytdlg
