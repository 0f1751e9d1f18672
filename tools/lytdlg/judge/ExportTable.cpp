#include "lytdlg/judge/ExportTable.h"

#include <algorithm>
#include <cstdint>
#include <optional>

namespace lytdlg
{

namespace
{

constexpr size_t peOffsetAt = 0x3C;
constexpr size_t fileHeaderSize = 24; // with the signature before it
constexpr size_t sectionHeaderSize = 40;
constexpr uint32_t machine64 = 0x8664;
constexpr uint32_t machine32 = 0x14C;
constexpr uint32_t magic64 = 0x20B;
constexpr uint32_t libraryFlag = 0x2000;
constexpr size_t importEntrySize = 20;
// What no library that is meant to be called by name goes beyond; a table may claim anything.
constexpr uint32_t mostNames = 65536;
constexpr size_t mostImports = 1024;
constexpr size_t longestName = 255;

// Numbers of a file, the lower byte first. A place beyond the end gives nothing.
class Bytes
{
public:
    explicit Bytes(std::string_view bytes) : m_bytes(bytes) {}

    std::optional<uint32_t> Number(size_t place, size_t size) const
    {
        if (place > m_bytes.size() || m_bytes.size() - place < size)
            return {};
        uint32_t number = 0;
        for (size_t index = size; index-- > 0;)
            number = number << 8U | static_cast<unsigned char>(m_bytes[place + index]);
        return number;
    }
    // Zero beyond the end, where that says enough.
    uint32_t Short(size_t place) const { return Number(place, 2).value_or(0); }
    uint32_t Long(size_t place) const { return Number(place, 4).value_or(0); }

    size_t Size() const { return m_bytes.size(); }
    bool Has(size_t place, std::string_view text) const
    {
        return place <= m_bytes.size() && m_bytes.substr(place).starts_with(text);
    }
    // Up to a NUL; empty when none comes soon.
    std::string Name(size_t place) const
    {
        if (place >= m_bytes.size())
            return "";
        const std::string_view text = m_bytes.substr(place, longestName + 1);
        const size_t end = text.find('\0');
        return end != std::string_view::npos ? std::string(text.substr(0, end)) : "";
    }

private:
    std::string_view m_bytes;
};

class Image
{
public:
    explicit Image(std::string_view bytes) : m_bytes(bytes), m_header(m_bytes.Long(peOffsetAt)) {}

    LibraryForm Form() const
    {
        if (!IsImage() || (m_bytes.Short(m_header + 22) & libraryFlag) == 0 || IsCut())
            return LibraryForm::NoLibrary;
        return Bits() == 64 ? LibraryForm::Library : LibraryForm::OtherBits;
    }

    int Bits() const
    {
        if (!IsImage())
            return 0;
        const uint32_t machine = m_bytes.Short(m_header + 4);
        if (machine == machine64 && m_bytes.Short(Optional()) == magic64)
            return 64;
        return machine == machine32 ? 32 : 0;
    }

    std::vector<std::string> Names() const
    {
        std::vector<std::string> names;
        const std::optional<size_t> table = PlaceOf(m_bytes.Long(Optional() + 112));
        if (!table)
            return names;
        const uint32_t count = std::min(m_bytes.Long(*table + 24), mostNames);
        const std::optional<size_t> list = PlaceOf(m_bytes.Long(*table + 32));
        for (uint32_t index = 0; list && index < count; ++index)
        {
            const std::optional<uint32_t> address = m_bytes.Number(*list + size_t{index} * 4, 4);
            if (!address)
                break;
            const std::optional<size_t> place = PlaceOf(*address);
            const std::string name = place ? m_bytes.Name(*place) : "";
            if (!name.empty())
                names.push_back(name);
        }
        return names;
    }

    std::vector<std::string> Needed() const
    {
        std::vector<std::string> needed;
        const std::optional<size_t> table = PlaceOf(m_bytes.Long(Optional() + 120));
        for (size_t index = 0; table && index < mostImports; ++index)
        {
            const std::optional<size_t> place = PlaceOf(m_bytes.Long(*table + index * importEntrySize + 12));
            if (!place)
                break;
            needed.push_back(m_bytes.Name(*place));
        }
        return needed;
    }

private:
    bool IsImage() const { return m_bytes.Has(0, "MZ") && m_bytes.Has(m_header, std::string_view("PE\0\0", 4)); }
    size_t Optional() const { return m_header + fileHeaderSize; }

    uint32_t CountOfSections() const { return m_bytes.Short(m_header + 6); }
    size_t SectionHeader(uint32_t index) const
    {
        return Optional() + m_bytes.Short(m_header + 20) + index * sectionHeaderSize;
    }

    // A file whose copying broke off lacks the ends of its sections.
    bool IsCut() const
    {
        for (uint32_t index = 0; index < CountOfSections(); ++index)
        {
            const size_t header = SectionHeader(index);
            if (size_t{m_bytes.Long(header + 16)} + m_bytes.Long(header + 20) > m_bytes.Size())
                return true;
        }
        return m_bytes.Size() < SectionHeader(CountOfSections());
    }

    // Where an address of the loaded library is in the file.
    std::optional<size_t> PlaceOf(uint32_t address) const
    {
        for (uint32_t index = 0; address != 0 && index < CountOfSections(); ++index)
        {
            const size_t header = SectionHeader(index);
            const uint32_t start = m_bytes.Long(header + 12);
            const uint32_t size = m_bytes.Long(header + 16);
            if (address >= start && address - start < size)
                return size_t{m_bytes.Long(header + 20)} + (address - start);
        }
        return {};
    }

    Bytes m_bytes;
    size_t m_header;
};

} // namespace

ExportTable ReadExports(std::string_view bytes)
{
    const Image image(bytes);
    const LibraryForm form = image.Form();
    if (form != LibraryForm::Library)
        return {form, {}, {}};
    return {form, image.Names(), image.Needed()};
}

int BitsOf(std::string_view bytes)
{
    return Image(bytes).Bits();
}

} // namespace lytdlg
