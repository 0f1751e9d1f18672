#include "base/ClytPartnerFunction.h"

#include "system/GuardedCall.h"

#include <stdexcept>

// An exception may use its library's code: it ends here, while the library is certainly loaded.
void ClytPartnerCall::Run(void (*run)(void* step), void* step) const
{
    try
    {
        RunGuarded(run, step);
    }
    catch (CException*)
    {
        throw;
    }
    catch (const std::exception& e)
    {
        Fail(e.what());
    }
    catch (...)
    {
        Fail("an unknown exception");
    }
}

void ClytPartnerCall::Fail(const char* reason) const
{
    CString message;
    message.Format("The library '%s' failed in its function '%s': %s", library.GetString(), name.GetString(), reason);
    throw std::runtime_error(message.GetString());
}
