#include "ProbeFixture.h"

#include <filesystem>

namespace fs = std::filesystem;

using ProgramKind = ProbeFixture;

TEST_F(ProgramKind, IsTheServerWithItsBitsWhenThatIsBesideTheLibrary)
{
    Install(folder.Path());
    EXPECT_EQ(lytProgramKind(), "LYT Front-End 64 bit");
    folder.Write("lytRfcSv.exe", "not a program");
    EXPECT_EQ(lytProgramKind(), "LYT Server");
    fs::copy_file(OwnFile(), folder.File("lytRfcSv.exe"), fs::copy_options::overwrite_existing);
    EXPECT_EQ(lytProgramKind(), "LYT Server 64 bit");
}
