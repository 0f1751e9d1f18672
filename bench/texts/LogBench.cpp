#include "Measurements.h"

#include "lyt64.h"

#include "Timing.h"
#include "support/TestFolder.h"

#include <cstdio>
#include <ctime>
#include <string>

namespace
{

constexpr int messages = 1000;
constexpr int rounds = 9;
constexpr const char* message = "a message of the usual length, as a macro writes it\n";

template <class Function>
Function* Exported(const char* name)
{
    static const HMODULE library = LoadLibraryA("lyt64.dll");
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

std::string Banner(const char* word)
{
    const std::time_t now = std::time(nullptr);
    const std::tm* local = std::localtime(&now);
    char date[128];
    char time[128];
    std::strftime(date, sizeof date, "%x", local);
    std::strftime(time, sizeof time, "%X", local);
    return std::string(word) + "Date " + date + "           Time " + time + "\n";
}

// The same bytes as the log's block, written with nothing but the C runtime.
void WritePlain(const std::string& fileName)
{
    static const std::string rule = std::string(77, '-') + "\n";
    std::FILE* file = std::fopen(fileName.c_str(), "at");
    std::fputs(("\n" + rule + Banner("START...  ") + rule + "\n").c_str(), file);
    std::fputs(message, file);
    std::fputs(("\n" + rule + Banner("END...    ") + "\n").c_str(), file);
    std::fclose(file);
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

void MeasureLog()
{
    const TestFolder folder;
    const std::string iniFile = folder.Write("lyt.ini", "[LogLevel]\r\nlevel=1\r\n");
    Exported<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")((folder.Path() + "\\log.rtf").c_str(), "",
                                                                             folder.Path().c_str());
    ProvideCompanion(folder);
    auto* const writeToLog = Exported<decltype(lytWriteToLogFile)>("lytWriteToLogFile");
    const std::string plainFile = folder.File("plain.log");

    std::vector<double> log;
    std::vector<double> plain;
    std::vector<double> level;
    for (int round = 0; round < rounds; ++round)
    {
        DeleteFileA(folder.File("log.log").c_str());
        DeleteFileA(plainFile.c_str());
        log.push_back(TimeOf(
            [&]
            {
                for (int i = 0; i < messages; ++i)
                    writeToLog(message, 1);
            }));
        plain.push_back(TimeOf(
            [&]
            {
                for (int i = 0; i < messages; ++i)
                    WritePlain(plainFile);
            }));
        level.push_back(TimeOf(
            [&]
            {
                char text[75];
                for (int i = 0; i < messages; ++i)
                    GetPrivateProfileStringA("LogLevel", "level", "0", text, sizeof text, iniFile.c_str());
            }));
    }
    SetCurrentDirectoryA("C:\\");

    const double both = Median(plain) + Median(level);
    std::printf("log of %d messages          %8.2f ms\n", messages, Median(log));
    std::printf("plain open, append, close     %8.2f ms, ratio %.2f\n", Median(plain), Median(log) / Median(plain));
    std::printf("and the level read each time  %8.2f ms, ratio %.2f\n\n", both, Median(log) / both);
}
