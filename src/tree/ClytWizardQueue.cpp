#include "tree/ClytWizardQueue.h"

CString ClytWizardQueue::Begin(const CString& result)
{
    static const CString listMark("/LIST");
    const int mark = result.Find(listMark);
    const int rest = mark < 0 ? 0 : mark + listMark.GetLength();
    const int brace = result.Find('{', rest);
    const int list = brace < 0 ? rest : brace + 1;

    m_queue = result.Mid(list);
    m_pending = true;
    return result.Left(list);
}

std::optional<CString> ClytWizardQueue::Deliver()
{
    const int mark = m_queue.Find('|');
    CString item = mark < 0 ? m_queue : m_queue.Left(mark + 1);
    m_queue = mark < 0 ? CString() : m_queue.Mid(mark + 1);
    m_pending = !m_queue.IsEmpty();
    if (mark >= 0 && !m_pending)
        return std::nullopt;
    return item;
}
