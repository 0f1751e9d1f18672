#include "LibraryFile.h"

namespace
{

constexpr size_t headersSize = 512;
constexpr unsigned sectionAddress = 0x1000;
constexpr size_t tableSize = 40;

void Put(std::string& bytes, size_t place, size_t number, size_t size)
{
    for (size_t index = 0; index < size; ++index)
        bytes.at(place + index) = static_cast<char>(number >> (8 * index) & 0xFFU);
}

// The table, the addresses of the names, and the names.
std::string ExportSection(const std::vector<std::string>& functions)
{
    std::string section(tableSize + functions.size() * 4, '\0');
    Put(section, 24, functions.size(), 4);
    Put(section, 32, sectionAddress + tableSize, 4);
    for (size_t index = 0; index < functions.size(); ++index)
    {
        Put(section, tableSize + index * 4, sectionAddress + section.size(), 4);
        section += functions[index] + '\0';
    }
    return section;
}

} // namespace

std::string LibraryFile(const std::vector<std::string>& functions, unsigned machine)
{
    constexpr size_t peHeader = 64;
    constexpr size_t optionalHeader = peHeader + 24;
    constexpr size_t optionalSize = 240;
    constexpr size_t sectionHeader = optionalHeader + optionalSize;
    const std::string section = ExportSection(functions);
    std::string bytes(headersSize, '\0');
    bytes.replace(0, 2, "MZ");
    Put(bytes, 0x3C, peHeader, 4);
    bytes.replace(peHeader, 2, "PE");
    Put(bytes, peHeader + 4, machine, 2);
    Put(bytes, peHeader + 6, 1, 2); // sections
    Put(bytes, peHeader + 20, optionalSize, 2);
    Put(bytes, peHeader + 22, 0x2000, 2); // a library
    Put(bytes, optionalHeader, machine == machine64 ? 0x20B : 0x10B, 2);
    Put(bytes, optionalHeader + 112, sectionAddress, 4);
    Put(bytes, sectionHeader + 12, sectionAddress, 4);
    Put(bytes, sectionHeader + 16, section.size(), 4);
    Put(bytes, sectionHeader + 20, headersSize, 4);
    return bytes + section;
}
