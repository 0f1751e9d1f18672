// Windows in memory are on a screen of either resolution.
#include "lytdlg/draw/Snapshot.h"

#include "native/MemoryWindows.h"

#include <afxwin.h>

namespace lytdlg
{

Resolution::Resolution(int pixelsPerInch) : m_before(PixelsPerInch())
{
    platform::SetPixelsPerInch(pixelsPerInch);
}

Resolution::~Resolution()
{
    platform::SetPixelsPerInch(m_before);
}

int PixelsPerInch()
{
    return CClientDC(nullptr).GetDeviceCaps(LOGPIXELSX);
}

} // namespace lytdlg
