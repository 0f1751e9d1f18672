// lytcall as a file: it is handed out with the library.
#include "BuiltFile.h"

#include <gtest/gtest.h>

TEST(ToolFile, IsSmallAndCarriesNoSymbols)
{
    const std::string file = ReadBuiltFile("lytcall.exe");
    ASSERT_GT(file.size(), sizeof(IMAGE_DOS_HEADER));
    EXPECT_LT(file.size(), 1000000U);
    const auto* dos = reinterpret_cast<const IMAGE_DOS_HEADER*>(file.data());
    ASSERT_GT(file.size(), static_cast<size_t>(dos->e_lfanew) + sizeof(IMAGE_NT_HEADERS64));
    const auto* headers = reinterpret_cast<const IMAGE_NT_HEADERS64*>(file.data() + dos->e_lfanew);
    EXPECT_EQ(headers->FileHeader.PointerToSymbolTable, 0U);
    EXPECT_EQ(headers->FileHeader.NumberOfSymbols, 0U);
}
