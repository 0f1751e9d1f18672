#include "StaticWindow.h"

namespace platform
{

LRESULT StaticWindow::Handle(UINT message, WPARAM wParam, LPARAM lParam)
{
    return message == WM_GETDLGCODE ? LRESULT{DLGC_STATIC} : Window::Handle(message, wParam, lParam);
}

} // namespace platform
