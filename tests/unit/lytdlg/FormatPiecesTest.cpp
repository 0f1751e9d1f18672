// A format is counted as the composition takes it apart.
#include "lytdlg/judge/FormatPieces.h"
#include "dialog/ClytDialog.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

// How many items the composition puts into the text, or that it fails.
std::string TakenByComposition(const char* format)
{
    constexpr char mark = '\x01';
    CStringArray items;
    for (int index = 0; index < 25; ++index)
        items.Add(CString(mark));
    try
    {
        const std::string text = ClytDialog::FormatOutput(format, items).GetString();
        return std::to_string(std::ranges::count(text, mark));
    }
    catch (CException* e)
    {
        e->Delete();
        return "fails";
    }
}

std::string TakenByPieces(const char* format)
{
    const auto fails = [](const lytdlg::FormatPiece& piece)
    { return piece.kind == lytdlg::FormatPieceKind::LonePoint || piece.kind == lytdlg::FormatPieceKind::OpenPercent; };
    const bool isFailure = std::ranges::any_of(lytdlg::PiecesOf(format), fails);
    return isFailure ? "fails" : std::to_string(lytdlg::TakenItems(format));
}

} // namespace

TEST(FormatPieces, AreCountedAsTheCompositionTakesThem)
{
    static const char* const formats[] = {
        "",        "plain s.",    "%s",       "%s;%s", "size %s", "%.5s", "%0.5s",   "%5s;%s", "%d;%s",
        "%.5d;%s", "a.%s",        "%s.",      "%s%",   "%",       "%%s",  "%-.5s%s", "0%s",    "%0s%s",
        "%.1x s",  "%. 3s|%.+2s", "%s \\n%s", "ss%ss", "%.0005s", "S%sS", "\"%s\""};
    for (const char* format : formats)
        EXPECT_EQ(TakenByPieces(format), TakenByComposition(format)) << format;
}
