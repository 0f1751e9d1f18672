#include "model/ClytControlVal.h"

void ClytControlVal::Set(const CString& word, const CStringList& statementValues, const ClytSpan& place)
{
    keyword = word;
    span = place;
    if (&statementValues == &values)
        return;
    values.RemoveAll();
    for (POSITION value = statementValues.GetHeadPosition(); value != nullptr;)
        values.AddTail(statementValues.GetNext(value));
}
