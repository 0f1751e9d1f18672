#include "controls/ClytDataLibrary.h"

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
        module = lytLoadLibrary(name);
    return module != nullptr;
}
