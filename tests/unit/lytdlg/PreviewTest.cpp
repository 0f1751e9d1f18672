// What `lytdlg preview` draws of small dialogs.
#include "DrawnFolder.h"
#include "WellFormed.h"
#include "lytdlg/draw/Markup.h"

namespace
{

DescriptionText SmallDialog()
{
    DescriptionText text;
    text.section = "TEXTS";
    text.layout = "Text 10, 10, 50, 12, \"LABEL\", .NameLabel\n"
                  "TextBox 60, 10, 60, 19, .Name\n"
                  "CheckBox 10, 40, 60, 12, \"MARK\", .Mark\n"
                  "TextBox 0, 0, 8, 8, .Hidden\n"
                  "OKButton 10, 60, 60, 22, .Ok\n";
    text.values = "Hidden = HIDDEN\nName = abc\n";
    text.input = "Start: (999, End = Name\n";
    return text;
}

std::string Replaced(std::string text, const std::string& from, const std::string& to)
{
    for (size_t at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

using Preview = Drawn;

} // namespace

TEST_F(Preview, ShowsHiddenControlsInOutlineWithTheNames)
{
    const std::string plain = Draw("preview", SmallDialog()(), "small.svg");
    EXPECT_EQ(plain.find("Hidden"), std::string::npos);
    EXPECT_EQ(plain.find(">NameLabel<"), std::string::npos);
    const std::string named = Draw("preview", SmallDialog()(), "small.svg", {"--names"});
    EXPECT_NE(named.find("stroke-dasharray"), std::string::npos);
    EXPECT_NE(named.find(">Hidden</text>"), std::string::npos);
    EXPECT_NE(named.find(">NameLabel</text>"), std::string::npos);
}

TEST_F(Preview, NumbersTheTabStopsAndPutsThoseThatArePassedOverInBrackets)
{
    DescriptionText text = SmallDialog();
    text.values += "Mark = INACTIVE\n";
    const std::string drawing = Draw("preview", text(), "small.svg", {"--tabs"});
    EXPECT_NE(drawing.find(">1</text>"), std::string::npos);
    EXPECT_NE(drawing.find(">(2)</text>"), std::string::npos);
    // The third is hidden, and drawn with the names only.
    EXPECT_EQ(drawing.find(">(3)</text>"), std::string::npos);
    EXPECT_NE(drawing.find(">4</text>"), std::string::npos);
}

TEST_F(Preview, TakesTheInputApart)
{
    const std::string drawing = Draw("preview", SmallDialog()(), "small.svg", {"--input", "xyz"});
    EXPECT_NE(drawing.find(">xyz</text>"), std::string::npos);
    EXPECT_EQ(drawing.find(">abc</text>"), std::string::npos);
}

TEST_F(Preview, CutsATextOffWhereTheWindowDoes)
{
    const std::string drawing =
        Draw("preview", Replaced(SmallDialog()(), "Name = abc", "Name = iiiiiiiiiiiiiiiiiiiiiiiiiiiiii"), "small.svg");
    // The field has room for 39 pixels; at 2 pixels each, 19 letters begin inside.
    EXPECT_NE(drawing.find(">iiiiiiiiiiiiiiiiiii</text>"), std::string::npos) << drawing;
}

TEST_F(Preview, GreysOutWhatIsDisabled)
{
    const std::string drawing =
        Draw("preview", Replaced(SmallDialog()(), "Name = abc", "Name = abc\nName = INACTIVE"), "small.svg");
    EXPECT_NE(drawing.find("fill=\"#8a8a8a\">abc</text>"), std::string::npos);
}

TEST_F(Preview, TellsTheNumberedMessageOfADialogThatIsRefused)
{
    EXPECT_EQ(
        Draw("preview", Replaced(SmallDialog()(), "$DEPENDANCES\n", "$DEPENDANCES\nName:ACTIVE = Mark(1)\n"), "no.svg"),
        "");
    EXPECT_EQ(told, "lytdlg: test.dlg: the library refuses it: 212: 212 '14'\n");
    EXPECT_EQ(exitCode, 1);
}

TEST_F(Preview, TellsMessagesThatTheDialogShowsWhileItOpens)
{
    DescriptionText text = SmallDialog();
    text.layout += "PushButton 0, 0, 9, 9, .Push\n";
    text.input = "Start: (999, End = Push\n";
    EXPECT_NE(Draw("preview", text(), "told.svg", {"--input", "x"}), "");
    EXPECT_EQ(told, "lytdlg: test.dlg: shows a message while it opens: 200 ''\n");
    EXPECT_EQ(exitCode, 1);
}

TEST_F(Preview, IsWellFormedWhateverTheTexts)
{
    std::string all;
    for (int code = 1; code < 256; ++code)
        all += static_cast<char>(code);
    for (const std::string& hostile : {std::string("]]>&#0;&amp;<!--'\"--></svg>"), all, std::string(3000, '<')})
    {
        // An apostrophe ends a caption, and a text has 74 characters; fields, values and names have no such limits.
        folder.WriteIni("");
        folder.Write("lang/Test.nls",
                     "[TEXTS]\r\nTITLE=" + Replaced(hostile.substr(0, 70), "\n", "") + "\r\nLABEL=&]]>&#x1;<b>\r\n");
        const std::string drawing =
            Draw("preview", SmallDialog()(), "hostile.svg", {"--names", "--tabs", "--input", hostile});
        EXPECT_EQ(MistakeOfXml(drawing), "");
        EXPECT_NE(drawing, "");
    }
}

TEST(Markup, EscapesWhatItCannotHold)
{
    const struct
    {
        const char* text;
        const char* escaped;
    } cases[] = {
        {"a<b>&\"'", "a&lt;b&gt;&amp;&quot;&#39;"},
        {"\t\r\n", "   "},
        {"\x01\x7F", "\xEF\xBF\xBD\xEF\xBF\xBD"},
        {"\xC3\xA4", "\xC3\xA4"},
        {"\xC3", "\xEF\xBF\xBD"},
        {"\xC2\x85", "\xEF\xBF\xBD"},
        {"\xEF\xBF\xBE", "\xEF\xBF\xBD"},
        {"\xE2\x82\xAC", "\xE2\x82\xAC"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(lytdlg::Escaped(c.text), c.escaped);
    // A surrogate and a form that is too long are no characters.
    for (const char* broken : {"\xED\xA0\x80", "\xE0\x80\xAF", "\xF4\x90\x80\x80", "\xFF"})
        EXPECT_EQ(lytdlg::Escaped(broken).find(broken), std::string::npos);
}
