#include "JudgedExample.h"

#include "lytdlg/judge/Examples.h"
#include "lytdlg/judge/Report.h"
#include "support/TestFolder.h"

using namespace lytdlg;

std::string TextsOfFindings(const std::string& lines)
{
    const TestFolder folder;
    for (const ExampleFile& file : ExampleFiles())
        folder.Write(file.name, file.content);
    const Description description("example.dlg", ExampleDescription(lines), {});
    const Findings findings = Judge(description, SurroundingsOf(folder.Path(), {}));
    std::string texts;
    for (const Finding& finding : findings.All())
        texts += TextOf(finding, description, false);
    return texts;
}
