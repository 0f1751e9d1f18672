// One trial of a command, with everything that records it.
#pragma once

#include "lytdlg/try/DialogFacts.h"
#include "lytdlg/try/Recorder.h"
#include "lytdlg/try/Trial.h"

namespace lytdlg
{

struct TrialRun
{
    // With a trace, the log has what the dialog did silently.
    TrialRun(const Setup& setup, bool isTraced)
        : items(setup.items), recorder(items, isTraced ? &events : nullptr), trial(setup, events), traced(isTraced)
    {
    }

    // The acts, and then a look at the dialog on top, unless the dialog was not opened. Raises ActError when
    // the acts leave no described dialog on top.
    using Look = std::function<void(TrialDialog& dialog)>;
    const Outcome& Run(const std::vector<script::Step>& acts, const Look& look = {});
    // Prints messages, nested dialogs and trace in their order.
    void PrintEvents() const;
    // Prints why the dialog was not opened, and returns the exit code for it.
    int PrintFailure() const;

    EventLog events;
    ItemsLibrary items;
    Recorder recorder;
    Trial trial;
    bool traced;
};

// What the description of an open dialog says; raises UsageError when a name is not known.
DialogFacts FactsOf(const TrialDialog& dialog);
void CheckKnown(const std::string& what, const std::string& name, const std::vector<std::string>& known);

} // namespace lytdlg
