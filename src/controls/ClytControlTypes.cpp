#include "controls/ClytControlTypes.h"

#include "base/Words.h"
#include "controls/ClytCheckBoxControl.h"
#include "controls/ClytCheckListBox.h"
#include "controls/ClytComboBoxControl.h"
#include "controls/ClytDefaultControl.h"
#include "controls/ClytEditControl.h"
#include "controls/ClytGroupBoxControl.h"
#include "controls/ClytListBoxControl.h"
#include "controls/ClytOptionGroup.h"
#include "controls/ClytPushButtonControl.h"
#include "controls/ClytRadioButtonControl.h"
#include "controls/ClytStaticControl.h"
#include "controls/TypeWords.h"
#include "model/ClytScale.h"

#include <iterator>

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

// One class serves two words.
ControlPtr MakeCombo(const ClytControlRequest& request)
{
    return std::make_unique<ClytComboBoxControl>(request.type, request.name, request.position, request.size,
                                                 request.label);
}

ControlPtr MakeOptionGroup(const ClytControlRequest& request)
{
    return std::make_unique<ClytOptionGroup>(request.name);
}

ControlPtr MakeOptionButton(const ClytControlRequest& request)
{
    // The size was scaled once already, like any other; option buttons get theirs by being scaled twice.
    const ClytSize size = {lytScaled(request.size.width, lytScaleX), lytScaled(request.size.height, lytScaleY)};
    auto button = std::make_unique<ClytRadioButtonControl>(request.name, request.position, size,
                                                           ClytOptionGroup::TakeFirstOfGroup(), request.label);
    ClytOptionGroup::AddToCurrentGroup(*button);
    return button;
}

constexpr ControlType controlTypes[] = {
    {lytTypeOf(ClytKind::Button).word, Make<ClytPushButtonControl>},
    {lytTypeOf(ClytKind::Text).word, Make<ClytStaticControl>},
    {lytTypeOf(ClytKind::Field).word, Make<ClytEditControl>},
    {lytTypeOf(ClytKind::Frame).word, Make<ClytGroupBoxControl>},
    {lytTypeOf(ClytKind::Combo).word, MakeCombo},
    {lytTypeOf(ClytKind::DropList).word, MakeCombo},
    {lytTypeOf(ClytKind::List).word, Make<ClytListBoxControl>},
    {lytTypeOf(ClytKind::CheckList).word, Make<ClytCheckListBox>},
    {lytTypeOf(ClytKind::CheckBox).word, Make<ClytCheckBoxControl>},
    {lytTypeOf(ClytKind::OptionGroup).word, MakeOptionGroup},
    {lytTypeOf(ClytKind::Option).word, MakeOptionButton},
    {lytTypeOf(ClytKind::Ok).word, MakeDefault<1>},
    {lytTypeOf(ClytKind::Cancel).word, MakeDefault<0>},
};
static_assert(std::size(controlTypes) == std::size(lytTypes));

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
