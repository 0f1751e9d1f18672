#include "lytdlg/draw/Png.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <stdexcept>

namespace lytdlg
{

namespace
{

constexpr size_t headSize = 54;
constexpr size_t bytesPerPixel = 3;

uint32_t NumberAt(const std::string& bytes, size_t place)
{
    uint32_t number = 0;
    for (size_t index = 4; index-- > 0;)
        number = number << 8U | static_cast<unsigned char>(bytes[place + index]);
    return number;
}

// The highest byte first, as a PNG file has its numbers.
std::string Big(uint32_t number)
{
    std::string bytes;
    for (unsigned shift = 32; shift > 0;)
        bytes += static_cast<char>(number >> (shift -= 8U) & 0xFFU);
    return bytes;
}

uint32_t Crc(const std::string& bytes)
{
    uint32_t crc = 0xFFFFFFFFU;
    for (const char byte : bytes)
    {
        crc ^= static_cast<unsigned char>(byte);
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1U) != 0 ? crc >> 1U ^ 0xEDB88320U : crc >> 1U;
    }
    return ~crc;
}

uint32_t Adler(const std::string& bytes)
{
    constexpr uint32_t modulus = 65521;
    uint32_t low = 1;
    uint32_t high = 0;
    for (const char byte : bytes)
    {
        low = (low + static_cast<unsigned char>(byte)) % modulus;
        high = (high + low) % modulus;
    }
    return high << 16U | low;
}

std::string Chunk(const std::string& type, const std::string& content)
{
    return Big(static_cast<uint32_t>(content.size())) + type + content + Big(Crc(type + content));
}

// A stream of blocks that are stored as they are.
std::string Stored(const std::string& bytes)
{
    constexpr size_t longest = 0xFFFF;
    std::string stream = "\x78\x01";
    for (size_t place = 0; place == 0 || place < bytes.size(); place += longest)
    {
        const size_t length = std::min(longest, bytes.size() - place);
        stream += place + length == bytes.size() ? '\1' : '\0';
        for (const size_t number : {length, ~length})
            (stream += static_cast<char>(number & 0xFFU)) += static_cast<char>(number >> 8U & 0xFFU);
        stream.append(bytes, place, length);
    }
    return stream + Big(Adler(bytes));
}

} // namespace

std::string PngOfBitmap(const std::string& bitmap)
{
    if (bitmap.size() < headSize || !bitmap.starts_with("BM") || bitmap[28] != 24)
        throw std::runtime_error("the picture is no bitmap with 24 bits a pixel");
    const size_t width = NumberAt(bitmap, 18);
    const size_t height = NumberAt(bitmap, 22);
    const size_t rowLength = (width * bytesPerPixel + 3) / 4 * 4;
    if (bitmap.size() - headSize < rowLength * height)
        throw std::runtime_error("the picture is cut short");

    // The rows of a bitmap stand from bottom to top, blue first; those here begin with the number of their filter.
    std::string rows;
    for (size_t row = height; row-- > 0;)
    {
        rows += '\0';
        for (size_t x = 0; x < width; ++x)
        {
            const size_t pixel = headSize + row * rowLength + x * bytesPerPixel;
            rows += {bitmap[pixel + 2], bitmap[pixel + 1], bitmap[pixel]};
        }
    }
    const std::string header =
        Big(static_cast<uint32_t>(width)) + Big(static_cast<uint32_t>(height)) + std::string("\x08\x02\0\0\0", 5);
    return "\x89PNG\r\n\x1A\n" + Chunk("IHDR", header) + Chunk("IDAT", Stored(rows)) + Chunk("IEND", "");
}

} // namespace lytdlg
