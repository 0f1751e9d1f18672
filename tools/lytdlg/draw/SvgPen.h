// Draws a dialog and its controls: rectangles and texts, in pixels.
#pragma once

#include "lytdlg/draw/Markup.h"
#include "lytdlg/draw/Snapshot.h"

namespace lytdlg
{

namespace color
{
inline constexpr const char* face = "#f4f4f4";
inline constexpr const char* window = "#ffffff";
inline constexpr const char* edge = "#aeaeae";
inline constexpr const char* shadow = "#696969";
inline constexpr const char* light = "#e3e3e3";
inline constexpr const char* text = "#000000";
inline constexpr const char* greyed = "#8a8a8a";
inline constexpr const char* chosen = "#3399ff";
inline constexpr const char* chosenText = "#ffffff";
inline constexpr const char* name = "#0050c8";
inline constexpr const char* tab = "#c84800";
} // namespace color

inline constexpr int arrowWidth = 17; // of the button of a combo box, at 96 dots per inch

// What two areas have in common, and what both are in.
Area Common(const Area& one, const Area& other);
Area Around(const Area& one, const Area& other);
// In pixels.
int SizeOf(const Area& area);

struct Spot
{
    int left = 0;
    int top = 0;
};

// A caption as it is shown: "&&" is an ampersand, and another "&" underlines the character after it.
struct Caption
{
    explicit Caption(const std::string& text);

    std::string shown;
    int underlined = -1; // the place of that character
};

class SvgPen
{
public:
    explicit SvgPen(const SeenDialog& dialog);

    Markup markup;

    void Fill(const Area& area, const char* fill);
    // A line of one pixel just inside the area.
    void Frame(const Area& area, const char* fill, const char* stroke, const Attributes& more = {});
    void Line(int fromX, int fromY, int toX, int toY, const char* stroke);
    // What follows is seen inside the area only, and counts from its corner.
    void BeginClip(const Area& area);
    void EndClip();
    // A text in the code page, from its top left corner; what begins right of `limit` is left out.
    void Text(int left, int top, const std::string& shown, const char* fill, int limit);
    void TextOf(const Caption& caption, int left, int top, const char* fill, int limit);
    // No note is to cover the area. That of a text is kept free anyway.
    void KeepFree(const Area& area);
    // Of the drawing so far, in the window.
    const std::vector<Area>& KeptFree() const { return m_kept; }
    // A text that says something about a drawing, and not the dialog itself, from its top left corner.
    void Note(Spot place, const std::string& text, const char* fill);
    // What a note takes there.
    Area NoteArea(Spot place, const std::string& text) const;
    int NoteWidth(const std::string& text) const { return m_dialog.WidthOf(text) * 3 / 4; }
    int NoteHeight() const { return TextHeight() * 3 / 4; }

    // Lengths that grow with the resolution, given at 96 dots per inch.
    int Scaled(int pixels96) const { return (pixels96 * m_dialog.pixelsPerInch + 48) / 96; }
    int TextHeight() const { return m_dialog.textHeight; }
    int WidthOf(const std::string& shown) const { return m_dialog.WidthOf(shown); }

private:
    struct Clip
    {
        int left = 0; // of what is counted from, in the window
        int top = 0;
        Area seen; // in the window
    };

    int BaselineOf(int top) const { return top + m_dialog.textHeight - m_dialog.textHeight / 5; }

    const SeenDialog& m_dialog;
    std::vector<Clip> m_clips;
    std::vector<Area> m_kept;
};

struct SvgStyle
{
    bool showsNames = false; // names at the controls, and hidden ones in outline
    bool showsTabs = false;  // the numbers of the tab stops
};

// The dialog as SVG, pixel for pixel as its window and controls are placed. Each character has its place from the widths of
// the dialog's own font, so that a text that is cut off in the window is cut off at the same letter here. In UTF-8, without
// an XML declaration.
std::string DrawSvg(const SeenDialog& dialog, const SvgStyle& style);

// Draws one control, within its place.
void DrawControl(SvgPen& pen, const SeenControl& control);

} // namespace lytdlg
