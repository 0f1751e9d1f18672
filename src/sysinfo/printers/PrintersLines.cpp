#include "sysinfo/printers/Printers.h"

namespace
{

constexpr int firstUserPaper = 256;

CString UnknownNumber(int number)
{
    CString text;
    text.Format("%d???", number);
    return text;
}

CString PrinterLine(const PrinterFacts& printer)
{
    CString duplex;
    CString paperName;
    CString paperSize;
    if (printer.mode)
    {
        duplex = DuplexText(*printer.mode);
        paperName = PaperNameText(*printer.mode);
        paperSize = PaperSizeText(*printer.mode);
    }
    return "  Printer: " + printer.name + " on " + printer.port + " (" + printer.driver + "), " + duplex + ", " +
           paperName + ", " + paperSize;
}

} // namespace

CString DuplexText(const PrinterMode& mode)
{
    static constexpr const char* names[] = {"Duplex not available", "Simplex", "Duplex Vertical", "Duplex Horizontal"};
    if ((mode.fields & printerFieldDuplex) == 0)
        return "no duplex info";
    if (mode.duplex < 0 || mode.duplex >= static_cast<int>(std::size(names)))
        return UnknownNumber(mode.duplex);
    return names[mode.duplex];
}

CString PaperNameText(const PrinterMode& mode)
{
    if ((mode.fields & printerFieldPaperSize) == 0)
        return "no paper info";
    if (mode.paperSize >= firstUserPaper)
        return "User defined";
    if (mode.paperSize < 0 || mode.paperSize >= lytPaperCount)
        return UnknownNumber(mode.paperSize);
    return lytPaperNames[mode.paperSize];
}

CString PaperSizeText(const PrinterMode& mode)
{
    CString text;
    if ((mode.fields & printerFieldPaperSize) != 0)
        text.Format("%dmm x %dmm", mode.paperWidth / 10, mode.paperLength / 10);
    return text;
}

void AddPrinterLines(const PrintersFacts& facts, CStringList& lines)
{
    lines.AddTail("Printers");
    lines.AddTail("  Default Printer : " + facts.defaultPrinter);
    if (facts.failure)
        lines.AddTail("Cannot get printer information: " + *facts.failure);
    for (const PrinterFacts& printer : facts.printers)
        lines.AddTail(PrinterLine(printer));
    for (const NetworkPrinterFacts& printer : facts.networkPrinters)
        lines.AddTail("  Network Printer: " + printer.name + " on " + printer.server);
}
