// Writes names and numbers at the controls of a drawing, where they cover as little as possible of what is read.
#pragma once

#include "lytdlg/draw/SvgPen.h"

namespace lytdlg
{

class Notes
{
public:
    // The dialog has been drawn with the pen; both outlive the notes.
    Notes(SvgPen& pen, const SeenDialog& dialog) : m_pen(pen), m_dialog(dialog) {}

    void WriteName(const SeenControl& control);
    // In brackets where the Tab key skips the control in the dialog as it is.
    void WriteTabNumber(const SeenControl& control);

private:
    struct Obstacle
    {
        Area area;
        int cost; // for a pixel that is covered
    };

    std::vector<Obstacle> ObstaclesIn(const Area& area, const SeenControl& control) const;
    void Write(const SeenControl& control, const std::vector<Spot>& places, const std::string& text, const char* fill);

    SvgPen& m_pen;
    const SeenDialog& m_dialog;
};

} // namespace lytdlg
