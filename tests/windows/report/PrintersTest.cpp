#include "PrinterFacts.h"
#include "ReportTest.h"

namespace
{

class Printers : public ReportTest
{
protected:
    Texts PrinterLines() { return LinesBetween(Report(), "Printers", "PATH    :"); }
    // The line of the one printer that has this mode.
    std::string LineWith(const DEVMODEA& mode)
    {
        const LocalPrinter printer("Test", mode);
        return LineOf(PrinterLines(), "  Printer: Test");
    }
};

} // namespace

TEST_F(Printers, NoneAtAllLeavesTheHeadingAndTheDefaultLine)
{
    const DefaultPrinter none(nullptr);
    EXPECT_EQ(PrinterLines(), Texts{"  Default Printer : no default printer found"});
}

TEST_F(Printers, ShowsANegativePaperAsANumber)
{
    DEVMODEA mode = PrinterMode(DM_PAPERSIZE);
    mode.dmPaperSize = -7;
    EXPECT_EQ(LineWith(mode), "  Printer: Test on LPT1: (LYT Test Driver), no duplex info, -7???, 0mm x 0mm");
}

TEST_F(Printers, ListsEachPrinter)
{
    const LocalPrinter first("Test One", PrinterMode(0));
    const LocalPrinter second("Test Two", PrinterMode(0));
    const Texts lines = PrinterLines();
    EXPECT_EQ(CountLines(lines, "  Printer: "), 2U);
    EXPECT_TRUE(HasLine(lines, "  Printer: Test One on LPT1: "));
    EXPECT_TRUE(HasLine(lines, "  Printer: Test Two on LPT1: "));
}
