// Names that the platform, which counts them in 16 bits, takes for the file with whose name they begin.
#include "ProbeFixture.h"

#include "base/PartnerLibrary.h"
#include "sysinfo/frame/ProgramKind.h"

namespace
{

std::string Lengthened(const std::string& name)
{
    return name + std::string(65'536, 'x');
}

using FileNameTooLong = ProbeFixture;

} // namespace

TEST_F(FileNameTooLong, IsNoProgram)
{
    ASSERT_TRUE(BinaryKindOf(OwnFile().c_str()));
    EXPECT_FALSE(BinaryKindOf(Lengthened(OwnFile()).c_str()));
}

TEST_F(FileNameTooLong, IsNoLibrary)
{
    ASSERT_NE(lytLoadLibrary("kernel32.dll"), nullptr);
    EXPECT_EQ(lytLoadLibrary(Lengthened("kernel32.dll").c_str()), nullptr);
}
