#include "support/DataFunction.h"

#include <cstdio>
#include <utility>

namespace
{

DataFunction::Answer current;

}

DataFunction::DataFunction(Answer answer)
{
    current = std::move(answer);
}

DataFunction::~DataFunction()
{
    current = nullptr;
}

int DataFunction::Call(const char* parameter, char* text, int size)
{
    if (current)
        std::snprintf(text, static_cast<size_t>(size), "%s", current(parameter).GetString());
    return 1;
}
