#include "dialog/ClytControlTypes.h"

#include "controls/ClytDefaultControl.h"
#include "controls/ClytEditControl.h"
#include "controls/ClytGroupBoxControl.h"
#include "controls/ClytStaticControl.h"
#include "environment/Words.h"

namespace
{

using ControlPtr = std::unique_ptr<ClytControl>;

struct ControlType
{
    const char* word;
    ControlPtr (*make)(const ClytControlRequest& request);
};

template <class CONTROL>
ControlPtr Make(const ClytControlRequest& request)
{
    return std::make_unique<CONTROL>(request.name, request.position, request.size, request.label);
}

// The dialog knows these two under their names; the buttons themselves have none.
template <int KIND>
ControlPtr MakeDefault(const ClytControlRequest& request)
{
    return std::make_unique<ClytDefaultControl>(request.position, request.size, KIND);
}

constexpr ControlType controlTypes[] = {
    {"Text", Make<ClytStaticControl>}, {"TextBox", Make<ClytEditControl>}, {"GroupBox", Make<ClytGroupBoxControl>},
    {"OKButton", MakeDefault<1>},      {"CancelButton", MakeDefault<0>},
};

} // namespace

ControlPtr lytMakeControl(const ClytControlRequest& request)
{
    for (const ControlType& type : controlTypes)
    {
        if (lytSameWord(request.type, type.word))
            return type.make(request);
    }
    return nullptr;
}
