// The requests that play a dialog and change its layout, over the samples.
#include "CommandRun.h"
#include "ServerSession.h"

#include "lytdlg/language/EditorText.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace lytdlg
{

namespace
{

const std::string samples = LYT_SOURCE_FOLDER "/samples";

Json Asked(const std::string& dialog, const std::string& input, const std::vector<std::string>& acts)
{
    Json params = ServerSession::Document(samples + "/dialogs/" + dialog);
    params["input"] = input;
    params["language"] = "English";
    params["dpi"] = 96;
    params["acts"] = acts;
    return params;
}

// What came of a play, in one line.
std::string SaidOf(const Json& played)
{
    std::string text = played["outcome"];
    if (played.contains("result"))
        text += " " + played["result"].get<std::string>();
    if (played.contains("failed"))
        text += " failed" + played["failed"]["act"].dump();
    for (const Json& message : played["messages"])
        text += " message" + message["act"].dump();
    for (const Json& window : played["dialogs"])
        text += " [" + window["title"].get<std::string>() + "]";
    return text;
}

const Json& ControlIn(const Json& window, const std::string& target)
{
    static const Json none;
    for (const Json& control : window["controls"])
    {
        if (control["target"] == target)
            return control;
    }
    return none;
}

std::string TextAt(const std::string& bytes, const Json& range)
{
    const std::vector<std::string> lines = commandline::LinesOf(bytes);
    const size_t line = range["start"]["line"];
    const size_t begin = range["start"]["character"];
    return lines.at(line).substr(begin, range["end"]["character"].get<size_t>() - begin);
}

// The edits of an answer for a file, from the last to the first.
std::string WithEdits(const std::string& bytes, const Json& answer, const std::string& path)
{
    EditorText text(commandline::ToUtf8(bytes));
    Json edits = answer["result"]["changes"].value(UriOf(path), Json::array());
    std::reverse(edits.begin(), edits.end());
    for (const Json& edit : edits)
        text.Replace(edit["range"].get<TextRange>(), edit["newText"]);
    return text.Bytes();
}

// Handles of windows in memory count up.
uintptr_t NextWindow()
{
    HWND window = CreateWindowExA(0, "STATIC", "", 0, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr);
    DestroyWindow(window);
    return reinterpret_cast<uintptr_t>(window);
}

std::string LineOf(const std::string& bytes, size_t line)
{
    return commandline::LinesOf(bytes).at(line);
}

} // namespace

TEST(Requests, PlaysActsAndTellsWhatCameOfThem)
{
    const struct
    {
        const char* dialog;
        const char* input;
        std::vector<std::string> acts;
        const char* outcome;
    } cases[] = {
        {"lytInSym.dlg", "S1:area(2,m2)", {}, "open [Properties of a value]"},
        {"lytInSym.dlg", "S1:area(2,m2)", {"set Unit = m3", "ok"}, "confirmed S1:area(2,m3) [Properties of a value]"},
        {"lytInSym.dlg", "S1:area", {"cancel"}, "cancelled [Properties of a value]"},
        {"lytInSym.dlg", "S1:area", {"set Name = \"\"", "ok"}, "refused message1 [Properties of a value]"},
        {"lytInSym.dlg", "S1:area", {"set Name = b", "press Nobody", "ok"}, "open failed1 [Properties of a value]"},
        {"lytInSym.dlg", "S1:area", {"set Name = b", "no act", "ok"}, "open failed1 [Properties of a value]"},
        {"lytInSym.dlg", "S1:b", {"ok", "set Name = b"}, "confirmed S1:b failed1 [Properties of a value]"},
        {"lytInSym.dlg", "S1:b", {"press #12"}, "confirmed S1:b [Properties of a value]"},
    };
    ServerSession session;
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.outcome);
        EXPECT_EQ(SaidOf(session.ResultOf("lytdlg/play", Asked(c.dialog, c.input, c.acts))), c.outcome);
    }
}

TEST(Requests, TellsOfAControlWhatAPageNeedsToDrawIt)
{
    ServerSession session;
    const std::string bytes = ReadWholeFile(samples + "/dialogs/lytInSym.dlg").value();
    const Json played = session.ResultOf("lytdlg/play", Asked("lytInSym.dlg", "S1:area(2,m2)", {"set Digits = \"\""}));
    const Json& window = played["dialogs"][0];
    EXPECT_EQ(window["kind"], "dialog");
    const Json& unit = ControlIn(window, "Unit");
    EXPECT_EQ(unit["type"], "TextBox");
    EXPECT_EQ(unit["text"], "m2");
    EXPECT_EQ(unit["value"], "m2");
    EXPECT_FALSE(unit["enabled"].get<bool>());
    EXPECT_TRUE(unit["shown"].get<bool>());
    EXPECT_EQ(unit["place"]["x"], 3 + static_cast<int>(176 * 0.7557));
    EXPECT_EQ(TextAt(bytes, unit["range"]), "TextBox   176,  76, 255,  19, .Unit");
    EXPECT_FALSE(ControlIn(window, "Mark")["shown"].get<bool>());
    EXPECT_TRUE(ControlIn(window, "Digits")["focus"].get<bool>());
    // The frame has no name.
    EXPECT_EQ(ControlIn(window, "#1")["type"], "GroupBox");
}

