// A text that no one can act on.
#pragma once

#include "Window.h"

namespace platform
{

class StaticWindow : public Window
{
public:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;
};

} // namespace platform
