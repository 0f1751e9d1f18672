/* A program that is linked with the import library for linkers other than mingw's, and finds every function. */
#include "CallerInC.h"

#include <string.h>

int main(void)
{
    char buffer[10] = "";
    const int isFound = CountFunctionsSeenFromC() == 21 && ReadDocNameFromC("doc", buffer, sizeof buffer) == 1;
    return isFound && strcmp(buffer, "doc") == 0 ? 0 : 1;
}
