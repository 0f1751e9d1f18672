#include "model/ClytControlVal.h"

void ClytControlVal::Set(const CString& keyword, const CStringList& statementValues)
{
    secondName = keyword;
    if (&statementValues == &values)
        return;
    values.RemoveAll();
    for (POSITION place = statementValues.GetHeadPosition(); place != nullptr;)
        values.AddTail(statementValues.GetNext(place));
}
