// Where the controls of a description are on a screen, as the library places them: scaled from layout units, and some as
// large as their text.
#pragma once

#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/text/LanguageFiles.h"
#include "model/ClytScale.h"

#include <afxwin.h>

namespace lytdlg
{

// In layout units, as docs/descriptions.md has it: of a field, and of a list that drops down while it is shut.
inline constexpr int fieldHeight = 19;

// A control with a separate window that is seen.
struct PlacedControl
{
    const ClytControlStatement* control = nullptr; // of the description
    Kind kind = Kind::Unknown;
    CRect place{0, 0, 0, 0};
    int captionWidth = 0; // without the marks of its letters
    bool mayBeHidden = false;
};

struct Screen
{
    int pixelsPerInch = 0;
    std::string language;                // empty without a language file
    CSize client;                        // of the dialog
    std::vector<PlacedControl> controls; // in the order of the file
};

// A control that is as large as its text, on any screen.
bool IsSizedByText(Kind kind);
// The factors of a screen.
const ClytResolution& ResolutionOf(const Screen& screen);

// The dialog at each resolution, in each language.
std::vector<Screen> ScreensOf(const Description& description, const LanguageFiles& texts);

} // namespace lytdlg
