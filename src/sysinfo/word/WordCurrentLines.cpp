#include "sysinfo/word/WordCurrent.h"

#include "base/Words.h"
#include "sysinfo/frame/ProgramKind.h"

CString WordVersionOf(const CString& program)
{
    return program.Mid(program.ReverseFind('.') + 1) + ".0";
}

bool HasBits(const CString& version)
{
    return lytNumberOf(version) >= 14;
}

CString WordCurrentText(const WordCurrentFacts& facts)
{
    if (!facts.program)
        return "";
    const CString version = WordVersionOf(*facts.program);
    return HasBits(version) ? version + BitsText(facts.binaryKind) : version;
}
