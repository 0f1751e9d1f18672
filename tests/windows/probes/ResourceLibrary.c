/* A resource library as the report asks it for its version. */
#include <stdio.h>
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

/* Reads the buffer as the text that it is. */
void measureText(char* text)
{
    sprintf(text, "%u characters", (unsigned)strlen(text));
}

/* Writes all the room there is, without a NUL. */
void fillText(char* text)
{
    memset(text, 'x', 400);
}
