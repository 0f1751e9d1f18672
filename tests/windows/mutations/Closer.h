// A user who does a few things at random in each dialog that opens, and closes it: first with OK, then with Cancel.
#pragma once

#include "robot/WindowRobot.h"
#include "support/Dice.h"

#include <map>
#include <set>

class Closer
{
public:
    // The same number does the same in the same windows. Lives as long as the call that opens them.
    explicit Closer(unsigned number);

    // The texts of the message boxes, in order.
    const std::vector<std::string>& Messages() const { return m_messages; }
    size_t CountDialogs() const { return m_steps.size(); }
    // Empty when everything went away by OK or Cancel, else what did not.
    std::string Stuck() const;

private:
    void WaitForWindow();
    void ActOn(HWND window);
    void ActOnDialog(HWND dialog);
    void ActAtRandom(HWND dialog);
    void ActOnControl(HWND control);
    void AnswerMessage(HWND box);

    Dice m_dice;
    std::map<HWND, int> m_steps; // taken in each dialog
    std::set<HWND> m_answered;   // message boxes
    std::vector<std::string> m_messages;
    int m_actsLeft;
    std::string m_stuck;
    robot::Robot m_robot;
};
