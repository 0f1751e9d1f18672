// Takes the lines of a case one after the other. A run of the dialog is gathered first, and made when another one, or other
// descriptions, follow.
#pragma once

#include "CaseFile.h"
#include "CaseForm.h"

#include "dialogs/DialogFixture.h"

class CaseRun : public DialogFixture
{
protected:
    void Run(const Case& one);

private:
    using Act = std::function<void()>;

    // Looks and steps that are taken together, when the robot comes to them.
    struct Stage
    {
        std::function<void(robot::Robot& user, const Act& act)> add;
        std::vector<Act> acts = {};
        bool isFull = false; // a step that follows is another stage
    };

    void Take(const CaseLine& line);
    bool TakeEnd(const std::string& word, const std::string& rest);
    bool TakeWait(const std::string& word, const std::string& rest);
    void AddStage();
    void AddKeyStage(std::function<bool()> ready, Act act);
    bool TakeStep(const CaseLine& line, const std::string& word, const std::string& rest, bool isTogether);
    void Look(const std::string& name, const std::string& rest) const;
    // Makes the run that was gathered.
    void Show();

    CaseForm m_form;
    std::string m_file;
    bool m_isOpen = false;
    std::string m_input;
    std::string m_title; // of the dialog that the steps are in
    std::vector<Stage> m_stages;
    Texts m_messages;
    std::function<void(int answer, const std::string& given)> m_end;
};
