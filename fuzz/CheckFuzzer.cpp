// The input is a whole description: it is judged by every rule, and each finding is put into words.
#include "lytdlg/judge/Report.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static const lytdlg::Surroundings surroundings = lytdlg::SurroundingsOf("", {});
    const lytdlg::Description description("fuzz.dlg", {reinterpret_cast<const char*>(data), size}, {});
    const lytdlg::Findings findings = lytdlg::Judge(description, surroundings);
    for (const lytdlg::Finding& finding : findings.All())
        static_cast<void>(lytdlg::TextOf(finding, description, true));
    return 0;
}
