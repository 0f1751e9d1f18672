// Where the cases of a campaign are played: a folder of descriptions and texts, and a source of the catalogue. In each case
// one of them is changed, and the exports that meet it are called while a robot closes what opens.
#pragma once

#include "support/Dice.h"
#include "support/TestFolder.h"

#include <lytsrc.h>
#include <windows.h>

#include <string>
#include <vector>

// What came of a case.
struct Outcome
{
    std::string kind;                  // "description", "language file" or "catalogue"
    std::vector<std::string> messages; // of the message boxes
    size_t dialogs = 0;                // that opened
    double seconds = 0;                // of the processor, in this thread
    std::string failure;               // empty when all was well
};

class Stage
{
public:
    // From the sample set in the folder of the library.
    explicit Stage(const std::string& folder);

    // Plays the case of this number.
    Outcome Play(unsigned number);
    // Plays every kind of call over what nothing was changed in.
    void PlayUnchanged();
    // The text that the case puts in place of a file; empty for a catalogue.
    std::string TextOf(unsigned number) const;

private:
    struct Target;
    struct Plan;

    static const std::vector<Target>& Targets();
    Plan PlanOf(unsigned number) const;
    Outcome Carry(const Plan& plan, unsigned number);
    void Serve(std::vector<lytTreeRecord> records);

    HMODULE m_source;
    TestFolder m_folder;
    std::vector<std::string> m_descriptions; // the sample of each target
    std::string m_texts;
    std::vector<lytTreeRecord> m_records; // what the source serves
};
