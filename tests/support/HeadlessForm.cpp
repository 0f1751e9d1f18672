#include "support/HeadlessForm.h"

#include "base/Counted.h"
#include "environment/ProcessState.h"

#include <algorithm>

HeadlessForm::HeadlessForm(const CString& descriptionFile, const CString& defines)
    : ClytDialogRules(descriptionFile, defines)
{
}

bool HeadlessForm::Open()
{
    try
    {
        ReadDescription();
        return true;
    }
    catch (CException* e)
    {
        e->ReportError();
        e->Delete();
        return false;
    }
}

void HeadlessForm::Command()
{
    if (MayRunRules())
    {
        const Counted run(openRuns);
        ++runCount;
        deepestRun = std::max(deepestRun, openRuns);
        RunDependencies();
    }
    lytCommandSeen = 1;
}

void HeadlessForm::MoveFocusTo(const CString& controlName)
{
    if (focus == controlName)
        return;
    focus = controlName;
    Command();
}

bool HeadlessForm::Enter(const CString& controlName, const CString& input)
{
    HeadlessControl* control = Control(controlName);
    if (control != nullptr)
        control->Enter(input);
    return control != nullptr;
}

std::string HeadlessForm::Value(const CString& name) const
{
    ClytControl* control = FindControl(name);
    return control != nullptr ? control->GetValue().GetString() : "?";
}

bool HeadlessForm::IsEnabled(const CString& name) const
{
    const HeadlessControl* control = Control(name);
    return control != nullptr && control->isEnabled;
}

bool HeadlessForm::IsShown(const CString& name) const
{
    const HeadlessControl* control = Control(name);
    return control != nullptr && control->isShown;
}

std::string HeadlessForm::DefaultButtonFor(const CString& name) const
{
    const ClytControlDep* rule = FindDefaultButtonRule(name);
    return rule != nullptr ? rule->controlName.GetString() : "";
}

void HeadlessForm::SizeWindow(int windowWidth, int windowHeight, const CString& windowCaption)
{
    width = windowWidth;
    height = windowHeight;
    caption = windowCaption;
}

std::unique_ptr<ClytControl> HeadlessForm::MakeControl(const CString& type, const CString& name, ClytPosition position,
                                                       ClytSize size, const CString& label)
{
    return MakeHeadlessControl(*this, openGroup, type, name, position, size, label);
}
