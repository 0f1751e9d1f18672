#include "ProbeFixture.h"

#include "base/Iteration.h"
#include "environment/ClytEnvironment.h"

ProbeFixture::ProbeFixture()
{
    lytEnvironment.SetInitPath(folder.Path().c_str());
}

ProbeFixture::~ProbeFixture()
{
    lytEnvironment.Reset();
}

ProbeFixture::Texts ProbeFixture::TakeLines()
{
    Texts texts;
    const CStringList& lines = lytEnvironment.lytReportLines.GetLines();
    for (const CString& line : lines)
        texts.emplace_back(line.GetString());
    lytEnvironment.lytReportLines.RemoveAll();
    return texts;
}

std::string ProbeFixture::OwnFile()
{
    char name[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, name, sizeof name);
    return name;
}

void ProbeFixture::Install(const std::string& directory)
{
    registry.SetText(HKEY_CLASSES_ROOT, "LYTDOCUMENT\\InstallDir", "", directory);
}

void ProbeFixture::SetCurrentVersion(const std::string& program)
{
    registry.SetText(HKEY_CLASSES_ROOT, "Word.Application\\CurVer", "", program);
}

void ProbeFixture::SetWordProgram(const std::string& file)
{
    registry.SetText(HKEY_LOCAL_MACHINE, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\Winword.exe", "",
                     file);
}
