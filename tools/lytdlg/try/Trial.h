// Opens a dialog as the exports do, operates it as a user does, act by act, and reports the outcome.
#pragma once

#include "lytdlg/try/Act.h"
#include "lytdlg/try/ControlState.h"
#include "lytdlg/try/EventLog.h"
#include "lytdlg/try/TrialEnvironment.h"
#include "robot/WindowRobot.h"

#include <deque>
#include <exception>
#include <functional>

namespace lytdlg
{

// What a user cannot do, for the reason in the text.
class ActError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

enum class Ending
{
    NotOpened, // the library refused the description
    Confirmed,
    Cancelled,
    Refused, // OK was pressed, and the dialog stays open
    Open     // neither OK nor Cancel was pressed
};
const char* WordOf(Ending ending);

// Texts are in the code page of the dialogs.
struct Outcome
{
    Ending ending = Ending::Open;
    std::string text = {};                // what was composed, when it was confirmed
    std::string failureNumber = {};       // when it was not opened
    std::string failureMessage = {};      // in full
    int failureLine = 0;                  // of the file; 0 when it was not a line that was refused
    std::vector<DialogState> states = {}; // of the dialogs as they were seen last, the outermost first
};

// The file's name without its folder, in UTF-8.
std::string NameOf(const TrialDialog& dialog);

class Trial : private TrialWatcher
{
public:
    using Step = std::function<void(Trial&)>;

    // The log outlives the trial.
    Trial(const Setup& setup, EventLog& eventLog);
    Trial(const Trial&) = delete;
    Trial& operator=(const Trial&) = delete;

    // A step is taken when everything that the one before has set off is over. Raises what a step raises.
    const Outcome& Run(std::deque<Step> steps);

    // For steps, and afterwards.
    void Do(const script::Step& act);
    EventLog& Events() { return m_events; }
    const Outcome& Result() const { return m_outcome; }
    // How the outermost dialog is or has ended.
    Ending PresentEnding() const;
    // Of the dialog on top; the state that it was seen in last, once all are closed.
    const DialogState& State();
    // The described dialog on top; null when none is open.
    TrialDialog* Top() const;
    // The described dialogs, the outermost first.
    const std::vector<TrialDialog*>& Open() const { return m_open; }

private:
    void Opening(TrialDialog& dialog) override;
    void Closed(TrialDialog& dialog, INT_PTR result) override;
    void Failed(const TrialDialog& dialog, const CException& failure) override;

    void AwaitTurn();
    void Turn();
    void TakeStep();
    void Answer(HWND box);
    void LeaveAll();
    void LookAtAll();
    void DoOn(TrialDialog& dialog, const script::Step& act);

    TrialEnvironment m_surroundings;
    CString m_input;
    robot::Robot m_robot;
    std::deque<Step> m_steps;
    std::vector<TrialDialog*> m_open; // the outermost first
    EventLog& m_events;
    Outcome m_outcome;
    std::exception_ptr m_failure;
    bool m_isInStep = false;
    bool m_isLeaving = false;
    bool m_hasPressedOk = false; // of the outermost dialog, as the last act
};

// Every option that Setup and acts have.
std::vector<commandline::OptionForm> TrialOptions(std::vector<commandline::OptionForm> more = {});

} // namespace lytdlg
