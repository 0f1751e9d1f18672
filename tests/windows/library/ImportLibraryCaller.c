/* A program that is linked with the import library for linkers other than mingw's. */
#include "CallerInC.h"

#include <string.h>

int main(void)
{
    char buffer[10] = "";
    const int isFound = ReadDocNameFromC("doc", buffer, sizeof buffer) == 1;
    return isFound && strcmp(buffer, "doc") == 0 ? 0 : 1;
}
