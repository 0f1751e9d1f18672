#include "lytdlg/judge/LanguageFindings.h"

namespace lytdlg
{

void AddIn(const Case& judged, const Rule& rule, const LanguageFile& file, const ClytSpan& place,
           const std::string& line, const std::string& message, const std::string& hint)
{
    Finding& finding = judged.findings.Add(rule, place, message, hint);
    finding.path = file.FileName();
    finding.line = line;
}

} // namespace lytdlg
