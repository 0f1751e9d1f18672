/* The header serves data sources in C as well as in C++: it must compile by itself as C. */
#include <lytsrc.h>

int lytTreeRecordSizeInC(void);

int lytTreeRecordSizeInC(void)
{
    return (int)sizeof(lytTreeRecord);
}
