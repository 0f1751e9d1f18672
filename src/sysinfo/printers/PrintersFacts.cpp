#include "sysinfo/frame/Probes.h"
#include "sysinfo/frame/Report.h"
#include "sysinfo/printers/Printers.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <span>
#include <vector>

#include <winspool.h>

namespace
{

static_assert(printerFieldPaperSize == DM_PAPERSIZE);
static_assert(printerFieldDuplex == DM_DUPLEX);

// A list of printers as the platform gives it: the records first and then their texts, in one block.
class PrinterRecords
{
public:
    // False with the reason in GetLastError. The first call gives the size, the second the records.
    bool Read(DWORD flags, DWORD level)
    {
        BYTE probe = 0;
        DWORD size = 0;
        m_count = 0;
        EnumPrintersA(flags, nullptr, level, &probe, sizeof probe, &size, &m_count);
        m_block.resize(std::max<size_t>(size, sizeof probe));
        return EnumPrintersA(flags, nullptr, level, m_block.data(), size, &size, &m_count) != FALSE;
    }

    template <class Record>
    std::span<const Record> As() const
    {
        return {static_cast<const Record*>(static_cast<const void*>(m_block.data())), m_count};
    }

private:
    std::vector<BYTE> m_block;
    DWORD m_count = 0;
};

// The text of a system error, without its line end.
CString SystemErrorText(DWORD error)
{
    char text[512] = "";
    FormatMessageA(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr, error, 0, text, sizeof text,
                   nullptr);
    size_t length = std::strlen(text);
    while (length > 0 && (text[length - 1] == '\r' || text[length - 1] == '\n'))
        --length;
    return {text, static_cast<int>(length)};
}

// A mode block of an older driver may end before the fields that are read.
std::optional<PrinterMode> ModeOf(const DEVMODEA* mode)
{
    constexpr size_t sizeRead = offsetof(DEVMODEA, dmDuplex) + sizeof(DEVMODEA::dmDuplex);
    if (mode == nullptr || mode->dmSize < sizeRead)
        return std::nullopt;
    return PrinterMode{mode->dmFields, mode->dmDuplex, mode->dmPaperSize, mode->dmPaperWidth, mode->dmPaperLength};
}

void ReadLocalPrinters(PrintersFacts& facts)
{
    PrinterRecords records;
    if (!records.Read(PRINTER_ENUM_LOCAL, 2))
    {
        facts.failure = SystemErrorText(GetLastError());
        return;
    }
    for (const PRINTER_INFO_2A& printer : records.As<PRINTER_INFO_2A>())
        facts.printers.push_back(
            {printer.pPrinterName, printer.pPortName, printer.pDriverName, ModeOf(printer.pDevMode)});
}

void ReadNetworkPrinters(PrintersFacts& facts)
{
    PrinterRecords records;
    if (!records.Read(PRINTER_ENUM_CONNECTIONS, 4))
        return;
    for (const PRINTER_INFO_4A& printer : records.As<PRINTER_INFO_4A>())
        facts.networkPrinters.push_back({printer.pPrinterName, printer.pServerName});
}

} // namespace

PrintersFacts ReadPrintersFacts()
{
    PrintersFacts facts;
    char defaultPrinter[256] = "";
    GetProfileStringA("windows", "device", "no default printer found", defaultPrinter, sizeof defaultPrinter);
    facts.defaultPrinter = defaultPrinter;
    ReadLocalPrinters(facts);
    ReadNetworkPrinters(facts);
    return facts;
}

void lytProbePrinters()
{
    CStringList lines;
    AddPrinterLines(ReadPrintersFacts(), lines);
    AddReportLines(lines);
}
