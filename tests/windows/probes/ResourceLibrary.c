/* A resource library as the report asks it for its version. */
#include <string.h>

void getLYTVersion(char* text)
{
    strcpy(text, "4.5.6 (own)");
}

void getVersion(char* text)
{
    strcpy(text, "1.2.3 (plain)");
}

void getNothing(char* text)
{
    strcpy(text, "not asked for");
}

/* Writes all the room there is, without a NUL. */
void fillText(char* text)
{
    memset(text, 'x', 400);
}
