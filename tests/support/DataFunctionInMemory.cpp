// Natively libraries are entries of a table, which knows the function from the start of the program.
#include "native/PartnerLibraries.h"
#include "support/DataFunction.h"

namespace
{

struct Registration
{
    Registration() { platform::AddFunction("unit-tests.exe", "FillText", DataFunction::Call); }
};

const Registration registration;

} // namespace
