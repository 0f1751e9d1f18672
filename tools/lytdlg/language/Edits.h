// Changes of texts that an editor is asked to make.
#pragma once

#include "lytdlg/language/Workspace.h"

namespace lytdlg
{

// Texts are in the code page.
struct TextEdit
{
    TextRange range;
    std::string text;

    bool operator==(const TextEdit&) const = default;
};

using EditsByPath = std::map<std::string, std::vector<TextEdit>>;

// What makes one text of another, line by line where both have as many.
std::vector<TextEdit> EditsBetween(const std::string& before, const std::string& after);

// The open description in its one form; throws std::runtime_error when that cannot be found.
std::vector<TextEdit> FormattingOf(const Workspace& workspace, const std::string& path);

// What mends a finding, in the text that it is about or in a language file.
struct Mending
{
    std::string title;
    std::string rule;
    TextRange place; // of the finding
    bool isSafe = false;
    EditsByPath edits;
};

// Of the findings of a text that touch the range.
std::vector<Mending> MendingsAt(const Workspace& workspace, const std::vector<Finding>& findings,
                                const std::string& path, const TextRange& range);
// All that can be mended in a description without a change of what works.
std::vector<TextEdit> SafeMendingOf(const Workspace& workspace, const std::string& path);

} // namespace lytdlg
