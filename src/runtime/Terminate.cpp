// The runtime's handler for an exception that nobody catches writes its type's name to a console that no host has, and
// includes a demangler of 45 KB for it. This one takes its place.
//
// Without it the library is that much larger: leave this source out of the target and look at the size of the file.
#include <cstdlib>

namespace __gnu_cxx // NOLINT(bugprone-reserved-identifier): the runtime's name
{

void __verbose_terminate_handler(); // NOLINT(bugprone-reserved-identifier): as above

void __verbose_terminate_handler() // NOLINT(bugprone-reserved-identifier): as above
{
    std::abort();
}

} // namespace __gnu_cxx
