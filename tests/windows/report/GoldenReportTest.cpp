// The whole report of a machine whose facts are all laid down here, against one that was looked at and kept.
#include "LaidDownMachine.h"

#include <fstream>

namespace
{

std::string BesideTheProgram(const char* name)
{
    char program[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, program, sizeof program);
    const std::string path = program;
    return path.substr(0, path.rfind('\\') + 1) + name;
}

Texts LinesOfFile(const std::string& path)
{
    std::ifstream file(path);
    Texts lines;
    for (std::string line; std::getline(file, line);)
        lines.push_back(line);
    return lines;
}

} // namespace

using GoldenReport = LaidDownMachine;

TEST_F(GoldenReport, StandsAsItWasKept)
{
    const Texts report = MaskedReport();
    const Texts kept = LinesOfFile(BesideTheProgram("golden-report.txt"));
    if (report != kept)
    {
        std::ofstream actual(BesideTheProgram("golden-report.actual.txt"));
        for (const std::string& line : report)
            actual << line << '\n';
    }
    ASSERT_EQ(report.size(), kept.size());
    for (size_t line = 0; line < kept.size(); ++line)
        EXPECT_EQ(report[line], kept[line]) << "line " << line + 1;
}
