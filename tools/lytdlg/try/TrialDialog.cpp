#include "lytdlg/try/TrialDialog.h"

#include "environment/ClytEnvironment.h"

namespace lytdlg
{

TrialDialog::TrialDialog(const CString& descriptionFile, const CString& defines, TrialWatcher& dialogWatcher)
    : ClytDialog(descriptionFile, defines), m_file(descriptionFile.GetString()), m_watcher(dialogWatcher)
{
}

INT_PTR TrialDialog::DoModal()
{
    m_watcher.Opening(*this);
    const INT_PTR ending = ClytDialog::DoModal();
    m_watcher.Closed(*this, ending);
    return ending;
}

std::optional<CString> TrialDialog::ShowNested(const CString& description, const CString& input)
{
    return TrialDialog(lytEnvironment.GetDescriptionFile(description), lytEnvironment.GetDialogDefine(), m_watcher)
        .Ask(input);
}

void TrialDialog::Leave()
{
    m_isEnding = true;
    EndDialog(IDCANCEL);
}

void TrialDialog::ControlMade(const ClytControl& control, const ClytControlStatement& statement)
{
    m_types[&control] = statement.type.GetString();
    m_names[&control] = statement.name.GetString();
    m_lines[&control] = statement.span.line;
}

void TrialDialog::ShowFailure(CException& failure)
{
    m_watcher.Failed(*this, failure);
    ClytDialog::ShowFailure(failure);
}

} // namespace lytdlg
