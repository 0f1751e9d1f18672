#include "tree/ClytWizardQueue.h"

CString ClytWizardQueue::Begin(const CString& result)
{
    static const CString listMark(lytListMark);
    const int mark = result.Find(listMark);
    const int rest = mark < 0 ? 0 : mark + listMark.GetLength();
    const int brace = result.Find(lytListBegin, rest);
    const int list = brace < 0 ? rest : brace + 1;

    queue = result.Mid(list);
    pending = true;
    return result.Left(list);
}

std::optional<CString> ClytWizardQueue::Deliver()
{
    const int mark = queue.Find(lytListSeparator);
    CString item = mark < 0 ? queue : queue.Left(mark + 1);
    queue = mark < 0 ? CString() : queue.Mid(mark + 1);
    pending = !queue.IsEmpty();
    if (mark >= 0 && !pending)
        return std::nullopt;
    return item;
}
