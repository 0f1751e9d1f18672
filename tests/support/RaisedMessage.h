// The message of the exception that an operation raises.
#pragma once

#include "environment/ClytException.h"

#include <string>

// "nothing was raised" when the operation comes to its end.
template <class Operation>
std::string RaisedMessage(Operation operation)
{
    try
    {
        operation();
    }
    catch (CException* e)
    {
        const std::string message = lytMessageOf(*e).GetString();
        e->Delete();
        return message;
    }
    return "nothing was raised";
}
