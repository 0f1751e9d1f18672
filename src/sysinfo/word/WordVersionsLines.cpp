#include "sysinfo/word/WordVersions.h"

namespace
{

void Join(CString& text, const CString& name)
{
    if (!text.IsEmpty())
        text += "; ";
    text += name;
}

bool BeginsWithDigit(const CString& name)
{
    return !name.IsEmpty() && name[0] >= '0' && name[0] <= '9';
}

} // namespace

CString WordVersionsText(const WordVersionsFacts& facts)
{
    CString text;
    for (const CString& name : facts.word)
        Join(text, name);
    for (const CString& name : facts.office)
    {
        if (!BeginsWithDigit(name))
            break;
        Join(text, name);
    }
    return text;
}
