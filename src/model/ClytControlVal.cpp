#include "model/ClytControlVal.h"

#include "base/Iteration.h"

void ClytControlVal::Set(const CString& word, const CStringList& statementValues, const ClytSpan& place)
{
    keyword = word;
    span = place;
    if (&statementValues == &values)
        return;
    values.RemoveAll();
    for (const CString& value : statementValues)
        values.AddTail(value);
}
