// A dialog as a user finds it after certain acts: every window that is open, and what was shown on the way.
#pragma once

#include "lytdlg/draw/Snapshot.h"
#include "lytdlg/trip/TripItem.h"
#include "lytdlg/try/TrialRun.h"

namespace lytdlg
{

// What is played. Each act is a line of a script; a resolution of 0 is that of the screen.
struct Play
{
    Setup setup;
    std::vector<std::string> acts = {};
    int pixelsPerInch = 0;
};

struct PlayedWindow
{
    SeenDialog seen;
    std::string path;                     // of its description; empty for a window without one
    std::string svg = {};                 // where it is asked for
    DialogState state = {};               // of a dialog, in the order of what is seen
    std::vector<std::string> groups = {}; // the option group that each control belongs to, or nothing
    std::vector<bool> isNamed = {};       // whether the name of a control leads to it
    float scaleX = 1;
    float scaleY = 1;
};

// An act counts from 0; -1 is the opening of the dialog.
struct PlayedMessage
{
    int act = -1;
    std::string text;
};

struct FailedAct
{
    int act = -1;
    std::string reason;
};

// Texts are in the code page, but for the reason.
struct PlayedTrial
{
    Outcome outcome;
    std::optional<FailedAct> failed = {};
    std::vector<PlayedMessage> messages = {};
    std::vector<PlayedWindow> windows = {}; // the outermost first
};

// Plays all acts up to one that cannot be taken. The look comes last, while the dialog is open or just closed.
using PlayLook = std::function<void(const TrialRun& run)>;
PlayedTrial PlayActs(const Play& play, const PlayLook& look);

// The same with the windows that are open then; once all are closed, as they were before the act that closed them.
PlayedTrial PlayAndSee(const Play& play, bool isDrawn);

// What the outermost dialog composes.
struct ComposedOutput
{
    int line = 0; // of the rule that holds; 0 for none
    std::string text = {};
    std::vector<TripItem> items = {}; // none where they do not make the text
    OutputRecord refused = {};        // the rules before it
};

// The way of the input into the outermost dialog, and of its result out.
struct PlayedWay
{
    std::vector<ScanStep> steps = {}; // of the scan that the dialog opened with
    std::vector<FillRecord> fills = {};
    ComposedOutput output = {};
};

// Raises std::runtime_error where an act cannot be taken.
PlayedWay PlayWay(const Play& play);

// The control of a dialog that an act would find under that name; raises UsageError without one.
ClytControl& ControlOfTarget(const TrialDialog& dialog, const std::string& target);

} // namespace lytdlg
