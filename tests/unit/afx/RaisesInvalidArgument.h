#pragma once

#include <afx.h>

// Whether a function raises the exception for an argument that is not valid.
template <class Function>
bool RaisesInvalidArgument(Function function)
{
    try
    {
        function();
        return false;
    }
    catch (CInvalidArgException* e)
    {
        e->Delete();
        return true;
    }
}
