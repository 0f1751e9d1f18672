/* The smallest resource library: the report asks it for its version. The buffer holds 400 bytes. */
#include <string.h>

__declspec(dllexport) void getLYTVersion(char* text)
{
    strcpy(text, "2.3 (rooms)");
}
