#include "ReportTest.h"

#include <algorithm>

EnvironmentVariable::EnvironmentVariable(const char* name, const char* value) : m_name(name)
{
    m_before.resize(GetEnvironmentVariableA(name, nullptr, 0));
    m_wasSet = !m_before.empty();
    if (m_wasSet)
        m_before.resize(GetEnvironmentVariableA(name, m_before.data(), static_cast<DWORD>(m_before.size())));
    SetEnvironmentVariableA(name, value);
}

EnvironmentVariable::~EnvironmentVariable()
{
    SetEnvironmentVariableA(m_name.c_str(), m_wasSet ? m_before.c_str() : nullptr);
}

ReportTest::ReportTest()
{
    initialise("doc.rtf", "", folder.Path().c_str());
}

ReportTest::~ReportTest()
{
    release();
}

Texts ReportTest::Report(const char* directory)
{
    EXPECT_EQ(gather(directory), 1);
    Texts lines;
    std::string line(1 << 16, '\0');
    for (int index = 0; readLine(index, line.data(), static_cast<int>(line.size())) == 1; ++index)
        lines.emplace_back(line.c_str());
    return lines;
}

std::string ReportTest::InitPath()
{
    char path[MAX_PATH] = "";
    getInitPath(path, sizeof path);
    return path;
}

std::string ReportTest::InstallInto(const std::string& name)
{
    const std::string directory = folder.File(name);
    CreateDirectoryA(directory.c_str(), nullptr);
    registry.SetText(HKEY_CLASSES_ROOT, "LYTDOCUMENT\\InstallDir", "", directory);
    return directory;
}

size_t FindLine(const Texts& lines, const std::string& beginning)
{
    const auto found =
        std::find_if(lines.begin(), lines.end(), [&](const std::string& line) { return line.starts_with(beginning); });
    return static_cast<size_t>(found - lines.begin());
}

bool HasLine(const Texts& lines, const std::string& beginning)
{
    return FindLine(lines, beginning) < lines.size();
}

std::string LineOf(const Texts& lines, const std::string& beginning)
{
    return HasLine(lines, beginning) ? lines[FindLine(lines, beginning)] : "no line " + beginning;
}

Texts LinesBetween(const Texts& lines, const std::string& first, const std::string& last)
{
    const auto begin = std::min(lines.begin() + static_cast<std::ptrdiff_t>(FindLine(lines, first)) + 1, lines.end());
    const auto end = std::find_if(begin, lines.end(), [&](const std::string& line) { return line.starts_with(last); });
    return {begin, end};
}

size_t CountLines(const Texts& lines, const std::string& beginning)
{
    return static_cast<size_t>(std::count_if(lines.begin(), lines.end(),
                                             [&](const std::string& line) { return line.starts_with(beginning); }));
}
