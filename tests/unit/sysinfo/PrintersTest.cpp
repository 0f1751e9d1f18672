#include "sysinfo/printers/Printers.h"

#include "Lines.h"
#include "unit/Readings.h"

namespace
{

PrinterMode Paper(int number)
{
    PrinterMode mode;
    mode.fields = printerFieldPaperSize;
    mode.paperSize = number;
    return mode;
}

std::string PaperName(const std::string& number)
{
    return PaperNameText(Paper(std::stoi(number))).GetString();
}

std::string Duplex(const std::string& number)
{
    PrinterMode mode;
    mode.fields = printerFieldDuplex;
    mode.duplex = std::stoi(number);
    return DuplexText(mode).GetString();
}

Texts LinesOf(const PrintersFacts& facts)
{
    CStringList lines;
    AddPrinterLines(facts, lines);
    return TextsOf(lines);
}

} // namespace

TEST(Printers, NamesPapersAndDuplexModesByTheirNumbers)
{
    ExpectReadings("sysinfo/names.cases", "Paper", PaperName);
    ExpectReadings("sysinfo/names.cases", "Duplex", Duplex);
}

TEST(Printers, CutsTenthsOfAMillimetreOff)
{
    PrinterMode mode = Paper(9);
    static const struct
    {
        int width;
        int length;
        const char* text;
    } cases[] = {{2100, 2970, "210mm x 297mm"}, {2109, 9, "210mm x 0mm"}, {-15, 32767, "-1mm x 3276mm"}};
    for (const auto& c : cases)
    {
        mode.paperWidth = c.width;
        mode.paperLength = c.length;
        EXPECT_EQ(PaperSizeText(mode), c.text);
    }
    mode.fields = ~printerFieldPaperSize;
    EXPECT_EQ(PaperNameText(mode), "no paper info");
    EXPECT_EQ(PaperSizeText(mode), "");
}

TEST(Printers, WithoutAModeHaveNoDuplexInfo)
{
    PrinterMode mode;
    mode.fields = ~printerFieldDuplex;
    EXPECT_EQ(DuplexText(mode), "no duplex info");
}

TEST(Printers, AreListedLocalOnesFirst)
{
    PrinterMode mode = Paper(9);
    mode.fields |= printerFieldDuplex;
    mode.duplex = 2;
    mode.paperWidth = 2100;
    mode.paperLength = 2970;
    PrintersFacts facts;
    facts.defaultPrinter = "no default printer found";
    EXPECT_EQ(LinesOf(facts), (Texts{"Printers", "  Default Printer : no default printer found"}));
    facts.printers = {{"Office", "LPT1:", "Some PS", mode},
                      {"Bare", "FILE:", "Other", PrinterMode()},
                      {"Plain", "LPT1:", "Old", std::nullopt}};
    facts.networkPrinters = {{R"(\\srv\Floor 2)", R"(\\srv)"}, {"Net", "Srv"}};
    Texts expected = {"Printers",
                      "  Default Printer : no default printer found",
                      "  Printer: Office on LPT1: (Some PS), Duplex Vertical, A4 210 x 297 mm, 210mm x 297mm",
                      "  Printer: Bare on FILE: (Other), no duplex info, no paper info, ",
                      "  Printer: Plain on LPT1: (Old), , , ",
                      "  Network Printer: \\\\srv\\Floor 2 on \\\\srv",
                      "  Network Printer: Net on Srv"};
    EXPECT_EQ(LinesOf(facts), expected);
    // A list of local printers that cannot be had does not end the part.
    facts.printers.clear();
    facts.failure = "The RPC server is unavailable.";
    expected.erase(expected.begin() + 3, expected.begin() + 5);
    expected[2] = "Cannot get printer information: The RPC server is unavailable.";
    EXPECT_EQ(LinesOf(facts), expected);
}
