#include "controls/ClytDataLibrary.h"

#include "base/PartnerLibrary.h"

CString lytCallForText(const ClytPartnerFunction<lytDataText>& function, const CString& parameter)
{
    ClytDataText answer;
    function(parameter, answer.Buffer(), ClytDataText::usableSize);
    answer.End();
    return answer.Text();
}

bool ClytDataListing::Next()
{
    if (delivered == lytLongestRun)
        return false;
    ++delivered;
    const int answer = next(display.Buffer(), ClytDataText::usableSize, value.Buffer(), ClytDataText::usableSize);
    display.End();
    value.End();
    return answer != 0;
}

void ClytListSource::TakeStatement(const CStringList& values, const ClytSpan& place)
{
    span = place;
    POSITION value = values.GetHeadPosition();
    for (CString* field : {&library, &startFunction, &nextFunction, &parameterRule})
    {
        if (value == nullptr)
            return;
        *field = values.GetNext(value);
    }
}

bool ClytDataLibrary::Load(const CString& name, const ClytSpan& place)
{
    if (module == nullptr || !lytIsLoaded(module))
    {
        loadedName = name;
        module = lytLoadLibrary(name);
    }
    if (module == nullptr)
        lytTellMissing(ClytMissing::Library, name, nullptr, place);
    return module != nullptr;
}
