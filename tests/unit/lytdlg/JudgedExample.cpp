#include "JudgedExample.h"

#include "ExampleFindings.h"

using namespace lytdlg;

std::string TextsOfFindings(const std::string& lines, const std::vector<std::string>& partners)
{
    const TestFolder& folder = ExampleFolder();
    const Description description("example.dlg", ExampleDescription(lines), {});
    Findings findings = Judge(description, SurroundingsOf(folder.Path(), partners));
    std::string texts;
    for (Finding& finding : findings.All())
    {
        if (!finding.path.empty())
            finding.path = std::filesystem::path(finding.path).lexically_relative(folder.Path()).generic_string();
        texts += TextOf(finding, description, false);
    }
    return texts;
}
