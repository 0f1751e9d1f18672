#include "model/ClytControl.h"

#include "base/Words.h"
#include "model/ClytForm.h"

ClytControl::ClytControl(CString controlName, ClytPosition topLeft, ClytSize extent, CString text)
    : position(topLeft), size(extent), caption(std::move(text)), name(std::move(controlName))
{
}

ClytControl::~ClytControl() = default;

void ClytControl::CreateControl(ClytForm* owner)
{
    dialog = owner;
}

void ClytControl::TakeStatement(const CStringList& values, const CString& keyword, const ClytSpan& place)
{
    statementSpan = place;
    SetOption(values, keyword);
}

void ClytControl::SetOption(const CStringList& /*values*/, const CString& /*keyword*/) {}

void ClytControl::SaveState() {}

void ClytControl::SetControlFocus() {}

void ClytControl::AddValues(const CString& /*text*/, const CString& /*separators*/) {}

void ClytControl::SetValue(const CString& /*value*/)
{
    Report(lytError("ValueNotTaken"));
}

void ClytControl::GetAllValues(CString& /*result*/, const CString& /*separators*/) {}

CString ClytControl::GetValue()
{
    Report(lytError("ValueMissing"));
    return {};
}

CString ClytControl::GetDisplayValue()
{
    Report(lytError("ValueMissing"));
    return {};
}

int ClytControl::IsChanged()
{
    return 0;
}

void ClytControl::DoAction(const ClytStateWord& /*word*/)
{
    Report(lytError("ActionUnknown"), ClytPrefix::OfKey(lytError("RuleWrong")), name);
}

int ClytControl::DeleteCurrentItem()
{
    return 1;
}

void ClytControl::AddItem(const CString& /*value*/, const CString& /*display*/, int /*hasValue*/, int /*position*/) {}

void ClytControl::ReplaceCurrentItem(const CString& /*text*/) {}

void ClytControl::MoveCurrentItem(int /*up*/) {}

void ClytControl::FillByLibrary() {}

void ClytControl::SetState(const ClytStateWord& /*word*/, int /*on*/) {}

int ClytControl::IsVisible()
{
    return 1;
}

void ClytControl::SetEvaluation(const ClytCtrlValList& own, const ClytCtrlValList& other, const CString& messageKey)
{
    evaluation.ownValues.CopyFrom(own);
    evaluation.otherValues.CopyFrom(other);
    evaluation.messageKey = messageKey;
}

int ClytControl::Evaluate()
{
    const CStringList& forbidden = evaluation.ownValues.GetValues();
    if (forbidden.IsEmpty())
        return 1;
    if (lytMeans<ClytValueWord::Null>(forbidden.GetHead()))
    {
        if (!GetValue().IsEmpty())
            return 1;
    }
    else
    {
        if (evaluation.ownValues.Contains(GetValue()) == 0)
            return 1;
        ClytControl* other = evaluation.otherValues.GetControl();
        if (other == nullptr)
            return 0;
        if (evaluation.otherValues.Contains(other->GetValue()) == 0)
            return 1;
    }
    SetControlFocus();
    return 0;
}

void ClytControl::ShowEvalMessage() const
{
    ClytException("MsgBox", evaluation.messageKey, CString(), CString()).ReportError();
}

int ClytControl::HasValueIn(const CStringList& values)
{
    if (values.IsEmpty())
        return 0;
    const CString value = GetValue();
    for (const CString& listed : values)
    {
        if (lytSameWord(listed, value))
            return 1;
    }
    return 0;
}

void ClytControl::Report(const char* number, const ClytPrefix& prefix, const CString& argument) const
{
    dialog->Report(*this, number, prefix, argument);
}

int ClytControl::TakeCommonOption(const CString& word)
{
    switch (lytMeaningOf<ClytOption>(word))
    {
    case ClytOption::Hidden: hidden = 1; return 1;
    case ClytOption::DisplayOnly: displayOnly = 1; return 1;
    case ClytOption::Invisible: invisible = 1; return 1;
    case ClytOption::Inactive: inactive = 1; return 1;
    case ClytOption::Other: break;
    }
    return 0;
}