// The drawing is that of `lytdlg preview`, which PreviewSamplesTest.cpp and SamplePlacesTest.cpp compare with live windows. The
// tests of the engine and of the page compare their places with these.
TEST(Requests, PlacesControlsWhereTheyAreDrawn)
{
    ServerSession session;
    for (const char* name :
         {"finding", "lytCdGrp", "lytInPhr", "lytInSym", "lytRpGrp", "lytWzGrp", "lytWzPhr", "lytWzSym"})
    {
        for (const char* language : {"English", "German"})
        {
            for (const int dpi : {96, 120})
            {
                SCOPED_TRACE(std::string(name) + " " + language + " " + std::to_string(dpi));
                Json params = Asked(std::string(name) + ".dlg", "", {});
                params["language"] = language;
                params["dpi"] = dpi;
                params["svg"] = true;
                const Json played = session.ResultOf("lytdlg/play", params);
                const std::string svg = played["svg"];
                const CommandRun preview({"preview", samples + "/dialogs/" + name + ".dlg", "--language", language,
                                          "--dpi", std::to_string(dpi)});
                EXPECT_EQ(preview.output, "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n" + svg);
                const Json& window = played["dialogs"][0];
                for (const Json& control : window["controls"])
                {
                    const Json& place = control["place"];
                    if (!control["shown"].get<bool>() || place.is_null())
                        continue;
                    const auto number = [&](const char* side) { return place[side].get<int>(); };
                    const std::string drawn =
                        "<svg x=\"" + std::to_string(number("x") - window["client"]["x"].get<int>()) + "\" y=\"" +
                        std::to_string(number("y") - window["client"]["y"].get<int>()) + "\" width=\"" +
                        std::to_string(number("width")) + "\" height=\"" + std::to_string(number("height")) + "\">";
                    EXPECT_NE(svg.find(drawn), std::string::npos) << control["target"] << " " << drawn;
                }
            }
        }
    }
}

// The catalogue and a nested dialog are over the dialog that opened them, and acts reach them.
TEST(Requests, PlaysOnTheWindowOnTop)
{
    const struct
    {
        std::vector<std::string> acts;
        const char* outcome;
    } cases[] = {
        {{"press NewFinding"}, "open [Findings of an inspection] [A finding]"},
        {{"press NewFinding", "cancel"}, "open [Findings of an inspection]"},
        {{"press Pick"}, "open [Findings of an inspection] [Catalogue of the inspection]"},
        {{"press Pick", "select #3 \"Site/Nowhere\""},
         "open failed1 [Findings of an inspection] [Catalogue of the inspection]"},
        {{"press Pick", "cancel"}, "open [Findings of an inspection]"},
    };
    ServerSession session;
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.outcome);
        EXPECT_EQ(SaidOf(session.ResultOf("lytdlg/play", Asked("lytRpGrp.dlg", "", c.acts))), c.outcome);
    }
    const std::vector<std::string> acts = {"press Pick", "expand #3 \"Site/Access\"", "select #3 \"Site/Access\""};
    const Json played = session.ResultOf("lytdlg/play", Asked("lytRpGrp.dlg", "", acts));
    const Json& tree = played["dialogs"][1]["controls"][2];
    EXPECT_EQ(played["dialogs"][1]["kind"], "window");
    EXPECT_EQ(tree["type"], "Tree");
    EXPECT_EQ(tree["chosen"], 1);
    EXPECT_EQ(tree["items"][1]["path"], "Site/Access");
    EXPECT_TRUE(tree["items"][1]["open"].get<bool>());
    EXPECT_EQ(tree["items"][2]["level"], 2);
}

