// What `lytdlg graph` draws of small descriptions.
#include "DrawnFolder.h"
#include "WellFormed.h"

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

TEST_F(Graph, LeavesOutWhatTheLibraryCannotRead)
{
    DescriptionText text = Linked();
    text.dependencies += "wrong\n";
    EXPECT_NE(GraphOf("rules", text()), "");
    EXPECT_EQ(told, "lytdlg: test.dlg:17: left out: the library refuses it (212); `lytdlg check` says more\n");
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
