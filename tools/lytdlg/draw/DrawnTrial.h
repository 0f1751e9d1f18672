// A dialog as it looks after certain acts: its drawing, and what is seen of its controls.
#pragma once

#include "lytdlg/draw/Snapshot.h"
#include "lytdlg/draw/SvgPen.h"
#include "lytdlg/try/Trial.h"

namespace lytdlg
{

struct DrawnControl
{
    SeenControl seen;
    ControlState state;
};

// Texts are in the code page, but for the drawing.
struct DrawnTrial
{
    std::string svg; // empty when the acts have closed the dialog
    Outcome outcome;
    std::vector<std::string> messages;
    std::vector<DrawnControl> controls;
};

// The acts are lines of a script. A resolution of 0 is that of the screen. Raises UsageError for an act that is not
// understood, and ActError for one that cannot be taken.
DrawnTrial DrawAfter(const Setup& setup, const std::string& acts, int pixelsPerInch, const SvgStyle& style = {});

} // namespace lytdlg
