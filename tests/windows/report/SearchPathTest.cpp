#include "ReportTest.h"

namespace
{

class SearchPath : public ReportTest
{
protected:
    // The files that the report found, without size and date.
    Texts FilesFound()
    {
        Texts files;
        for (const std::string& line : LinesBetween(Report(), "File Information:", "LYT Resolve Version"))
        {
            if (line.find(" Size:") != std::string::npos)
                files.push_back(line.substr(2, line.find_last_not_of(' ', line.find(" Size:")) - 1));
        }
        return files;
    }
    std::string Lower(std::string text)
    {
        CharLowerA(text.data());
        return text;
    }
    void WriteLibrary(const std::string& directory, const std::string& name)
    {
        folder.Write(directory + "\\" + name, "x");
    }
};

} // namespace

TEST_F(SearchPath, ListsTheResourceLibrariesOfEachDirectory)
{
    const std::string installed = InstallInto("Installed");
    WriteIni("");
    WriteLibrary("Tools", "LytRes64.dll");
    WriteLibrary("Tools", "LytResOld.dll");
    WriteLibrary("Tools", "other.dll");
    WriteLibrary("Tools\\sub", "LytResDeep.dll");
    WriteLibrary("Installed", "LytRes1.dll");
    const EnvironmentVariable path("PATH", folder.File("Tools").c_str());
    EXPECT_EQ(FilesFound(),
              (Texts{Lower(folder.File("Tools")) + "\\LytRes64.dll", Lower(folder.File("Tools")) + "\\LytResOld.dll",
                     Lower(installed) + "\\LytRes1.dll"}));
}

TEST_F(SearchPath, ConfigurationFileThatIsMissingIsTold)
{
    const Texts lines = Report();
    const size_t line = FindLine(lines, "Error: File name or path not found: " + folder.Path() + "\\lyt.ini");
    ASSERT_LT(line, lines.size());
    EXPECT_TRUE(lines[line + 1].starts_with("LYT Resolve Version            : "));
    EXPECT_EQ(lines[line + 2], "GUI-HOME                       : Entry not found");
}