TEST(Requests, TellsWhatDecidesAControl)
{
    ServerSession session;
    Json params = Asked("lytInSym.dlg", "S1:area(2,m2)", {"set Digits = \"\""});
    params["target"] = "Unit";
    const Json why = session.ResultOf("lytdlg/why", params);
    EXPECT_EQ(why["sentences"][1]["text"], "It is disabled by the rule in line 34: Digits holds nothing.");
    EXPECT_EQ(why["sentences"][1]["range"], why["rules"][0]["range"]);
    ASSERT_EQ(why["rules"].size(), 1U);
    EXPECT_EQ(why["rules"][0]["word"], "ACTIVE");
    EXPECT_TRUE(why["rules"][0]["decides"].get<bool>());
    EXPECT_FALSE(why["rules"][0]["holds"].get<bool>());
    EXPECT_EQ(why["rules"][0]["conditions"], (Json{{{"text", "Digits holds nothing"}, {"holds", false}}}));
    params["target"] = "#1";
    EXPECT_EQ(session.ResultOf("lytdlg/why", params)["rules"], Json::array());
    params["target"] = "Nobody";
    EXPECT_TRUE(session.Ask("lytdlg/why", params).contains("error"));
}

TEST(Requests, TellsTheWayOfATextInAndOut)
{
    ServerSession session;
    const std::string input = "S1:area(2,m2)=\"n. a.\"";
    const Json way = session.ResultOf("lytdlg/way", Asked("lytInSym.dlg", input, {"set Unit = m3"}));
    std::string in;
    for (const Json& step : way["steps"])
    {
        const size_t begin = step["begin"];
        in +=
            step["statement"].get<std::string>() + " <" + input.substr(begin, step["end"].get<size_t>() - begin) + ">";
        for (const Json& fill : step["fills"])
            in += " " + fill["target"].get<std::string>();
        in += "\n";
    }
    EXPECT_EQ(in, "Start <S1> Mark Name\nKnown <>\nName <area> Name\nDigits <2> Digits\nComma <>\nUnit <m2> Unit\n"
                  "Equals <>\nMissing <n. a.> Missing\n");
    EXPECT_EQ(way["rest"], Json());
    const std::string result = way["result"];
    EXPECT_EQ(result, "S1:area(2,m3)=\"n. a.\"");
    std::string out;
    for (const Json& piece : way["pieces"])
    {
        const size_t begin = piece["begin"];
        out += piece["target"].get<std::string>() + " <" + result.substr(begin, piece["end"].get<size_t>() - begin) +
               ">\n";
    }
    EXPECT_EQ(out, "Name <area>\nDigits <2>\nUnit <m3>\nMissing <n. a.>\n");
    EXPECT_EQ(way["refusals"].size(), 5U);
    const Json confirmed = session.ResultOf("lytdlg/way", Asked("lytInSym.dlg", input, {"set Unit = m3", "ok"}));
    EXPECT_EQ(confirmed["pieces"], way["pieces"]);
}

TEST(Requests, PlaysActsThatCloseTheDialogOnce)
{
    ServerSession session;
    const auto windowsOf = [&](const char* method, const std::vector<std::string>& acts)
    {
        const uintptr_t before = NextWindow();
        session.ResultOf(method, Asked("lytInSym.dlg", "S1:area", acts));
        return NextWindow() - before;
    };
    for (const char* method : {"lytdlg/play", "lytdlg/way"})
    {
        SCOPED_TRACE(method);
        const uintptr_t open = windowsOf(method, {"set Name = b"});
        EXPECT_GT(open, 12U);
        for (const char* last : {"ok", "cancel", "press #12", "key return", "key escape"})
            EXPECT_EQ(windowsOf(method, {"set Name = b", last}), open) << last;
    }
}

// A case that is made of what a user has done passes.
TEST(Requests, MakesCasesThatPass)
{
    const TestFolder folder;
    std::filesystem::copy(samples + "/dialogs", folder.File("dialogs"), std::filesystem::copy_options::recursive);
    std::filesystem::create_directory(folder.File("cases"));
    const std::string dialog = folder.File("dialogs/lytInSym.dlg");
    const std::string file = folder.File("cases/lytInSym.case");
    const std::vector<std::vector<std::string>> plays = {
        {}, {"set Unit = \"m\xC2\xB3\"", "ok"}, {"set Name = \"\"", "ok"}, {"set Name = a", "cancel"}};
    std::string content;
    for (const std::vector<std::string>& acts : plays)
    {
        ServerSession session;
        Json params = ServerSession::Document(dialog);
        params["input"] = "S1:area(2,m2)";
        params["language"] = "German";
        params["acts"] = acts;
        params["name"] = "case " + std::to_string(acts.size());
        content = WithEdits(content, session.Ask("lytdlg/newCase", params), PlainPath(file));
        folder.Write("cases/lytInSym.case", content);
    }
    EXPECT_EQ(CommandRun({"test", file}).output, "4 passed, 0 failed\n");
    ServerSession session;
    const Json cases = session.ResultOf("lytdlg/cases", ServerSession::Document(dialog))["cases"];
    ASSERT_EQ(cases.size(), plays.size());
    EXPECT_EQ(cases[1]["acts"], (Json{"set Unit = \"m\xC2\xB3\"", "ok"}));
    folder.Write("cases/lytInSym.case", content + "expect Name = \"b\"\n");
    const Json changed = session.ResultOf("lytdlg/cases", ServerSession::Document(dialog))["cases"];
    EXPECT_TRUE(changed[0]["passed"].get<bool>());
    EXPECT_FALSE(changed[3]["passed"].get<bool>());
    EXPECT_EQ(changed[3]["differences"][0]["expected"], "expect Name = \"b\"");
    Json onlyRead = ServerSession::Document(dialog);
    onlyRead["run"] = false;
    const Json read = session.ResultOf("lytdlg/cases", onlyRead)["cases"];
    EXPECT_EQ(read[3]["input"], "S1:area(2,m2)");
    EXPECT_FALSE(read[3].contains("passed"));
}

