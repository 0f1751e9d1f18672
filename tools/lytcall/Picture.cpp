#include "lytcall/ScriptRunner.h"

#include "commandline/WholeFile.h"

#include <cstdlib>
#include <cstring>

namespace lytcall
{

namespace
{

// A memory device context with a bitmap of 24 bits a pixel selected into it; rows end on a multiple of four bytes.
class Canvas
{
public:
    Canvas(int width, int height)
    {
        m_header.biSize = sizeof m_header;
        m_header.biWidth = width;
        m_header.biHeight = height;
        m_header.biPlanes = 1;
        m_header.biBitCount = 24;
        m_header.biSizeImage = static_cast<DWORD>((width * 3 + 3) / 4 * 4 * height);
        BITMAPINFO info = {};
        info.bmiHeader = m_header;
        m_bitmap = CreateDIBSection(m_dc, &info, DIB_RGB_COLORS, &m_pixels, nullptr, 0);
        m_old = SelectObject(m_dc, m_bitmap);
    }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;
    ~Canvas()
    {
        SelectObject(m_dc, m_old);
        DeleteObject(m_bitmap);
        DeleteDC(m_dc);
    }

    HDC Context() const { return m_dc; }
    const BITMAPINFOHEADER& Header() const { return m_header; }
    const void* Pixels() const { return m_pixels; }

private:
    HDC m_dc = CreateCompatibleDC(nullptr);
    BITMAPINFOHEADER m_header = {};
    void* m_pixels = nullptr;
    HBITMAP m_bitmap = nullptr;
    HGDIOBJ m_old = nullptr;
};

template <class T>
std::string BytesOf(const T& header)
{
    std::string bytes(sizeof header, '\0');
    std::memcpy(bytes.data(), &header, sizeof header);
    return bytes;
}

bool Write(const Canvas& canvas, const std::string& fileName)
{
    BITMAPFILEHEADER head = {};
    head.bfType = 0x4D42;
    head.bfOffBits = sizeof head + sizeof(BITMAPINFOHEADER);
    head.bfSize = head.bfOffBits + canvas.Header().biSizeImage;
    const std::string pixels(static_cast<const char*>(canvas.Pixels()), canvas.Header().biSizeImage);
    return commandline::WriteWholeFile(fileName, BytesOf(head) + BytesOf(canvas.Header()) + pixels);
}

} // namespace

bool SavePicture(HWND window, const std::string& fileName)
{
    RECT area = {};
    GetWindowRect(window, &area);
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    if (width <= 0 || height <= 0)
        return false;

    RedrawWindow(window, nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ALLCHILDREN | RDW_FRAME);
    const Canvas canvas(width, height);
    if (canvas.Pixels() == nullptr)
        return false;
    HDC source = GetWindowDC(window);
    const bool copied = BitBlt(canvas.Context(), 0, 0, width, height, source, 0, 0, SRCCOPY) != FALSE;
    ReleaseDC(window, source);
    GdiFlush();
    return copied && Write(canvas, fileName);
}

bool HasScreen()
{
    return std::getenv("LYT_UNSEEN") == nullptr;
}

} // namespace lytcall
