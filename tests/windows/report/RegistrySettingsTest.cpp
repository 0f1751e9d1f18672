#include "ReportTest.h"

namespace
{

class RegistrySettings : public ReportTest
{
};

} // namespace

TEST_F(RegistrySettings, DumpsSevenKeysInOrder)
{
    const Texts lines = LinesBetween(Report(), "LYT Registry Settings :", "LYT Directory Tree");
    const std::string paths = "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\";
    EXPECT_EQ(
        lines,
        (Texts{"  LYTDOCUMENT" + std::string(34, ' ') + " :  Key does not exist",
               "  " + paths + "LYT :  Key does not exist", "  " + paths + "LYTEXEC.EXE :  Key does not exist",
               "  " + paths + "LYTEXE32.EXE :  Key does not exist", "  " + paths + "LYTEXE64.EXE :  Key does not exist",
               "  " + paths + "LYTLABEL.EXE :  Key does not exist",
               "  HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.LYT :  Key "
               "does not exist"}));
}

TEST_F(RegistrySettings, KeyUnderTheRepeatedRootNameIsNeverFound)
{
    registry.SetText(HKEY_CURRENT_USER, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.LYT",
                     "Progid", "LYTDOCUMENT");
    const Texts lines = LinesBetween(Report(), "LYT Registry Settings :", "LYT Directory Tree");
    EXPECT_EQ(lines.back(),
              "  HKEY_CURRENT_USER\\Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.LYT : "
              " Key does not exist");
}

TEST_F(RegistrySettings, ShowsTheKeysThatStand)
{
    registry.SetText(HKEY_CLASSES_ROOT, "LYTDOCUMENT", "", "LYT Document");
    registry.SetText(HKEY_LOCAL_MACHINE, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\LYTLABEL.EXE",
                     "Path", "C:\\lyt");
    const Texts lines = LinesBetween(Report(), "LYT Registry Settings :", "LYT Directory Tree");
    EXPECT_EQ(lines.front(), "  LYTDOCUMENT" + std::string(34, ' ') + " : LYT Document");
    EXPECT_EQ(lines[lines.size() - 2],
              "  SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\LYTLABEL.EXE/Path : C:\\lyt");
}
