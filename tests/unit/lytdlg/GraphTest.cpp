// What `lytdlg graph` draws of small descriptions.
#include "DrawnFolder.h"
#include "WellFormed.h"

#include <array>

namespace
{

DescriptionText Linked()
{
    DescriptionText text;
    text.layout = "TextBox 0, 0, 9, 9, .A\nListBox 0, 0, 9, 9, .L\nPushButton 0, 0, 9, 9, .B\n";
    text.values = "L = FILLEDBY, data, Open, Next, lists\nL: DBLCLICK = B\nB: DIALOG = other, back, out\n";
    text.dependencies = "L/ACTIVE = A(NOTNULL, x)\nNone/VISIBLE = A(1)\nL/FILL = A\nB/ACTIVE =\n";
    text.input = "Start: (\";\", Next, Rest, End = A, (x)L(CONCAT, \"|\")\n"
                 "Next: A(1, 2) = Start, Gone\nLost: (3, Start = Who\n";
    text.output = "A(1) = (\"%s\", A)\n(\"\")\n$OUTPUT, lists\n(\"lists\")\n$OUTPUT, unused\n(\"x\")\n";
    return text;
}

class Graph : public Drawn
{
protected:
    // The lines of the graph without the three that begin each and the one that ends it.
    std::string GraphOf(const std::string& kind, const std::string& description)
    {
        std::string graph = Draw("graph", description, "graph.dot", {"--of", kind});
        size_t begin = 0;
        for (int line = 0; line < 3; ++line)
            begin = graph.find('\n', begin) + 1;
        return graph.substr(begin, graph.size() - begin - 2);
    }
};

} // namespace

TEST_F(Graph, OfRulesHasAnEdgeForEachControlThatARuleAsks)
{
    EXPECT_EQ(GraphOf("rules", Linked()()), R"dot(  "control L" [label="L\nListBox, line 5"];
  "control A" [label="A\nTextBox, line 4"];
  "control A" -> "control L" [label="ACTIVE (NOTNULL, x)\nline 13"];
  "control None" [label="None\nno such control", color="red", fontcolor="red", style="dashed"];
  "control A" -> "control None" [label="VISIBLE (1)\nline 14", color="red", fontcolor="red", style="dashed"];
  "control A" -> "control L" [label="FILL (1)\nline 15, from line 14", color="red", fontcolor="red", style="dashed"];
  "control A" -> "control L" [label="FILL\nline 15"];
  "control B" [label="B\nPushButton, line 6"];
  "always in line 16" [label="always", shape="plaintext"];
  "always in line 16" -> "control B" [label="ACTIVE\nline 16"];
)dot");
    EXPECT_EQ(exitCode, 0);
    EXPECT_EQ(told, "");
}

TEST_F(Graph, OfTheScanHasItsStatesWithTheirFillsAndWaysOn)
{
    EXPECT_EQ(GraphOf("scan", Linked()()), R"dot(  subgraph "cluster 1" {
    label="part parent";
    "part 1 Start 19" [label="Start\nline 19\n= A\n(x) = L (CONCAT, '|')"];
    "part 1 Start 19" -> "part 1 Next 20" [label="';'"];
    "part 1 End" [label="End", shape="doublecircle"];
    "part 1 Start 19" -> "part 1 End" [label="'Rest', end of the text"];
    "part 1 Next 20" [label="Next\nline 20"];
    "part 1 Next 20" -> "part 1 Start 19" [label="if A(1, 2)"];
    "part 1 Gone" [label="Gone\nno such statement", color="red", fontcolor="red", style="dashed"];
    "part 1 Next 20" -> "part 1 Gone" [label="else"];
    "part 1 Lost 21" [label="Lost\nline 21\n= Who: no such control\nnever reached", color="red", fontcolor="red", style="dashed"];
    "part 1 Lost 21" -> "part 1 Start 19" [label="3 characters", style="dashed"];
  }
)dot");
}

