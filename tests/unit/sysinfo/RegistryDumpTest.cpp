#include "sysinfo/frame/RegistryDump.h"

#include <gtest/gtest.h>

namespace
{

using namespace std::string_literals;

std::string Line(const char* key, const RegistryValue& value)
{
    return ValueLine(key, value).GetString();
}

// What stands after the head of a value of that type.
std::string Worded(unsigned type, const std::string& data)
{
    const std::string line = Line("key", {"v", type, data});
    const std::string head = "  key/v" + std::string(40, ' ') + " : ";
    EXPECT_EQ(line.substr(0, head.size()), head);
    return line.substr(head.size());
}

} // namespace

TEST(RegistryDump, OfAMissingKeySaysSo)
{
    EXPECT_EQ(MissingKeyLine("SOFTWARE\\none").GetString(),
              "  SOFTWARE\\none" + std::string(32, ' ') + " :  Key does not exist");
}

TEST(RegistryDump, OfAKeyWithoutValuesIsItsName)
{
    EXPECT_EQ(EmptyKeyLine("SOFTWARE\\empty"), "  SOFTWARE\\empty");
}

TEST(RegistryDump, HeadsTheDefaultValueWithTheKeyAlone)
{
    EXPECT_EQ(Line("LYTDOCUMENT", {"", 1, "text\0"s}), "  LYTDOCUMENT" + std::string(34, ' ') + " : text");
}

TEST(RegistryDump, HeadsANamedValueWithKeyAndName)
{
    EXPECT_EQ(Line("LYTDOCUMENT", {"name", 1, "text"}), "  LYTDOCUMENT/name" + std::string(29, ' ') + " : text");
    EXPECT_EQ(Line(std::string(44, 'k').c_str(), {"name", 1, "text"}), "  " + std::string(44, 'k') + "/name : text");
}

TEST(RegistryDump, ShowsTextsUpToTheirEnd)
{
    EXPECT_EQ(Worded(1, "text\0"s), "text");
    EXPECT_EQ(Worded(1, "no end"), "no end");
    EXPECT_EQ(Worded(1, "a\0b\0"s), "a");
    EXPECT_EQ(Worded(1, ""), "");
    EXPECT_EQ(Worded(2, "%PATH%\0"s), "%PATH%");
    EXPECT_EQ(Worded(2, "100%s %n"), "100%s %n");
}

TEST(RegistryDump, ShowsBinaryDataByteForByte)
{
    EXPECT_EQ(Worded(3, "\x00\x0F\xA0\xFF"s), "00 0F A0 FF ");
    EXPECT_EQ(Worded(3, ""), "");
}

TEST(RegistryDump, ShowsNumbersUnsignedAndFillsShortOnesWithZeros)
{
    EXPECT_EQ(Worded(4, "\x01\x02\x00\x00"s), "513");
    EXPECT_EQ(Worded(4, "\xFF\xFF\xFF\xFF"s), "4294967295");
    EXPECT_EQ(Worded(4, "\xFF"s), "255");
    EXPECT_EQ(Worded(4, "\x01\x02\x00\x00\x09"s), "513");
    EXPECT_EQ(Worded(4, ""), "0");
}

TEST(RegistryDump, CallsSomeTypesUnsupported)
{
    for (const unsigned type : {0U, 5U, 6U, 7U, 8U})
        EXPECT_EQ(Worded(type, "data"), "unsupported type");
}

TEST(RegistryDump, EndsALineOfAnUnknownTypeAfterTheHead)
{
    for (const unsigned type : {9U, 10U, 12U, 4294967295U})
        EXPECT_EQ(Worded(type, "data"), "");
}

TEST(RegistryDump, EndsALineOfALargeNumberAfterTheHead)
{
    EXPECT_EQ(Worded(11, "\x01\x00\x00\x00\x00\x00\x00\x00"s), "");
}
