#include "LibraryFile.h"

#include <iterator>

namespace
{

constexpr size_t headersSize = 512;
constexpr unsigned sectionAddress = 0x1000;
constexpr size_t tableSize = 40;
constexpr size_t importSize = 20;

void Put(std::string& bytes, size_t place, size_t number, size_t size)
{
    for (size_t index = 0; index < size; ++index)
        bytes.at(place + index) = static_cast<char>(number >> (8 * index) & 0xFFU);
}

// The table, the addresses of the functions and of the names, the numbers of the functions, and the names.
std::string ExportSection(const std::vector<std::string>& functions)
{
    const size_t count = functions.size();
    const size_t names = tableSize + count * 4;
    const size_t numbers = names + count * 4;
    std::string section(numbers + count * 2, '\0');
    const size_t fields[] = {
        1, count, count, sectionAddress + tableSize, sectionAddress + names, sectionAddress + numbers};
    for (size_t index = 0; index < std::size(fields); ++index)
        Put(section, 16 + index * 4, fields[index], 4);
    for (size_t index = 0; index < count; ++index)
    {
        Put(section, tableSize + index * 4, sectionAddress + 0x8000, 4);
        Put(section, names + index * 4, sectionAddress + section.size(), 4);
        Put(section, numbers + index * 2, index, 2);
        section += functions[index] + '\0';
    }
    return section;
}

// An entry for each library, from which the first function is taken by its number, and an empty one; then for each two
// numbers and the name. Gives where they begin.
size_t AddImports(std::string& section, const std::vector<std::string>& needed)
{
    constexpr size_t firstFunction = 0x8000000000000001;
    const size_t start = section.size();
    section.append((needed.size() + 1) * importSize, '\0');
    for (size_t index = 0; index < needed.size(); ++index)
    {
        const size_t entry = start + index * importSize;
        Put(section, entry, sectionAddress + section.size(), 4);
        Put(section, entry + 16, sectionAddress + section.size(), 4);
        section.append(16, '\0');
        Put(section, section.size() - 16, firstFunction, 8);
        Put(section, entry + 12, sectionAddress + section.size(), 4);
        section += needed[index] + '\0';
    }
    return start;
}

} // namespace

std::string LibraryFile(const std::vector<std::string>& functions, unsigned machine,
                        const std::vector<std::string>& needed)
{
    constexpr size_t peHeader = 64;
    constexpr size_t optionalHeader = peHeader + 24;
    constexpr size_t optionalSize = 240;
    constexpr size_t sectionHeader = optionalHeader + optionalSize;
    std::string section = ExportSection(functions);
    const size_t imports = AddImports(section, needed);
    section.append(headersSize - section.size() % headersSize, '\0');
    const struct
    {
        size_t place;
        size_t number;
        size_t size;
    } fields[] = {
        {0x3C, peHeader, 4},
        {peHeader + 4, machine, 2},
        {peHeader + 6, 1, 2}, // sections
        {peHeader + 20, optionalSize, 2},
        {peHeader + 22, 0x2022, 2}, // a library, which may be loaded anywhere
        {optionalHeader, machine == machine64 ? 0x20BU : 0x10BU, 2},
        {optionalHeader + 24, 0x180000000, 8}, // where it would like to be
        {optionalHeader + 32, sectionAddress, 4},
        {optionalHeader + 36, headersSize, 4},
        {optionalHeader + 40, 6, 2}, // the system and the subsystem that it is for
        {optionalHeader + 48, 6, 2},
        {optionalHeader + 56, sectionAddress + 0x10000, 4},
        {optionalHeader + 60, headersSize, 4},
        {optionalHeader + 68, 2, 2},
        {optionalHeader + 70, 0x0100, 2},
        {optionalHeader + 108, 16, 4}, // tables
        {optionalHeader + 112, sectionAddress, 4},
        {optionalHeader + 116, tableSize, 4},
        {optionalHeader + 120, needed.empty() ? 0 : sectionAddress + imports, 4},
        {optionalHeader + 124, needed.empty() ? 0 : (needed.size() + 1) * importSize, 4},
        {sectionHeader + 8, 0x10000, 4},
        {sectionHeader + 12, sectionAddress, 4},
        {sectionHeader + 16, section.size(), 4},
        {sectionHeader + 20, headersSize, 4},
        {sectionHeader + 36, 0xC0000040, 4}, // data
    };
    std::string bytes(headersSize, '\0');
    bytes.replace(0, 2, "MZ");
    bytes.replace(peHeader, 2, "PE");
    for (const auto& field : fields)
        Put(bytes, field.place, field.number, field.size);
    return bytes + section;
}
