#include "LaidDownMachine.h"

#include <regex>

namespace
{

std::string Replaced(std::string text, const std::string& what, const std::string& by)
{
    for (size_t place = text.find(what); place != std::string::npos; place = text.find(what, place + by.size()))
        text.replace(place, what.size(), by);
    return text;
}

// A4, printed on both sides.
DEVMODEA LaidDownMode()
{
    DEVMODEA mode = PrinterMode(DM_PAPERSIZE | DM_DUPLEX);
    mode.dmPaperSize = 9;
    mode.dmPaperWidth = 2100;
    mode.dmPaperLength = 2970;
    mode.dmDuplex = 2;
    return mode;
}

} // namespace

LaidDownMachine::LaidDownMachine()
    : m_printer("LYT Printer", LaidDownMode()),
      m_device("LYT Printer,winspool,LPT1:"),
      m_path("PATH", folder.File("tools").c_str()),
      m_temp("TEMP", "C:\\temp"),
      m_tmp("TMP", nullptr)
{
    LayFiles();
    LayDocumentType();
    LayWordProcessors();
    LayHardware();
}

Texts LaidDownMachine::MaskedReport()
{
    static const struct
    {
        std::regex pattern;
        const char* mask;
    } masks[] = {
        {std::regex("Date: .*"), "Date: <date>"},
        {std::regex("^Microsoft .*"), "Microsoft <Windows>"},
        {std::regex("^(Number Of Processors : )\\d+$"), "$1<n>"},
        {std::regex("^(Memory in use: )\\d+ %$"), "$1<n> %"},
        {std::regex("^((Total|Free) (physical|virtual) memory +: )\\d+ MB$"), "$1<n> MB"},
        {std::regex("^((Total|Free) paging file +: )\\d+ MB$"), "$1<n> MB"},
        {std::regex("^((Total|Free) Hard Disk Space on C:\\\\ +: ) *\\d+ MB$"), "$1<n> MB"},
        {std::regex("^(COMPUTERNAME:|USERNAME:).*"), "$1<name>"},
        {std::regex("^(Screen Resolution: ).*"), "$1<screen>"},
        {std::regex("^(LOCALE\\..*= ).*"), "$1<locale>"},
    };
    std::string lowerPath = folder.Path();
    CharLowerA(lowerPath.data());
    Texts masked;
    for (const std::string& line : Report(examined.c_str()))
    {
        std::string text = Replaced(Replaced(line, folder.Path(), "<folder>"), lowerPath, "<lower folder>");
        for (const auto& m : masks)
            text = std::regex_replace(text, m.pattern, m.mask);
        // The names of the folder differ in length, and with them the blanks after.
        masked.push_back(std::regex_replace(text, std::regex("(folder>\\S*) +Size: +"), "$1 Size: "));
    }
    return masked;
}

void LaidDownMachine::LayFiles()
{
    WriteIni("[paths]\r\nGUI-HOME=C:\\gui\r\n");
    folder.Write("conf\\lyt.ini", "[paths]\r\nGUI-HOME=C:\\gui\\conf\r\n"
                                  "[Convert]\r\nformat=pdf\r\nquality setting=high\r\nbare\r\n"
                                  "[FONTS]\r\nText=No Font B,No Font A\r\nEmpty=\r\nCode=Tahoma, No Font C\r\n");
    folder.Write("inst\\LytRes1.dll", "12345");
    folder.Write("tools\\LytRes2.dll", "123");
    folder.Write("user16\\lytBase.dot", "1");
    folder.Write("user16\\LYTMORE.DOT", "22");
    folder.Write("group16\\lyt.dot", "333");
    folder.Write("examined\\one.txt", "1");
    folder.Write("examined\\two", "22");
    folder.Write("examined\\below\\three.txt", "333");
}

