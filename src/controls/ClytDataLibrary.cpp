#include "controls/ClytDataLibrary.h"

HMODULE lytLoadPartner(const CString& name)
{
    if (name.IsEmpty())
        return nullptr;
    // A file that is no library of this machine would otherwise be announced in a box of the system's.
    DWORD hostErrorMode = 0;
    SetThreadErrorMode(SEM_FAILCRITICALERRORS, &hostErrorMode);
    const HMODULE library = LoadLibraryA(name);
    SetThreadErrorMode(hostErrorMode, nullptr);
    return library;
}

CString lytCallForText(lytDataText& function, const CString& parameter)
{
    ClytDataText answer;
    function(parameter, answer.Buffer(), ClytDataText::usableSize);
    answer.End();
    return answer.Text();
}

bool ClytDataListing::Next()
{
    const int delivered = next(display.Buffer(), ClytDataText::usableSize, value.Buffer(), ClytDataText::usableSize);
    display.End();
    value.End();
    return delivered != 0;
}

bool ClytDataLibrary::Load(const CString& name)
{
    if (module == nullptr)
        module = lytLoadPartner(name);
    return module != nullptr;
}
