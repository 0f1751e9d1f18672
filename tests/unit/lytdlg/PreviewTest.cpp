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

TEST_F(Preview, DrawsWindowAndControlsPixelForPixel)
{
    EXPECT_EQ(Draw("preview", SmallDialog()(), "small.svg"), R"(<?xml version="1.0" encoding="UTF-8"?>
<svg xmlns="http://www.w3.org/2000/svg" width="155" height="135" viewBox="0 0 155 135" font-family="Tahoma, &#39;DejaVu Sans Condensed&#39;, &#39;Liberation Sans&#39;, sans-serif" font-size="10.6">
  <title>A &amp; B &lt;1&gt;</title>
  <rect x="0.5" y="0.5" width="154" height="134" fill="#f4f4f4" stroke="#696969"/>
  <rect x="3" y="3" width="149" height="18" fill="#3399ff"/>
  <svg x="3" y="3" width="149" height="18">
    <text x="2" y="13" fill="#000000" font-weight="bold">A &amp; B &lt;1&gt;</text>
    <rect x="133.5" y="2.5" width="13" height="13" fill="#ffffff" stroke="#aeaeae"/>
    <path d="M136.5 5.5L143.5 12.5" stroke="#000000"/>
    <path d="M136.5 12.5L143.5 5.5" stroke="#000000"/>
  </svg>
  <svg x="3" y="22" width="149" height="110">
    <g id="control-1">
      <title>NameLabel: Text</title>
      <svg x="7" y="10" width="37" height="13">
        <text x="0 8 14 22 28" y="11" fill="#000000">Name:</text>
        <rect x="0" y="12" width="8" height="1" fill="#000000"/>
      </svg>
    </g>
    <g id="control-2">
      <title>Name: TextBox</title>
      <svg x="45" y="10" width="45" height="20">
        <rect x="0.5" y="0.5" width="44" height="19" fill="#ffffff" stroke="#aeaeae"/>
        <path d="M2.5 2.5L42.5 2.5" stroke="#696969"/>
        <path d="M2.5 2.5L2.5 17.5" stroke="#696969"/>
        <path d="M2.5 17.5L42.5 17.5" stroke="#e3e3e3"/>
        <path d="M42.5 2.5L42.5 17.5" stroke="#e3e3e3"/>
        <svg x="3" y="3" width="39" height="14">
          <text x="1 7 13" y="11" fill="#000000">abc</text>
          <rect x="1" y="0" width="18" height="13" fill="#3399ff"/>
          <text x="1 7 13" y="11" fill="#ffffff">abc</text>
        </svg>
      </svg>
    </g>
    <g id="control-3">
      <title>Mark: CheckBox</title>
      <svg x="7" y="43" width="84" height="13">
        <rect x="0.5" y="0.5" width="12" height="12" fill="#ffffff" stroke="#aeaeae" rx="2"/>
        <path d="M3 6l3 3l5 -6" fill="none" stroke="#000000" stroke-width="2"/>
        <text x="17 28 30 33 39 42 48 51 59 65 68" y="11" fill="#000000">With &amp; more</text>
      </svg>
    </g>
    <g id="control-5">
      <title>Ok: OKButton</title>
      <svg x="7" y="64" width="45" height="23">
        <rect x="0.5" y="0.5" width="44" height="22" fill="#ffffff" stroke="#3399ff" rx="2"/>
        <text x="15 23" y="16" fill="#000000">OK</text>
        <rect x="15" y="17" width="8" height="1" fill="#000000"/>
      </svg>
    </g>
  </svg>
</svg>
)");
    EXPECT_EQ(exitCode, 0);
}

TEST_F(Preview, PrintsTheDrawingWithoutAFile)
{
    const std::string drawing = Draw("preview", SmallDialog()(), "small.svg");
    Run({"preview", folder.File("test.dlg")});
    EXPECT_EQ(printed, drawing);
    EXPECT_NE(printed, "");
}

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

TEST_F(Preview, TellsWhatACommandLineShouldBe)
{
    const std::string dialog = folder.Write("test.dlg", SmallDialog()());
    const struct
    {
        std::vector<std::string> words;
        const char* message;
    } cases[] = {
        {{"preview", dialog, "-o", "x.png"}, "lytdlg: \"x.png\" is no kind of picture; the name ends in .svg\n"},
        {{"preview", "none.dlg"}, "lytdlg: there is no dialog \"none.dlg\"; name a .dlg file with its folder\n"},
    };
    for (const auto& c : cases)
    {
        Run(c.words);
        EXPECT_EQ(told, std::string(c.message) + "`lytdlg --help` lists commands and options.\n");
        EXPECT_EQ(exitCode, 2);
    }
}

TEST_F(Preview, TellsOfAFileThatCannotBeWritten)
{
    Draw("preview", SmallDialog()(), "small.svg");
    Run({"preview", folder.File("test.dlg"), "-o", "no-such-folder/x.svg"});
    EXPECT_EQ(
        told,
        "lytdlg: no-such-folder/x.svg cannot be written (No such file or directory); make its folder first, or choose "
        "another\n");
    EXPECT_EQ(exitCode, 1);
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
