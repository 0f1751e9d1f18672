// The default printer, the local printers with their duplex and paper settings, and the network printers.
#pragma once

#include <afxcoll.h>

#include <optional>
#include <vector>

// What a printer is set to. A text is "no ... info" when its bit of `fields` is missing.
struct PrinterMode
{
    unsigned fields = 0;
    int duplex = 0;
    int paperSize = 0;
    int paperWidth = 0; // tenths of a millimetre
    int paperLength = 0;
};

inline constexpr unsigned printerFieldPaperSize = 2;
inline constexpr unsigned printerFieldDuplex = 4096;

struct PrinterFacts
{
    CString name;
    CString port;
    CString driver;
    std::optional<PrinterMode> mode; // not every driver keeps one
};

struct NetworkPrinterFacts
{
    CString name;
    CString server;
};

struct PrintersFacts
{
    CString defaultPrinter;
    std::optional<CString> failure; // why the local printers could not be listed
    std::vector<PrinterFacts> printers;
    std::vector<NetworkPrinterFacts> networkPrinters;
};

PrintersFacts ReadPrintersFacts();

CString DuplexText(const PrinterMode& mode);
CString PaperNameText(const PrinterMode& mode);
CString PaperSizeText(const PrinterMode& mode);

void AddPrinterLines(const PrintersFacts& facts, CStringList& lines);

// The names of papers by the platform's DMPAPER constants; 0 is no paper. Texts are in code page 1252.
inline constexpr int lytPaperCount = 118;
extern const char* const lytPaperNames[lytPaperCount];
