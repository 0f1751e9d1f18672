// The acts that a transcript names: calls of the class library by a program, and what a user does.
#pragma once

#include "Stage.h"

#include <sstream>

// The words of one act, and the stage that it is for.
class Words
{
public:
    Words(Stage& stage, const std::string& text) : m_stage(stage), m_text(text) {}

    bool AtEnd() { return (m_text >> std::ws).eof(); }
    std::string Word();
    int Number();
    // All that is left.
    std::string Rest();
    // A window by its number, or "dialog", "top" (the topmost dialog), "focus", "none", or "field" and a combo box's number.
    HWND Handle();
    CWnd& Window() { return m_stage.Control(Number()); }
    template <class WINDOW>
    WINDOW& As()
    {
        return dynamic_cast<WINDOW&>(Window());
    }
    HTREEITEM Item() { return m_stage.ItemNamed(Word()); }
    Stage& On() const { return m_stage; }

private:
    Stage& m_stage;
    std::istringstream m_text;
};

// Acts with "; " between them, and perhaps a reason after " -- ". One after "? " prints what it gives. Raises
// std::runtime_error when there is no such act.
std::function<void()> ReadActs(Stage& stage, const std::string& line);
