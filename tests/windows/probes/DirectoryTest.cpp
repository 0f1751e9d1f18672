// Access to a directory, and where the system is installed.
#include "ProbeFixture.h"

#include <filesystem>

namespace fs = std::filesystem;

namespace
{

class DirectoryAccess : public ProbeFixture
{
protected:
    static Texts Lines(const std::string& directory)
    {
        TakeLines();
        lytCheckDirectory(directory.c_str());
        return TakeLines();
    }
};

class InstallDirectory : public ProbeFixture
{
protected:
    static std::string Current() { return fs::current_path().string() + "\\"; }
};

} // namespace

TEST_F(DirectoryAccess, SaysThatADirectoryIsMissing)
{
    const std::string missing = folder.Path() + "\\none";
    EXPECT_EQ(Lines(missing), (Texts{"Directory '" + missing + "' does not exist!"}));
}

TEST_F(DirectoryAccess, SaysThatADirectoryIsMissingWhoseNameIsLongerThanThePlatformTakes)
{
    // Of this name the platform would take the beginning, which is there.
    const std::string name = folder.Path() + std::string(32'768, 'x');
    EXPECT_EQ(Lines(name), (Texts{"Directory '" + name + "' does not exist!"}));
}

TEST_F(DirectoryAccess, SaysThatItCannotBeWritten)
{
    const std::string path = folder.Write("shut", "");
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(Lines(path), (Texts{"Directory '" + path + "' does not have read / write access!"}));
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
}

TEST_F(DirectoryAccess, ListsTheFilesOfADirectoryThatCanBeUsed)
{
    folder.Write("a.txt", "1");
    folder.Write("sub/b.txt", "1");
    const Texts lines = Lines(folder.Path());
    ASSERT_EQ(lines.size(), 1U);
    EXPECT_NE(lines[0].find("\\a.txt"), std::string::npos);
}

TEST_F(InstallDirectory, IsTheRegisteredOneWithItsSeparator)
{
    Install("C:\\lyt");
    EXPECT_EQ(lytInstallDirectory(), "C:\\lyt\\");
    Install("C:\\lyt\\");
    EXPECT_EQ(lytInstallDirectory(), "C:\\lyt\\");
}

TEST_F(InstallDirectory, IsTheCurrentOneWithoutAKeyOrItsValue)
{
    EXPECT_EQ(lytInstallDirectory(), Current().c_str());
    registry.AddKey(HKEY_CLASSES_ROOT, "LYTDOCUMENT\\InstallDir");
    EXPECT_EQ(lytInstallDirectory(), Current().c_str());
}

TEST_F(InstallDirectory, OfMoreThan260BytesIsTheCurrentOne)
{
    Install(std::string(259, 'x'));
    EXPECT_EQ(lytInstallDirectory(), (std::string(259, 'x') + "\\").c_str());
    Install(std::string(260, 'x'));
    EXPECT_EQ(lytInstallDirectory(), Current().c_str());
}
