// What the log and the dump of registry keys cost beyond the platform's own calls.
#include "Measurements.h"

int main()
{
    MeasureLog();
    MeasureRegistryDump();
    return 0;
}
