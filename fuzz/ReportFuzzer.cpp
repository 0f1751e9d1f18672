// Words the report from any facts.
#include "fuzz/frame/Attempt.h"
#include "fuzz/frame/Fuzzer.h"
#include "fuzz/frame/InputText.h"
#include "sysinfo/files/FileListing.h"
#include "sysinfo/files/ShellCommand.h"
#include "sysinfo/fonts/Locale.h"
#include "sysinfo/frame/ProgramKind.h"
#include "sysinfo/frame/RegistryDump.h"
#include "sysinfo/frame/ReportFrame.h"
#include "sysinfo/printers/Printers.h"
#include "sysinfo/system/Hardware.h"
#include "sysinfo/system/KernelVersion.h"
#include "sysinfo/system/WindowsName.h"
#include "sysinfo/word/EnabledLanguages.h"
#include "sysinfo/word/MacroSecurity.h"
#include "sysinfo/word/WordCurrent.h"
#include "sysinfo/word/WordDirectories.h"
#include "sysinfo/word/WordVersions.h"

#include <ctime>

namespace
{
namespace report_fuzzer
{

// Facts, each taken from the next line.
class Facts : public InputText
{
public:
    using InputText::InputText;

    CString Text() { return Line().c_str(); }
    unsigned Unsigned() { return static_cast<unsigned>(LongNumber()); }
    unsigned long long Bytes() { return static_cast<unsigned long long>(LongNumber()); }
    bool Truth() { return Line() == "1"; }
    // An empty line has no meaning.
    std::optional<CString> MaybeText()
    {
        const CString text = Text();
        return text.IsEmpty() ? std::nullopt : std::optional(text);
    }
    std::optional<unsigned> MaybeNumber()
    {
        const std::string line = Line();
        return line.empty() ? std::nullopt
                            : std::optional(static_cast<unsigned>(std::strtoul(line.c_str(), nullptr, 0)));
    }
    // Texts up to an empty line.
    std::vector<CString> Texts()
    {
        std::vector<CString> texts;
        for (std::string line = Line(); !line.empty(); line = Line())
            texts.emplace_back(line.c_str());
        return texts;
    }
    RegistryValue Value()
    {
        RegistryValue value;
        value.name = Text();
        value.type = Unsigned();
        value.data = Line();
        return value;
    }
};

void WordSystem(Facts& facts)
{
    WindowsFacts windows;
    for (unsigned* number : {&windows.platform, &windows.major, &windows.minor, &windows.build, &windows.productType,
                             &windows.suite, &windows.architecture, &windows.edition})
        *number = facts.Unsigned();
    windows.isServerR2 = facts.Truth();
    windows.servicePack = facts.Text();
    windows.registryName = facts.MaybeText();
    windows.releaseId = facts.Text();
    windows.kernelVersion = facts.Text();
    static_cast<void>(WindowsNameLine(windows));

    KernelVersionFacts kernel;
    kernel.productVersion = facts.Text();
    kernel.fileVersion = facts.MaybeText();
    for (int& number : kernel.fixedNumbers)
        number = facts.Number();
    kernel.path = facts.Text();
    kernel.date = KernelDateText(facts.Unsigned(), facts.Unsigned(), facts.Unsigned(), facts.Unsigned(), 59);
    static_cast<void>(KernelVersionText(kernel));
    static_cast<void>(LanguageAndCodePage(facts.Unsigned()));
}

void WordHardware(Facts& facts)
{
    HardwareFacts hardware;
    for (unsigned* number : {&hardware.processors, &hardware.processorSpeed, &hardware.memoryLoad, &hardware.pageSize,
                             &hardware.granularity})
        *number = facts.Unsigned();
    for (unsigned long long* bytes : {&hardware.totalPhysical, &hardware.freePhysical, &hardware.totalPagingFile,
                                      &hardware.freePagingFile, &hardware.totalVirtual, &hardware.freeVirtual})
        *bytes = facts.Bytes();
    hardware.processorName = facts.Text();
    for (const CString& root : DiskRoots(facts.Text(), facts.Text()))
        hardware.disks.push_back({root, facts.Bytes(), facts.Bytes()});
    CStringList lines;
    AddHardwareLines(hardware, lines);
    static_cast<void>(ScreenLine(facts.Number(), facts.Number()));
}

void WordPrinters(Facts& facts)
{
    PrintersFacts printers;
    printers.defaultPrinter = facts.Text();
    printers.failure = facts.MaybeText();
    for (const CString& name : facts.Texts())
    {
        PrinterMode mode;
        mode.fields = facts.Unsigned();
        for (int* number : {&mode.duplex, &mode.paperSize, &mode.paperWidth, &mode.paperLength})
            *number = facts.Number();
        printers.printers.push_back({name, name, name, mode});
        printers.networkPrinters.push_back({name, name});
    }
    CStringList lines;
    AddPrinterLines(printers, lines);
}

void WordOffice(Facts& facts)
{
    const CString version = facts.Text();
    const int number = VersionNumberOf(version);
    static_cast<void>(WordVersionOf(version));
    static_cast<void>(HasBits(version));
    static_cast<void>(WordCurrentText({facts.MaybeText(), facts.MaybeNumber()}));
    static_cast<void>(WordVersionsText({facts.Texts(), facts.Texts()}));
    static_cast<void>(MacroSecurityText({number, facts.Truth(), facts.Unsigned(), facts.Text(), facts.Texts()}));
    static_cast<void>(EnabledLanguagesKey(number));
    static_cast<void>(EnabledLanguageLine(number, facts.Value()));
    for (const auto& place : {UserTemplatesPlace(number), WorkgroupTemplatesPlace(number), StartupPlace(number)})
        static_cast<void>(place ? CannotOpenText(place->key) : UnsupportedVersionText());
}

void WordFiles(Facts& facts)
{
    FileEntry entry;
    entry.name = facts.Text();
    entry.isDirectory = facts.Truth();
    entry.size = facts.Unsigned();
    const std::time_t written = facts.LongNumber();
    std::tm time = {};
    if (gmtime_r(&written, &time) != nullptr)
        entry.date = FileDateText(time);
    static_cast<void>(FileLine(facts.Text(), facts.Text(), entry));
    static_cast<void>(IsSubdirectory(entry));
    static_cast<void>(DirectoryAccessLine(facts.Number(), entry.name));
    static_cast<void>(IniAccessLine(facts.Number(), entry.name));
    static_cast<void>(ValueLine(facts.Text(), facts.Value()));
    static_cast<void>(TellsItsKind(facts.Text()));
    static_cast<void>(ProgramKindText({facts.Truth(), facts.MaybeNumber()}));
    static_cast<void>(ShellCommandLine(facts.Text(), {facts.Truth(), facts.MaybeText(), true, facts.MaybeText()}));
    static_cast<void>(SearchDirectories(facts.Text(), facts.Text()));
    static_cast<void>(VersionTexts(facts.Text()));
}

void WordLocale(Facts& facts)
{
    CStringList lines;
    const CString text = facts.Text();
    AddLocaleLines([&](unsigned /*locale*/, unsigned /*type*/) { return text; }, lines);
    const unsigned installed = facts.Unsigned();
    AddLanguageGroupLines([&](unsigned group) { return group % 2 == installed % 2; }, lines);
}

void Run(const std::string& input)
{
    Facts facts(input);
    static constexpr void (*parts[])(Facts&) = {WordSystem, WordHardware, WordPrinters,
                                                WordOffice, WordFiles,    WordLocale};
    // The first line says where to begin.
    const int first = facts.Number(0, static_cast<int>(std::size(parts)) - 1);
    for (const auto part : std::span(parts).subspan(static_cast<size_t>(first)))
        Attempt([&] { part(facts); });
}

std::vector<std::string> Seeds()
{
    return {
        "0\n2\n10\n0\n19045\n1\n256\n9\n48\n0\nService Pack 1\nWindows 10 Pro\n22H2\n10.0.19041\n",
        "0\n2\n6\n1\n7601\n3\n272\n0\n7\n1\n\n\n\n6.1.7601\n10.0.1 (x)\n10.0.1.1\n1\n2\n3\n4\nC:\\k.dll\n1\n",
        "1\n8\n2400\n50\n4096\n65536\n17179869184\n1\n-1\n0\n1\n2\nCPU\nC:\\Windows\nD:\\lyt\n1\n0\n9\n8\n",
        "2\nOffice\n\nOne\nTwo\n\n4098\n1\n9\n2100\n2970\n2\n0\n256\n",
        "3\n16.0\nWord.Application.16\n6\n16.0\n15.0\n\n16.0\nCommon\n\n1\n2\nC:\\lyt\\\nC:\\lyt\n\n1031\n1\nOn\n",
        "4\na.dlg\n0\n100\n1700000000\nC:\\a\\\n*.dlg\n13\n2\nHKEY\nname\n4\nabcd\nwinword.exe\n1\n6\nopen\n1\ntype\n",
        "5\nEnglish\n1\n",
    };
}

} // namespace report_fuzzer
} // namespace

const Fuzzer reportFuzzer = {"report", "the part to begin with, 0 to 5; its facts, a line each", report_fuzzer::Run,
                             report_fuzzer::Seeds};
