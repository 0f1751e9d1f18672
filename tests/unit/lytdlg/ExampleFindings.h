// What the judge finds in an example, in a folder with its texts and another dialog.
#pragma once

#include "commandline/Text.h"
#include "lytdlg/judge/Examples.h"
#include "lytdlg/judge/Judge.h"
#include "support/TestFolder.h"

#include <filesystem>
#include <set>

namespace lytdlg
{

class FolderWithExamples : public TestFolder
{
public:
    FolderWithExamples()
    {
        for (const ExampleFile& file : ExampleFiles())
            Write(file.name, file.content);
    }
};

inline const TestFolder& ExampleFolder()
{
    static const FolderWithExamples folder;
    return folder;
}

// The rules that find something in an example, and each finding: its place (a path when it is another file, line, column
// and length), its rule and message, and the hint in a second line.
struct Found
{
    std::set<std::string> rules;
    std::string text;
};

// Partner libraries are in those folders.
inline Found FindIn(const std::string& example, const std::vector<std::string>& partners = {})
{
    const std::string folder = ExampleFolder().Path();
    Findings findings =
        Judge(Description(ExampleName(example), ExampleDescription(example), {}), SurroundingsOf(folder, partners));
    Found found;
    for (const Finding& finding : findings.All())
    {
        found.rules.insert(finding.rule->id);
        found.text += "=> ";
        if (!finding.path.empty())
            found.text += std::filesystem::path(finding.path).lexically_relative(folder).generic_string() + ":";
        found.text += std::to_string(finding.place.line) + ":" + std::to_string(finding.place.column + 1) + "+" +
                      std::to_string(finding.place.length) + " " + finding.rule->id + ": " +
                      commandline::Shown(finding.message) +
                      (finding.number.empty() ? "\n" : " (message " + finding.number + ")\n");
        if (!finding.hint.empty())
            found.text += "   " + commandline::Shown(finding.hint) + "\n";
    }
    return found;
}

} // namespace lytdlg
