// From version 10 on the release is named by the registry. Only a program that says it knows Windows 10 learns of it.
#include "ReportTest.h"

#include "commandline/Program.h"

#include <fstream>

namespace
{

constexpr const char* releaseKey = "SOFTWARE\\Microsoft\\Windows NT\\CurrentVersion";

class Windows10 : public ReportTest
{
protected:
    Windows10()
    {
        registry.SetText(HKEY_CURRENT_USER, "Software\\Wine\\AppDefaults\\report-host.exe", "Version", "win10");
    }

    // The name line of a report gathered by the host program.
    std::string NameLine()
    {
        char program[MAX_PATH] = "";
        GetModuleFileNameA(nullptr, program, sizeof program);
        std::string directory = program;
        directory.resize(directory.rfind('\\') + 1);
        const std::string output = folder.File("report.txt");
        std::string command = "\"" + directory + "report-host.exe\" \"" + output + "\"";

        STARTUPINFOA startup = {};
        startup.cb = sizeof startup;
        PROCESS_INFORMATION process = {};
        if (!CreateProcessA(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process))
            return "report-host.exe does not start";
        WaitForSingleObject(process.hProcess, commandline::Patience(60000));
        CloseHandle(process.hProcess);
        CloseHandle(process.hThread);

        std::ifstream file(output);
        std::string line;
        std::getline(file, line);
        std::getline(file, line);
        return line;
    }
};

} // namespace

TEST_F(Windows10, IsNamedByTheRegistry)
{
    registry.SetText(HKEY_LOCAL_MACHINE, releaseKey, "ProductName", "Windows 10 Pro");
    registry.SetText(HKEY_LOCAL_MACHINE, releaseKey, "ReleaseId", "1909");
    const std::string line = NameLine();
    EXPECT_TRUE(line.starts_with("Microsoft Windows 10 Pro 1909 Version 10.0.")) << line;
}

TEST_F(Windows10, WithoutNamesLeavesThreeBlanksAheadOfTheVersion)
{
    registry.Remove(HKEY_LOCAL_MACHINE, releaseKey, "ProductName");
    registry.Remove(HKEY_LOCAL_MACHINE, releaseKey, "ReleaseId");
    const std::string line = NameLine();
    EXPECT_TRUE(line.starts_with("Microsoft Windows   Version 10.0.")) << line;
}

TEST_F(Windows10, TakesNoNameOfMoreThan128Bytes)
{
    registry.Remove(HKEY_LOCAL_MACHINE, releaseKey, "ReleaseId");
    registry.SetText(HKEY_LOCAL_MACHINE, releaseKey, "ProductName", std::string(127, 'x'));
    EXPECT_TRUE(NameLine().starts_with("Microsoft " + std::string(127, 'x') + "  Version 10.0."));
    registry.SetText(HKEY_LOCAL_MACHINE, releaseKey, "ProductName", std::string(128, 'x'));
    EXPECT_TRUE(NameLine().starts_with("Microsoft Windows   Version 10.0."));
}
