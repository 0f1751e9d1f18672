#include "lyt64.h"

#include "windows/Works.h"

#include "support/Library.h"
#include "support/TestFolder.h"
#include "windows/ByHand.h"

#include <cstdio>
#include <ctime>

namespace
{

constexpr const char* message = "a message of the usual length, as a macro writes it\n";

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

void Measure(const BenchMeter& meter, bool hasCompanion)
{
    const TestFolder folder;
    const std::string iniFile = folder.Write("lyt.ini", "[LogLevel]\r\nlevel=1\r\n");
    Call<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")((folder.Path() + "\\log.rtf").c_str(), "",
                                                                         folder.Path().c_str());
    if (hasCompanion)
        ProvideCompanion(folder.Path());
    auto* const writeToLog = Call<decltype(lytWriteToLogFile)>("lytWriteToLogFile");
    const std::string logFile = folder.File("log.log");
    const std::string plainFile = folder.File("plain.log");
    const auto eachMessage = [&](const auto& act)
    {
        for (int index = 0; index < meter.Size(); ++index)
            act();
    };
    const auto readLevel = [&] { ReadProfile("LogLevel", "level", iniFile); };

    std::vector<BenchSeries> series = {
        {"ours", [&] { eachMessage([&] { writeToLog(message, 1); }); }, [&] { DeleteFileA(logFile.c_str()); }},
        {"by hand",
         [&]
         {
             eachMessage(
                 [&]
                 {
                     if (!hasCompanion)
                         LookForCompanion();
                     readLevel();
                     WritePlain(plainFile);
                 });
         },
         [&] { DeleteFileA(plainFile.c_str()); }},
        {"level", [&] { eachMessage(readLevel); }},
    };
    if (!hasCompanion)
        series.push_back({"companion", [&] { eachMessage(LookForCompanion); }});
    meter.Compare(series);
    SetCurrentDirectoryA("C:\\");
}

} // namespace

void MeasureLog(const BenchMeter& meter)
{
    Measure(meter, true);
}

void MeasureLogWithoutCompanion(const BenchMeter& meter)
{
    Measure(meter, false);
}
