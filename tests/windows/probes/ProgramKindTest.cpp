#include "ProbeFixture.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace
{

class ProgramKind : public ProbeFixture
{
protected:
    ProgramKind() { Install(folder.Path()); }
};

} // namespace

TEST_F(ProgramKind, WithoutAServerIsTheFrontEnd)
{
    EXPECT_EQ(lytProgramKind(), "LYT Front-End 64 bit");
}

TEST_F(ProgramKind, WithAServerBesideTheLibraryIsTheServerWithItsBits)
{
    fs::copy_file(OwnFile(), folder.File("lytRfcSv.exe"));
    EXPECT_EQ(lytProgramKind(), "LYT Server 64 bit");
}

TEST_F(ProgramKind, WithAServerFileThatIsNoProgramTellsNoBits)
{
    folder.Write("lytRfcSv.exe", "not a program");
    EXPECT_EQ(lytProgramKind(), "LYT Server");
}
