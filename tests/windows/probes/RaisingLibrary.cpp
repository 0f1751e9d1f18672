// A resource library that breaks off while it tells its version.
#include <stdexcept>

extern "C" void getLYTVersion(char* text)
{
    text[0] = '9';
    throw std::runtime_error("no version");
}
