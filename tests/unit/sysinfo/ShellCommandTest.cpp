#include "sysinfo/files/ShellCommand.h"

#include <gtest/gtest.h>

#include <string>

namespace
{

std::string Line(const ShellCommandFacts& facts)
{
    const std::optional<CString> line = ShellCommandLine("printto", facts);
    return line ? line->GetString() : "none";
}

} // namespace

TEST(ShellCommand, OfAnExtensionThatIsNotRegistered)
{
    EXPECT_EQ(Line({}), "Extension .pdf is not registered");
}

TEST(ShellCommand, OfAnExtensionWithoutATypeIsLeftOut)
{
    EXPECT_EQ(Line({true, {}, false, {}}), "none");
}

TEST(ShellCommand, OfATypeWithoutTheVerb)
{
    EXPECT_EQ(Line({true, "Reader.Document", false, {}}), "Shell command <printto> not available for extension <.pdf>");
}

TEST(ShellCommand, ThatCannotBeReadIsLeftOut)
{
    EXPECT_EQ(Line({true, "Reader.Document", true, {}}), "none");
}

TEST(ShellCommand, IsShownWithItsVerb)
{
    EXPECT_EQ(Line({true, "Reader.Document", true, "\"C:\\reader.exe\" /t \"%1\""}),
              "Shell command <printto> for <.pdf> files executes: <\"C:\\reader.exe\" /t \"%1\">");
    EXPECT_EQ(Line({true, "Reader.Document", true, ""}), "Shell command <printto> for <.pdf> files executes: <>");
}