void LaidDownMachine::LayDocumentType()
{
    registry.SetText(HKEY_CLASSES_ROOT, "LYTDOCUMENT", "", "LYT Document");
    registry.SetText(HKEY_CLASSES_ROOT, "LYTDOCUMENT\\InstallDir", "", folder.File("inst"));
    registry.SetText(HKEY_CLASSES_ROOT, "LYTDOCUMENT\\shell\\open\\IniPath", "", folder.File("conf"));
    registry.SetNumber(HKEY_CLASSES_ROOT, "LYTDOCUMENT", "Number", 4711);
    registry.Set(HKEY_CLASSES_ROOT, "LYTDOCUMENT", "Bytes", REG_BINARY, std::string("\x01\xAB\xFF", 3));
    registry.SetText(HKEY_LOCAL_MACHINE, "SOFTWARE\\Microsoft\\Windows\\CurrentVersion\\App Paths\\LYTEXE64.EXE",
                     "Path", "C:\\lyt");
    // Under the name of the root once more, it is not found.
    registry.SetText(HKEY_CURRENT_USER, "Software\\Microsoft\\Windows\\CurrentVersion\\Explorer\\FileExts\\.LYT",
                     "Progid", "LYTDOCUMENT");
    registry.SetText(HKEY_CLASSES_ROOT, ".pdf", "", "LYT.Test.Pdf");
    registry.SetText(HKEY_CLASSES_ROOT, "LYT.Test.Pdf\\shell\\print\\command", "", "reader.exe /p \"%1\"");
}

void LaidDownMachine::LayWordProcessors()
{
    for (const char* version : {"5.0", "8.0", "11.0", "16.0"})
        registry.AddKey(HKEY_LOCAL_MACHINE, std::string("Software\\Microsoft\\Word\\") + version);
    registry.AddKey(HKEY_LOCAL_MACHINE, "Software\\Microsoft\\Office\\16.0");
    registry.SetText(HKEY_CLASSES_ROOT, "Word.Application\\CurVer", "", "Word.Application.16");
    registry.SetText(HKEY_CURRENT_USER, "Software\\Microsoft\\Office\\8.0\\Common\\FileNew\\LocalTemplates", "",
                     "C:\\tpl8");
    registry.SetNumber(HKEY_CURRENT_USER, "Software\\Microsoft\\Office\\11.0\\Word\\Security", "Level", 2);
    registry.SetText(HKEY_CURRENT_USER, "Software\\Microsoft\\Office\\16.0\\Common\\General", "UserTemplates",
                     folder.File("user16"));
    registry.SetText(HKEY_CURRENT_USER, "Software\\Microsoft\\Office\\16.0\\Common\\General", "SharedTemplates",
                     folder.File("group16"));
    registry.SetText(HKEY_CURRENT_USER, "Software\\Microsoft\\Office\\16.0\\Word\\Options", "STARTUP-PATH",
                     "C:\\start");
    registry.SetText(HKEY_CURRENT_USER,
                     "Software\\Microsoft\\Office\\16.0\\Word\\Security\\Trusted Locations\\Location1", "Path",
                     folder.File("inst"));
    registry.SetText(HKEY_CURRENT_USER,
                     "Software\\Microsoft\\Office\\16.0\\Common\\LanguageResources\\EnabledEditingLanguages", "de-de",
                     "On");
    registry.SetText(HKEY_LOCAL_MACHINE, "SOFTWARE\\Microsoft\\Office\\ClickToRun\\Configuration", "VersionToReport",
                     "16.0.1234.5");
    registry.SetText(HKEY_LOCAL_MACHINE, "SOFTWARE\\Microsoft\\Office\\ClickToRun\\Configuration", "ProductReleaseIDs",
                     "O365ProPlusRetail");
}

void LaidDownMachine::LayHardware()
{
    constexpr const char* processor = "HARDWARE\\DESCRIPTION\\System\\CentralProcessor\\0";
    registry.SetText(HKEY_LOCAL_MACHINE, processor, "ProcessorNameString", "Some CPU");
    registry.SetNumber(HKEY_LOCAL_MACHINE, processor, "~MHz", 2000);
}
