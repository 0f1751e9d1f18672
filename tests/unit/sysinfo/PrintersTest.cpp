#include "sysinfo/printers/Printers.h"

#include "Lines.h"

#include <gtest/gtest.h>

namespace
{

PrinterMode Paper(int number)
{
    PrinterMode mode;
    mode.fields = printerFieldPaperSize;
    mode.paperSize = number;
    return mode;
}

Texts LinesOf(const PrintersFacts& facts)
{
    CStringList lines;
    AddPrinterLines(facts, lines);
    return TextsOf(lines);
}

} // namespace

// clang-format off
TEST(Printers, NamesEachPaperByItsNumber)
{
    static const char* const names[] = {
        "Not available", "Letter 8 1/2 x 11 in", "Letter Small 8 1/2 x 11 in", "Tabloid 11 x 17 in",
        "Ledger 17 x 11 in", "Legal 8 1/2 x 14 in", "Statement 5 1/2 x 8 1/2 in", "Executive 7 1/4 x 10 1/2 in",
        "A3 297 x 420 mm", "A4 210 x 297 mm", "A4 Small 210 x 297 mm", "A5 148 x 210 mm", "B4 (JIS) 250 x 354",
        "B5 (JIS) 182 x 257 mm", "Folio 8 1/2 x 13 in", "Quarto 215 x 275 mm", "10x14 in", "11x17 in",
        "Note 8 1/2 x 11 in", "Envelope #9 3 7/8 x 8 7/8", "Envelope #10 4 1/8 x 9 1/2", "Envelope #11 4 1/2 x 10 3/8",
        "Envelope #12 4 \xBE x 11", "Envelope #14 5 x 11 1/2", "C size sheet", "D size sheet", "E size sheet",
        "Envelope DL 110 x 220mm", "Envelope C5 162 x 229 mm", "Envelope C3  324 x 458 mm", "Envelope C4  229 x 324 mm",
        "Envelope C6  114 x 162 mm", "Envelope C65 114 x 229 mm", "Envelope B4  250 x 353 mm",
        "Envelope B5  176 x 250 mm", "Envelope B6  176 x 125 mm", "Envelope 110 x 230 mm",
        "Envelope Monarch 3.875 x 7.5 in", "6 3/4 Envelope 3 5/8 x 6 1/2 in", "US Std Fanfold 14 7/8 x 11 in",
        "German Std Fanfold 8 1/2 x 12 in", "German Legal Fanfold 8 1/2 x 13 in", "B4 (ISO) 250 x 353 mm",
        "Japanese Postcard 100 x 148 mm", "9 x 11 in", "10 x 11 in", "15 x 11 in", "Envelope Invite 220 x 220 mm",
        "RESERVED--DO NOT USE", "RESERVED--DO NOT USE", "Letter Extra 9 \xBD x 12 in", "Legal Extra 9 \xBD x 15 in",
        "Tabloid Extra 11.69 x 18 in", "A4 Extra 9.27 x 12.69 in", "Letter Transverse 8 \xBD x 11 in",
        "A4 Transverse 210 x 297 mm", "Letter Extra Transverse 9\xBD x 12 in", "SuperA/SuperA/A4 227 x 356 mm",
        "SuperB/SuperB/A3 305 x 487 mm", "Letter Plus 8.5 x 12.69 in", "A4 Plus 210 x 330 mm",
        "A5 Transverse 148 x 210 mm", "B5 (JIS) Transverse 182 x 257 mm", "A3 Extra 322 x 445 mm",
        "A5 Extra 174 x 235 mm", "B5 (ISO) Extra 201 x 276 mm", "A2 420 x 594 mm", "A3 Transverse 297 x 420 mm",
        "A3 Extra Transverse 322 x 445 mm", "Japanese Double Postcard 200 x 148 mm", "A6 105 x 148 mm",
        "Japanese Envelope Kaku #2", "Japanese Envelope Kaku #3", "Japanese Envelope Chou #3",
        "Japanese Envelope Chou #4", "Letter Rotated 11 x 8 1/2 11 in", "A3 Rotated 420 x 297 mm",
        "A4 Rotated 297 x 210 mm", "A5 Rotated 210 x 148 mm", "B4 (JIS) Rotated 364 x 257 mm",
        "B5 (JIS) Rotated 257 x 182 mm", "Japanese Postcard Rotated 148 x 100 mm", "A6 Rotated 148 x 105 mm",
        "Japanese Envelope Kaku #2 Rotated", "Japanese Envelope Kaku #3 Rotated", "Japanese Envelope Chou #3 Rotated",
        "Japanese Envelope Chou #4 Rotated", "B6 (JIS) 128 x 182 mm", "B6 (JIS) Rotated 182 x 128 mm", "12 x 11 in",
        "Japanese Envelope You #4", "Japanese Envelope You #4 Rotated", "PRC 16K 146 x 215 mm", "PRC 32K 97 x 151 mm",
        "PRC 32K(Big) 97 x 151 mm", "PRC Envelope #1 102 x 165 mm", "PRC Envelope #2 102 x 176 mm",
        "PRC Envelope #3 125 x 176 mm", "PRC Envelope #4 110 x 208 mm", "PRC Envelope #5 110 x 220 mm",
        "PRC Envelope #6 120 x 230 mm", "PRC Envelope #7 160 x 230 mm", "PRC Envelope #8 120 x 309 mm",
        "PRC Envelope #9 229 x 324 mm", "PRC Envelope #10 324 x 458 mm", "PRC 16K Rotated", "PRC 32K Rotated",
        "PRC 32K(Big) Rotated", "PRC Envelope #1 Rotated 165 x 102 mm", "PRC Envelope #2 Rotated 176 x 102 mm",
        "PRC Envelope #3 Rotated 176 x 125 mm", "PRC Envelope #4 Rotated 208 x 110 mm",
        "PRC Envelope #5 Rotated 220 x 110 mm", "PRC Envelope #6 Rotated 230 x 120 mm",
        "PRC Envelope #7 Rotated 230 x 160 mm", "PRC Envelope #8 Rotated 309 x 120 mm",
        "PRC Envelope #9 Rotated 324 x 229 mm", "PRC Envelope #10 Rotated 458 x 324 mm"
    };
    ASSERT_EQ(std::size(names), 118U);
    for (int number = 0; number < 118; ++number)
        EXPECT_EQ(PaperNameText(Paper(number)), names[number]) << number;
}
// clang-format on

TEST(Printers, ShowsAnyOtherPaperAsANumberOrAsUserDefined)
{
    for (const int number : {118, 255, -1, -32768})
        EXPECT_EQ(PaperNameText(Paper(number)), (std::to_string(number) + "???").c_str());
    for (const int number : {256, 32767})
        EXPECT_EQ(PaperNameText(Paper(number)), "User defined");
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

TEST(Printers, NamesEachDuplexMode)
{
    static const struct
    {
        int number;
        const char* name;
    } cases[] = {{0, "Duplex not available"},
                 {1, "Simplex"},
                 {2, "Duplex Vertical"},
                 {3, "Duplex Horizontal"},
                 {4, "4???"},
                 {5, "5???"},
                 {-2, "-2???"}};
    PrinterMode mode;
    mode.fields = printerFieldDuplex;
    for (const auto& c : cases)
    {
        mode.duplex = c.number;
        EXPECT_EQ(DuplexText(mode), c.name);
    }
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
