/* A caller in plain C: the header compiles. */
#include "lyt64.h"

#include "CallerInC.h"

int ReadDocNameFromC(const char* docName, char* buffer, int size)
{
    lytInitialiseEnvironment(docName, "", "");
    return lytGetCurrentDocName(buffer, size);
}
