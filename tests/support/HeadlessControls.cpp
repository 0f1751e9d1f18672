#include "support/HeadlessControls.h"

#include "base/Words.h"
#include "environment/ClytException.h"
#include "support/HeadlessForm.h"

HeadlessControl::HeadlessControl(HeadlessForm& ownerForm, const CString& controlName, ClytPosition topLeft,
                                 ClytSize extent, const CString& label)
    : ClytControl(controlName, topLeft, extent, label), form(ownerForm)
{
}

void HeadlessControl::CreateControl(ClytForm* owner)
{
    ClytControl::CreateControl(owner);
    isCreated = true;
    if (hidden != 0 || invisible != 0)
        SetState(ClytState::Visible, 0);
    if (displayOnly != 0 || inactive != 0)
        SetState(ClytState::Active, 0);
    FillInitially();
}

void HeadlessControl::SetOption(const CStringList& values, const CString& keyword)
{
    if (TakeCommonOption(values.GetHead()) == 0)
        TakeStatement(values, keyword);
}

void HeadlessControl::SetControlFocus()
{
    form.MoveFocusTo(name);
}

void HeadlessControl::SetState(const ClytStateWord& word, int on)
{
    (word.GetMeaning() == ClytState::Active ? isEnabled : isShown) = on != 0;
}

void HeadlessControl::Enter(const CString& /*input*/)
{
    SendCommand();
}

void HeadlessControl::TakeStatement(const CStringList& /*values*/, const CString& /*keyword*/) {}

void HeadlessControl::SendCommand()
{
    if (isCreated)
        form.Command();
}

void HeadlessEdit::SetOption(const CStringList& values, const CString& keyword)
{
    if (!lytMeans<ClytKeyword::FilledBy>(keyword))
        return HeadlessControl::SetOption(values, keyword);
    if (values.GetCount() > 3)
        parameterRule = values.GetAt(values.FindIndex(3));
}

void HeadlessEdit::TakeStatement(const CStringList& values, const CString& /*keyword*/)
{
    defaultValue = values.GetHead();
}

void HeadlessEdit::SaveState()
{
    savedText = text;
    ++saveCount;
}

void HeadlessEdit::SetValue(const CString& value)
{
    if (lytMeans<ClytValueWord::Fill>(value))
        FillByLibrary();
    else if (!value.IsEmpty())
        SetText(value);
}

void HeadlessEdit::DoAction(const ClytStateWord& word)
{
    if (word.GetMeaning() == ClytState::Clear)
        SetText(CString());
    else
        FillByLibrary();
}

void HeadlessEdit::FillByLibrary()
{
    CString parameter;
    if (!parameterRule.IsEmpty() && form.ComposeNamedOutput(parameterRule, parameter) == 0)
        return;
    if (library)
        SetText(library(parameter));
}

void HeadlessEdit::SetText(const CString& newText)
{
    text = newText;
    SendCommand();
}

HeadlessDefault::HeadlessDefault(HeadlessForm& ownerForm, ClytPosition topLeft, ClytSize extent)
    : HeadlessControl(ownerForm, CString(), topLeft, extent, CString())
{
}

namespace
{

template <class Control>
std::unique_ptr<HeadlessControl> Make(HeadlessForm& form, HeadlessOptionGroup*& /*group*/, const CString& /*type*/,
                                      const CString& name, ClytPosition position, ClytSize size, const CString& label)
{
    return std::make_unique<Control>(form, name, position, size, label);
}

std::unique_ptr<HeadlessControl> MakeCombo(HeadlessForm& form, HeadlessOptionGroup*& /*group*/, const CString& type,
                                           const CString& name, ClytPosition position, ClytSize size,
                                           const CString& label)
{
    return std::make_unique<HeadlessCombo>(form, name, position, size, label, lytSameWord(type, "ComboBox"));
}

std::unique_ptr<HeadlessControl> MakeGroup(HeadlessForm& form, HeadlessOptionGroup*& group, const CString& /*type*/,
                                           const CString& name, ClytPosition /*position*/, ClytSize /*size*/,
                                           const CString& /*label*/)
{
    auto made = std::make_unique<HeadlessOptionGroup>(form, name, ClytPosition{}, ClytSize{}, CString());
    group = made.get();
    return made;
}

std::unique_ptr<HeadlessControl> MakeButton(HeadlessForm& form, HeadlessOptionGroup*& group, const CString& /*type*/,
                                            const CString& name, ClytPosition position, ClytSize size,
                                            const CString& label)
{
    auto made = std::make_unique<HeadlessRadioButton>(form, name, position, size, label);
    if (group != nullptr)
        group->buttons.push_back(made.get());
    return made;
}

std::unique_ptr<HeadlessControl> MakeDefault(HeadlessForm& form, HeadlessOptionGroup*& /*group*/,
                                             const CString& /*type*/, const CString& /*name*/, ClytPosition position,
                                             ClytSize size, const CString& /*label*/)
{
    return std::make_unique<HeadlessDefault>(form, position, size);
}

} // namespace

std::unique_ptr<HeadlessControl> MakeHeadlessControl(HeadlessForm& form, HeadlessOptionGroup*& group,
                                                     const CString& type, const CString& name, ClytPosition position,
                                                     ClytSize size, const CString& label)
{
    static constexpr struct
    {
        const char* type;
        std::unique_ptr<HeadlessControl> (*make)(HeadlessForm&, HeadlessOptionGroup*&, const CString&, const CString&,
                                                 ClytPosition, ClytSize, const CString&);
    } types[] = {
        {"PushButton", Make<HeadlessPushButton>},
        {"Text", Make<HeadlessStatic>},
        {"TextBox", Make<HeadlessEdit>},
        {"GroupBox", Make<HeadlessControl>},
        {"ComboBox", MakeCombo},
        {"DropListBox", MakeCombo},
        {"ListBox", Make<HeadlessList>},
        {"CheckListBox", Make<HeadlessList>},
        {"CheckBox", Make<HeadlessCheckBox>},
        {"OptionGroup", MakeGroup},
        {"OptionButton", MakeButton},
        {"OKButton", MakeDefault},
        {"CancelButton", MakeDefault},
    };
    for (const auto& entry : types)
    {
        if (lytSameWord(type, entry.type))
            return entry.make(form, group, type, name, position, size, label);
    }
    return nullptr;
}
