// What the system report costs beyond the platform's own calls, and whether reading it line by line is linear.
#include "lyt64.h"

#include "PlainCalls.h"
#include "Timing.h"
#include "support/TestFolder.h"

#include <windows.h>

#include <cstdio>
#include <string>
#include <vector>

namespace
{

template <class Function>
Function* Exported(const char* name)
{
    static const HMODULE library = LoadLibraryA("lyt64.dll");
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

int ReadToTheEnd()
{
    auto* const readLine = Exported<decltype(lytSystemInfoRead)>("lytSystemInfoRead");
    char line[1024];
    int index = 0;
    while (readLine(index, line, sizeof line) == 1)
        ++index;
    return index;
}

// Both in turn, so that whatever else the machine does falls on both alike.
void CompareWithPlainCalls(const TestFolder& folder)
{
    constexpr int rounds = 41;
    const std::string iniFile = folder.Write("lyt.ini", "[FONTS]\r\nText=Tahoma,Arial\r\nCode=Courier New\r\n");
    static const wchar_t* const fonts[] = {L"Tahoma", L"Arial", L"Courier New", nullptr};
    for (int file = 0; file < 20; ++file)
        folder.Write("examined\\file" + std::to_string(file) + ".txt", "x");
    const std::string examined = folder.File("examined");

    auto* const gather = Exported<decltype(lytSystemInfoInit)>("lytSystemInfoInit");
    std::vector<double> report;
    std::vector<double> plain;
    for (int round = 0; round < rounds; ++round)
    {
        report.push_back(TimeOf([&] { gather(examined.c_str()); }));
        plain.push_back(TimeOf([&] { MakePlainCalls(examined.c_str(), iniFile.c_str(), fonts); }));
    }
    std::printf("whole report      %8.2f ms\nplain calls       %8.2f ms\nratio             %8.2f\n", Median(report),
                Median(plain), Median(report) / Median(plain));
}

void MeasureTheWalk(const TestFolder& folder, int files)
{
    const std::string name = "files" + std::to_string(files);
    for (int file = 0; file < files; ++file)
        folder.Write(name + "\\" + std::to_string(file), "");
    Exported<decltype(lytSystemInfoInit)>("lytSystemInfoInit")(folder.File(name).c_str());
    int lines = 0;
    const double time = TimeOf([&] { lines = ReadToTheEnd(); });
    std::printf("walk of %6d lines %8.2f ms, %8.3f us a line\n", lines, time, 1000.0 * time / lines);
}

// Each call tries to load the companion library until that works once; a failed load outweighs all else.
void ProvideCompanion(const TestFolder& folder)
{
    char library[MAX_PATH] = "";
    GetModuleFileNameA(GetModuleHandleA("lyt64.dll"), library, sizeof library);
    CopyFileA(library, folder.File("lyt.dll").c_str(), FALSE);
    SetCurrentDirectoryA(folder.Path().c_str());
}

} // namespace

int main()
{
    const TestFolder folder;
    Exported<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")("bench.rtf", "", folder.Path().c_str());
    CompareWithPlainCalls(folder);
    std::puts("\nwithout a companion library:");
    MeasureTheWalk(folder, 10);
    ProvideCompanion(folder);
    std::puts("with it:");
    for (const int files : {100, 1000, 10000})
        MeasureTheWalk(folder, files);
    SetCurrentDirectoryA("C:\\");
    return 0;
}
