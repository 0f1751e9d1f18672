// Windows in memory have no pixels: their picture shows where the window and its visible children are, a frame for each.
#include "commandline/WholeFile.h"
#include "lytcall/ScriptRunner.h"

#include "robot/WindowRobot.h"

#include <cstdint>
#include <vector>

namespace lytcall
{

namespace
{

constexpr int bytesPerPixel = 3;

// White, with black frames; rows from bottom to top, each a multiple of four bytes long.
class Canvas
{
public:
    explicit Canvas(const RECT& area) : m_area(area), m_pixels(RowLength() * static_cast<size_t>(Height()), 0xFF) {}

    int Width() const { return m_area.right - m_area.left; }
    int Height() const { return m_area.bottom - m_area.top; }
    const std::vector<uint8_t>& Pixels() const { return m_pixels; }

    // What is outside is left out.
    void DrawFrame(const RECT& place)
    {
        for (int x = place.left; x < place.right; ++x)
        {
            Blacken(x, place.top);
            Blacken(x, place.bottom - 1);
        }
        for (int y = place.top; y < place.bottom; ++y)
        {
            Blacken(place.left, y);
            Blacken(place.right - 1, y);
        }
    }

private:
    size_t RowLength() const { return (static_cast<size_t>(Width()) * bytesPerPixel + 3) / 4 * 4; }
    void Blacken(int x, int y)
    {
        if (x < m_area.left || x >= m_area.right || y < m_area.top || y >= m_area.bottom)
            return;
        const size_t begin = static_cast<size_t>(m_area.bottom - 1 - y) * RowLength() +
                             static_cast<size_t>(x - m_area.left) * bytesPerPixel;
        for (size_t index = begin; index < begin + bytesPerPixel; ++index)
            m_pixels[index] = 0;
    }

    RECT m_area;
    std::vector<uint8_t> m_pixels;
};

void Append(std::vector<uint8_t>& bytes, size_t number, int size)
{
    for (; size > 0; --size, number >>= 8U)
        bytes.push_back(static_cast<uint8_t>(number & 0xFFU));
}

// The two headers of a bitmap file with 24 bits a pixel.
std::vector<uint8_t> HeadersOf(const Canvas& canvas)
{
    constexpr size_t infoSize = 40;
    constexpr size_t headSize = 14 + infoSize;
    std::vector<uint8_t> bytes = {'B', 'M'};
    Append(bytes, headSize + canvas.Pixels().size(), 4);
    Append(bytes, 0, 4);
    Append(bytes, headSize, 4);
    Append(bytes, infoSize, 4);
    Append(bytes, static_cast<size_t>(canvas.Width()), 4);
    Append(bytes, static_cast<size_t>(canvas.Height()), 4);
    Append(bytes, 1, 2);
    Append(bytes, size_t{8} * bytesPerPixel, 2);
    bytes.resize(headSize);
    return bytes;
}

RECT PlaceOf(HWND window)
{
    RECT place = {};
    GetWindowRect(window, &place);
    return place;
}

} // namespace

bool SavePicture(HWND window, const std::string& fileName)
{
    const RECT area = PlaceOf(window);
    if (area.right <= area.left || area.bottom <= area.top)
        return false;
    Canvas canvas(area);
    canvas.DrawFrame(area);
    for (HWND child : robot::ChildrenOf(window))
    {
        if (IsWindowVisible(child))
            canvas.DrawFrame(PlaceOf(child));
    }
    std::vector<uint8_t> bytes = HeadersOf(canvas);
    bytes.insert(bytes.end(), canvas.Pixels().begin(), canvas.Pixels().end());
    return commandline::WriteWholeFile(fileName, {bytes.begin(), bytes.end()});
}

bool HasScreen()
{
    return false;
}

} // namespace lytcall
