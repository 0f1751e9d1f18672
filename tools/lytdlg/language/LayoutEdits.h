// Changes of a layout that touch nothing but what they are about.
#pragma once

#include "lytdlg/language/Edits.h"

#include <optional>

namespace lytdlg
{

// In pixels from the corner of the client area; what is not given stays.
struct ControlPlace
{
    int line = 0;
    std::optional<int> x = {};
    std::optional<int> y = {};
    std::optional<int> width = {};
    std::optional<int> height = {};
};

// Units of the layout that come out nearest to a length in pixels.
int UnitsFor(int pixels, float factor);

struct NewControl
{
    std::string type;
    ControlPlace place;
    std::string name = {}; // empty for one that is free
    std::string text = {}; // empty for the name
    int after = 0;         // the line of a statement; 0 for the place before OK and Cancel
};

// All raise std::runtime_error for a line without a statement of a control. Lines count from 1.
std::vector<TextEdit> PlacingOf(const Description& description, const std::vector<ControlPlace>& places,
                                int pixelsPerInch);
std::vector<TextEdit> OrderingOf(const Description& description, const std::vector<int>& lines);
std::vector<TextEdit> RemovalOf(const Description& description, const std::vector<int>& lines);
// With the text of the control in every language.
EditsByPath AdditionOf(const Workspace& workspace, const std::string& path, NewControl control, int pixelsPerInch);

} // namespace lytdlg