TEST(Requests, MakesCasesOfActsOnTheCatalogue)
{
    const TestFolder folder;
    std::filesystem::copy(samples + "/dialogs", folder.File("dialogs"), std::filesystem::copy_options::recursive);
    std::filesystem::copy(samples + "/init", folder.File("init"), std::filesystem::copy_options::recursive);
    const std::string file = folder.File("dialogs/lytRpGrp.case");
    const std::vector<std::vector<std::string>> plays = {
        {"press Pick", "select #3 \"Site/Access\"", "expand #3 \"Site/Access\""},
        {"press Pick", "select #3 \"Site/Access\"", "cancel"},
        {"press Pick", "select #3 \"Site/Access/Gates\"", "ok", "check Costs"}};
    std::string content;
    for (const std::vector<std::string>& acts : plays)
    {
        ServerSession session;
        Json params = ServerSession::Document(folder.File("dialogs/lytRpGrp.dlg"));
        params["acts"] = acts;
        params["name"] = "picked";
        content = WithEdits(content, session.Ask("lytdlg/newCase", params), PlainPath(file));
        folder.Write("dialogs/lytRpGrp.case", content);
    }
    EXPECT_EQ(CommandRun({"test", file}).output, "3 passed, 0 failed\n") << content;
}

TEST(Requests, ChangeALayoutWhereItMustChange)
{
    ServerSession session;
    const std::string path = PlainPath(samples + "/dialogs/lytInSym.dlg");
    const std::string bytes = ReadWholeFile(PathOf(path)).value();
    const auto changed = [&](const char* method, Json more)
    {
        Json params = ServerSession::Document(path);
        params.update(more);
        return WithEdits(bytes, session.Ask(method, params), path);
    };
    const std::string placed =
        changed("lytdlg/place", {{"dpi", 96}, {"places", {{{"line", 18}, {"x", 133}, {"y", 90}, {"width", 192}}}}});
    EXPECT_EQ(LineOf(placed, 18), "    TextBox   176,  84, 255,  19, .Unit");
    EXPECT_EQ(changed("lytdlg/order", {{"lines", {14, 16}}}), bytes);
    const std::string ordered = changed("lytdlg/order", {{"lines", {18, 14, 16}}});
    EXPECT_EQ(LineOf(ordered, 14), LineOf(bytes, 18));
    EXPECT_EQ(LineOf(ordered, 16), LineOf(bytes, 14));
    EXPECT_EQ(LineOf(ordered, 18), LineOf(bytes, 16));
    EXPECT_EQ(LineOf(changed("lytdlg/removeControls", {{"lines", {18}}}), 18), LineOf(bytes, 19));
    const Json place = {{"dpi", 120}, {"x", 100}, {"y", 50}, {"width", 80}, {"height", 20}};
    Json box = place;
    box.update(Json{{"type", "CheckBox"}, {"text", "\xC3\xA4"}});
    EXPECT_EQ(LineOf(changed("lytdlg/newControl", box), 23), "    CheckBox 100, 38, 80, 15, \"CheckBox1\", .CheckBox1");
    box.update(ServerSession::Document(path));
    const std::string german = PlainPath(samples + "/dialogs/lang/German.nls");
    const std::string texts =
        WithEdits(ReadWholeFile(PathOf(german)).value(), session.Ask("lytdlg/newControl", box), german);
    EXPECT_NE(texts.find("\nCheckBox1=\xE4\n"), std::string::npos);
    Json list = place;
    list.update(Json{{"type", "ListBox"}, {"name", "Places"}, {"after", 15}});
    EXPECT_EQ(LineOf(changed("lytdlg/newControl", list), 16), "    ListBox 100, 38, 80, 15, .Places");
    for (const Json& wrong : {Json{{"type", "Nothing"}}, Json{{"type", "ListBox"}, {"name", "Unit"}}})
    {
        list.update(wrong);
        list.update(ServerSession::Document(path));
        EXPECT_TRUE(session.Ask("lytdlg/newControl", list).contains("error"));
    }
}

} // namespace lytdlg
