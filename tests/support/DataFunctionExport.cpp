// On Windows the program is its own data library.
#include "support/DataFunction.h"

#include "lytdata.h"

extern "C" __declspec(dllexport) lytDataText FillText;

int FillText(const char* parameter, char* text, int size)
{
    return DataFunction::Call(parameter, text, size);
}
