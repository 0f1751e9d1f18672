// An operation that may fail as the library fails.
#pragma once

#include <afx.h>

// Any exception of the class library's kind is a good end; its message is put into words.
template <class Operation>
void Attempt(Operation operation)
{
    try
    {
        operation();
    }
    catch (CException* e)
    {
        char text[256] = "";
        e->GetErrorMessage(text, sizeof text);
        e->Delete();
    }
}
