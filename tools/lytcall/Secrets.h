// Values that nobody else should see, as their names tell.
#pragma once

#include <string>

namespace lytcall
{

// The line of a report with REMOVED in place of each value whose name speaks of a key, a password, a licence, a serial
// number or an owner.
std::string WithoutSecrets(const std::string& line);

} // namespace lytcall
