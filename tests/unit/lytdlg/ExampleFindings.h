// What the judge finds in an example, which stands in a folder with its texts and another dialog.
#pragma once

#include "lytdlg/judge/Examples.h"
#include "lytdlg/judge/Report.h"
#include "support/TestFolder.h"

#include <set>

namespace lytdlg
{

inline const TestFolder& ExampleFolder()
{
    static const TestFolder folder;
    static const bool isFilled = []
    {
        for (const ExampleFile& file : ExampleFiles())
            folder.Write(file.name, file.content);
        return true;
    }();
    static_cast<void>(isFilled);
    return folder;
}

// The rules that find something in an example, and the findings as a user sees them.
struct Found
{
    std::set<std::string> rules;
    std::string text;
};

// With a predicate, of the rules alone that it is true for. Partner libraries are in those folders.
inline Found FindIn(const std::string& example, bool (*isAsked)(const Rule& rule) = nullptr,
                    const std::vector<std::string>& partners = {})
{
    const std::string folder = ExampleFolder().Path();
    const Description description("example.dlg", ExampleDescription(example), {});
    Findings findings = Judge(description, SurroundingsOf(folder, partners));
    Found found;
    for (Finding& finding : findings.All())
    {
        if (isAsked != nullptr && !isAsked(*finding.rule))
            continue;
        found.rules.insert(finding.rule->id);
        if (!finding.path.empty())
            finding.path = std::filesystem::path(finding.path).lexically_relative(folder).generic_string();
        found.text += TextOf(finding, description, false);
    }
    return found;
}

} // namespace lytdlg