TEST_F(Graph, OfGroupsTellsWhoUsesThem)
{
    EXPECT_EQ(GraphOf("groups", Linked()()), R"dot(  "dialog" [label="the dialog", shape="ellipse"];
  "part parent" [label="part parent\nline 18", shape="tab"];
  "dialog" -> "part parent" [label="its input"];
  "group parent" [label="group parent\nline 23", shape="note"];
  "dialog" -> "group parent" [label="its result"];
  "control L" [label="L\nListBox, line 5"];
  "library data" [label="data", shape="component"];
  "control L" -> "library data" [label="FILLEDBY Open\nline 9"];
  "group lists" [label="group lists\nline 26", shape="note"];
  "control L" -> "group lists" [label="hands over\nline 9"];
  "control B" [label="B\nPushButton, line 6"];
  "control L" -> "control B" [label="DBLCLICK\nline 10"];
  "file other.dlg" [label="other.dlg\nno such file", shape="folder", color="red", fontcolor="red", style="dashed"];
  "control B" -> "file other.dlg" [label="DIALOG\nline 11", color="red", fontcolor="red", style="dashed"];
  "group out" [label="group out\nno such group", shape="note", color="red", fontcolor="red", style="dashed"];
  "control B" -> "group out" [label="hands over\nline 11", color="red", fontcolor="red", style="dashed"];
  "part back" [label="part back\nno such part", shape="tab", color="red", fontcolor="red", style="dashed"];
  "control B" -> "part back" [label="takes apart\nline 11", color="red", fontcolor="red", style="dashed"];
  "group unused" [label="group unused\nline 28", shape="note", style="dashed"];
)dot");
}

TEST_F(Graph, IsPrintedWithoutAFileAndOfTheRulesUnlessToldOtherwise)
{
    const std::string graph = Draw("graph", Linked()(), "graph.dot", {"--of", "rules"});
    Run({"graph", folder.File("test.dlg")});
    EXPECT_EQ(printed, graph);
    EXPECT_NE(printed, "");
}

TEST_F(Graph, LeavesOutWhatTheLibraryCannotRead)
{
    DescriptionText text = Linked();
    text.dependencies += "wrong\n";
    EXPECT_NE(GraphOf("rules", text()), "");
    EXPECT_EQ(told, "lytdlg: test.dlg:17: left out: the library refuses it (212); `lytdlg check` tells more\n");
    EXPECT_EQ(exitCode, 1);
}

TEST_F(Graph, EndsForStatementsInACircleAndForTwoOfOneName)
{
    DescriptionText text = Linked();
    text.input = "Start: x = Start\nStart: x = Other\nOther: (\"\", Start)\n";
    const std::string graph = GraphOf("scan", text());
    EXPECT_NE(graph.find("never reached"), std::string::npos) << graph;
}

TEST_F(Graph, EscapesHostileTexts)
{
    DescriptionText text = Linked();
    text.dependencies = "L/ACTIVE = A(\"a\\\"b\", \"c\\nd\", \x01, {<]]>&})\n";
    const std::string graph = GraphOf("rules", text());
    // In that language a backslash and a quote are written with a backslash.
    EXPECT_NE(graph.find(R"(a\\\"b)"), std::string::npos) << graph;
    EXPECT_NE(graph.find(R"(c\\nd)"), std::string::npos) << graph;
    EXPECT_EQ(graph.find('\x01'), std::string::npos);
}

TEST_F(Graph, IsThereForEverySample)
{
    for (const char* name :
         {"finding", "lytCdGrp", "lytInPhr", "lytInSym", "lytRpGrp", "lytWzGrp", "lytWzPhr", "lytWzSym"})
    {
        for (const char* kind : {"rules", "scan", "groups"})
        {
            SCOPED_TRACE(std::string(name) + " " + kind);
            Run({"graph", LYT_SOURCE_FOLDER "/samples/dialogs/" + std::string(name) + ".dlg", "--of", kind});
            EXPECT_EQ(exitCode, 0);
            EXPECT_EQ(told, "");
            // Nothing in a sample is unknown or never reached.
            EXPECT_EQ(printed.find("red"), printed.find("reached")) << printed;
        }
    }
}

TEST_F(Graph, TellsWhatACommandLineShouldBe)
{
    const std::string dialog = folder.Write("test.dlg", Linked()());
    const std::array<std::pair<std::vector<std::string>, const char*>, 3> cases = {{
        {{"graph", dialog, "--of", "all"}, "lytdlg: there is no graph of \"all\"; use one of: rules, scan, groups\n"},
        {{"graph", dialog, "-o", "x.png"}, "lytdlg: \"x.png\" is no kind of graph; the name ends in .dot or .svg\n"},
        {{"graph", "none.dlg"}, "lytdlg: there is no dialog \"none.dlg\"; name a .dlg file with its folder\n"},
    }};
    for (const auto& [words, message] : cases)
    {
        Run(words);
        EXPECT_EQ(told, std::string(message) + "`lytdlg --help` lists commands and options.\n");
        EXPECT_EQ(exitCode, 2);
    }
}
