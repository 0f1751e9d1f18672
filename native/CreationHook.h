// What the hook of a test says to a window before it is created.
#pragma once

#include <windows.h>

namespace platform
{

bool IsCreationRefused(CREATESTRUCTA create);

} // namespace platform
