// A real screen has the resolution that it has.
#include "lytdlg/draw/Snapshot.h"

#include <afxwin.h>

#include <stdexcept>
#include <string>

namespace lytdlg
{

Resolution::Resolution(int pixelsPerInch) : m_before(PixelsPerInch())
{
    if (pixelsPerInch != m_before)
        throw std::runtime_error("this screen has " + std::to_string(m_before) +
                                 " dots per inch; leave --dpi out, or draw on Linux, where both resolutions are there");
}

Resolution::~Resolution() = default;

int PixelsPerInch()
{
    return CClientDC(nullptr).GetDeviceCaps(LOGPIXELSX);
}

} // namespace lytdlg
