// What the language server answers, and that nothing ends it.
#include "CommandRun.h"
#include "ServerSession.h"

#include "ExampleFindings.h"
#include "FolderContents.h"
#include "lytdlg/judge/Rule.h"
#include "lytdlg/serve/MessageStream.h"
#include "lytdlg/text/Words.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace lytdlg
{

namespace
{

const std::string samples = LYT_SOURCE_FOLDER "/samples/dialogs/";

std::string LineOf(const std::string& path, int line, int column, int length, const std::string& rule,
                   const std::string& message)
{
    return PlainPath(path) + ":" + std::to_string(line) + ":" + std::to_string(column) + "+" + std::to_string(length) +
           " " + rule + ": " + message + "\n";
}

// As `lytdlg check` prints them.
std::string CheckedFindings(const std::string& path)
{
    std::string lines;
    const Json report = Json::parse(CommandRun({"check", path, "--format", "json"}).output);
    for (const Json& finding : report["findings"])
    {
        std::string message = finding["message"];
        for (const Json& other : finding.value("more", Json::array()))
            message += ", " + std::to_string(other["line"].get<int>());
        if (finding.contains("number"))
            message += " (message " + finding["number"].get<std::string>() + ")";
        if (!finding["hint"].get<std::string>().empty())
            message += "\nhint: " + finding["hint"].get<std::string>();
        lines += LineOf(finding["path"], std::max(1, finding["line"].get<int>()), finding["column"], finding["length"],
                        finding["rule"], message);
    }
    return lines;
}

std::string MessageOf(const Json& finding)
{
    std::string message = finding["message"];
    const Json more = finding.value("relatedInformation", Json::array());
    if (more.empty())
        return message;
    const size_t place = message.find("; and " + std::to_string(more.size()) + " more in line");
    const size_t end = std::min(message.find_first_of("(\n", place), message.size());
    std::string lines;
    for (const Json& other : more)
        lines += ", " + std::to_string(other["location"]["range"]["start"]["line"].get<int>() + 1);
    return message.replace(place, end - place, lines);
}

std::string PublishedFindings(const ServerSession& session)
{
    std::string lines;
    for (const auto& [uri, findings] : session.AllFindings())
    {
        const std::string file = PathOfUri(uri);
        for (const Json& finding : findings)
        {
            const Json& begin = finding["range"]["start"];
            const int column = begin["character"];
            const int length = finding["range"]["end"]["character"].get<int>() - column;
            lines +=
                LineOf(file, begin["line"].get<int>() + 1, column + 1, length, finding["code"], MessageOf(finding));
        }
    }
    return lines;
}

std::string SortedLines(const std::string& text)
{
    std::vector<std::string> lines = commandline::LinesOf(text);
    std::ranges::sort(lines);
    return Joined(lines, "\n");
}

void ExpectFindingsOfCheck(const std::string& path, const std::string& bytes)
{
    SCOPED_TRACE(path);
    // The file is checked before an editor has it.
    const std::string checked = CheckedFindings(path);
    ServerSession session;
    session.Open(path, bytes);
    EXPECT_EQ(SortedLines(PublishedFindings(session)), SortedLines(checked));
}

bool IsOfUtf8(const Rule& rule)
{
    return rule.id == "byte-order-mark" || rule.id == "byte-order-mark-above" || rule.id == "utf-8";
}

int ErrorOf(const Json& answer)
{
    return answer.contains("error") ? answer["error"]["code"].get<int>() : 0;
}

} // namespace

TEST(LanguageServer, FindsInSamplesWhatCheckFinds)
{
    for (const std::filesystem::path& file : FilesIn(samples, ".dlg"))
        ExpectFindingsOfCheck(file.string(), ReadWholeFile(file).value());
}

TEST(LanguageServer, FindsInExamplesWhatCheckFinds)
{
    const FolderWithExamples folder;
    for (const Rule& rule : Rules())
    {
        const std::string name = ExampleName(rule.wrong).empty() ? "judged.dlg" : ExampleName(rule.wrong);
        const std::string bytes = ExampleDescription(rule.wrong);
        // An editor takes the mark of a file away, and reads UTF-8 as what it is.
        const std::string shown = IsOfUtf8(rule) ? commandline::ToAnsi(commandline::FromMarkedUnicode(bytes)) : bytes;
        ExpectFindingsOfCheck(folder.Write(name, bytes), shown);
    }
    std::string wide = "\xFF\xFE";
    for (const char ch : ExampleDescription(""))
        wide += {ch, '\0'};
    ExpectFindingsOfCheck(folder.Write("wide.dlg", wide), ExampleDescription(""));
}

// The encoding is found again when the file is saved.
TEST(LanguageServer, FindsInWhichEncodingAFileIsSaved)
{
    const TestFolder folder;
    const std::string text = ExampleDescription("$VALUES\nUnit = Stra\xDF"
                                                "e");
    const std::string path = folder.Write("a.dlg", commandline::ToUtf8(text));
    ServerSession session;
    const auto rules = [&]
    {
        std::string ids;
        for (const Json& finding : session.FindingsIn(path))
            ids += finding["code"].get<std::string>() + " ";
        return ids;
    };
    session.Open(path, text);
    EXPECT_NE(rules().find("utf-8"), std::string::npos);
    folder.Write("a.dlg", text);
    session.Tell("textDocument/didSave", ServerSession::Document(path));
    EXPECT_EQ(rules().find("utf-8"), std::string::npos);
}

// Files of cases are in UTF-8, saved or not.
TEST(LanguageServer, ReadsACaseInUtf8)
{
    const FolderWithExamples folder;
    folder.Write("judged.dlg", ExampleDescription(""));
    const std::string path = folder.File("a.case");
    const std::string text = "dialog: judged.dlg\n# \xE2\x99\xA5\nset Name = \"\xC3\x83\xC2\xA4\"\nset Nothing = x\n";
    const Json document = {{"uri", UriOf(path)}, {"text", text}};
    ServerSession session;
    session.Tell("textDocument/didOpen", {{"textDocument", document}});
    const Json cases = session.ResultOf("lytdlg/cases", ServerSession::Document(folder.File("judged.dlg")))["cases"];
    ASSERT_EQ(cases.size(), 1U);
    EXPECT_EQ(cases[0]["acts"][0], "set Name = \"\xC3\x83\xC2\xA4\"");
    ASSERT_EQ(session.FindingsIn(path).size(), 1U);
    EXPECT_EQ(session.FindingsIn(path)[0]["range"], ServerSession::Range(3, 4, 3, 11));
    // A heart is a letter of the editor, and no longer there.
    session.Tell("textDocument/didChange",
                 {{"textDocument", {{"uri", UriOf(path)}}},
                  {"contentChanges", {{{"range", ServerSession::Range(1, 0, 2, 3)}, {"text", "set"}}}}});
    ASSERT_EQ(session.FindingsIn(path).size(), 1U);
    EXPECT_EQ(session.FindingsIn(path)[0]["range"], ServerSession::Range(2, 4, 2, 11));
}

TEST(LanguageServer, FollowsEachChangeOfTheText)
{
    const TestFolder folder;
    const std::string path = folder.Write("a.dlg", "on the disk");
    ServerSession session;
    session.Open(path, ExampleDescription(""));
    EXPECT_EQ(session.FindingsIn(path), Json::array());
    Json change = ServerSession::Document(path);
    change["contentChanges"] = {
        {{"range", ServerSession::Range(0, 1, 0, 8)}, {"text", "\xC3\xA4\xF0\x9F\x98\x80VERSION"}},
        {{"range", ServerSession::Range(0, 1, 0, 2)}, {"text", ""}},
        {{"range", ServerSession::Range(0, 1, 0, 3)}, {"text", ""}},
        {{"range", ServerSession::Range(0, 0, 0, 1)}, {"text", "$!"}}};
    session.Tell("textDocument/didChange", change);
    ASSERT_FALSE(session.FindingsIn(path).empty());
    EXPECT_EQ(session.FindingsIn(path)[0]["range"], ServerSession::Range(0, 0, 0, 9));
    change["contentChanges"] = {{{"text", commandline::ToUtf8(ExampleDescription(""))}}};
    session.Tell("textDocument/didChange", change);
    EXPECT_EQ(session.FindingsIn(path), Json::array());
    session.Tell("textDocument/didChange",
                 {{"textDocument", {{"uri", UriOf(path)}}}, {"contentChanges", {{{"text", "not a dialog"}}}}});
    EXPECT_FALSE(session.FindingsIn(path).empty());
    session.Tell("textDocument/didClose", ServerSession::Document(path));
    EXPECT_EQ(session.FindingsIn(path), Json::array());
    EXPECT_EQ(folder.Read("a.dlg"), "on the disk");
}

TEST(LanguageServer, PublishesFirstWhatNeedsNoTrial)
{
    const FolderWithExamples folder;
    const std::string path = folder.Write("a.dlg", "");
    ServerSession session;
    const auto hasTried = [](const Json& message) { return message.dump().find("trip-dropped") != std::string::npos; };
    session.Open(path, ExampleDescription(RuleName("trip-dropped").Get().wrong));
    ASSERT_EQ(session.sent.size(), 2U);
    EXPECT_FALSE(hasTried(session.sent[0]));
    EXPECT_TRUE(hasTried(session.sent[1]));
    // It stays until the dialog is tried again.
    const Json change = {{"range", ServerSession::Range(0, 0, 0, 0)}, {"text", "; a remark\n"}};
    session.Tell("textDocument/didChange",
                 {{"textDocument", {{"uri", UriOf(path)}}}, {"contentChanges", Json::array({change})}});
    EXPECT_TRUE(hasTried(session.sent.front()));
    EXPECT_EQ(session.sent.size(), 2U);
    EXPECT_EQ(session.FindingsIn(path).size(), 1U);
}

TEST(LanguageServer, GivesTrialsUpForAMessage)
{
    const FolderWithExamples folder;
    const std::string path = folder.Write("a.dlg", "");
    ServerSession session;
    session.Open(path, ExampleDescription(RuleName("trip-dropped").Get().wrong));
    const Json found = session.FindingsIn(path);
    session.server.Receive(Json{{"method", "workspace/didChangeWatchedFiles"}, {"params", Json::object()}}.dump());
    session.server.Work();
    session.server.Work();
    session.sent.clear();
    int asked = 0;
    // A trial has begun, and a message comes.
    session.server.Work([&] { return ++asked > 1; });
    EXPECT_EQ(asked, 2);
    EXPECT_TRUE(session.sent.empty());
    EXPECT_TRUE(session.server.HasWork());
    session.Open(path, ExampleDescription(RuleName("trip-dropped").Get().wrong));
    EXPECT_FALSE(session.server.HasWork());
    EXPECT_EQ(session.FindingsIn(path), found);
}

TEST(LanguageServer, OutlivesAJudgementThatFails)
{
    const std::vector<std::function<bool()>> failures = {[]() -> bool { throw std::runtime_error("broken"); },
                                                         []() -> bool { throw new CException; }};
    for (const std::function<bool()>& fail : failures)
    {
        const FolderWithExamples folder;
        const std::string path = folder.File("a.dlg");
        ServerSession session;
        const Json document = {{"uri", UriOf(path)}, {"text", ExampleDescription("")}};
        const Json params = {{"textDocument", document}};
        session.server.Receive(Json{{"method", "textDocument/didOpen"}, {"params", params}}.dump());
        while (session.server.HasWork())
            session.server.Work(fail);
        EXPECT_EQ(session.sent.back()["method"], "window/logMessage");
        EXPECT_FALSE(session.ResultOf("textDocument/documentSymbol", params).empty());
        session.Open(path, ExampleDescription("$VALUES\nUnit = HIDEN\n"));
        EXPECT_EQ(session.FindingsIn(path).size(), 1U);
    }
}

TEST(LanguageServer, JudgesNeighboursAgain)
{
    const TestFolder folder;
    const std::string texts = folder.Write("lang/English.nls", "[Example]\n");
    const std::string path = folder.Write("a.dlg", ExampleDescription(""));
    ServerSession session;
    session.Open(path, ExampleDescription(""));
    EXPECT_FALSE(session.FindingsIn(path).empty());
    for (const ExampleFile& file : ExampleFiles())
    {
        if (std::string(file.name) == "lang/English.nls")
            session.Open(texts, file.content);
    }
    EXPECT_EQ(session.FindingsIn(path), Json::array());
    session.Tell("textDocument/didClose", ServerSession::Document(texts));
    EXPECT_FALSE(session.FindingsIn(path).empty());
    for (const ExampleFile& file : ExampleFiles())
        folder.Write(file.name, file.content);
    session.Tell("workspace/didChangeWatchedFiles", {{"changes", Json::array()}});
    EXPECT_EQ(session.FindingsIn(path), Json::array());
}

TEST(LanguageServer, OffersWhatMends)
{
    const TestFolder folder;
    const std::string path = folder.File("a.dlg");
    ServerSession session;
    session.Open(path, ExampleDescription("$VALUES\nUnit = HIDEN\n"));
    const Json& finding = session.FindingsIn(path)[0];
    Json params = ServerSession::Document(path);
    params["range"] = finding["range"];
    params["context"] = {{"diagnostics", session.FindingsIn(path)}};
    const Json actions = session.ResultOf("textDocument/codeAction", params);
    ASSERT_EQ(actions.size(), 1U) << session.FindingsIn(path);
    EXPECT_EQ(actions[0]["diagnostics"][0], finding);
    EXPECT_EQ(actions[0]["edit"]["changes"][UriOf(path)][0]["newText"], "D");
    params["range"] = ServerSession::Range(0, 0, 0, 0);
    EXPECT_EQ(session.ResultOf("textDocument/codeAction", params), Json::array());
}

TEST(LanguageServer, MendsAllThatIsSafe)
{
    const TestFolder folder;
    const std::string path = folder.File("a.dlg");
    ServerSession session;
    session.Open(path, ExampleDescription("$EVALUATION x"));
    Json params = ServerSession::Document(path);
    params["range"] = ServerSession::Range(0, 0, 0, 0);
    params["context"] = {{"diagnostics", Json::array()}, {"only", {"source.fixAll"}}};
    const Json actions = session.ResultOf("textDocument/codeAction", params);
    ASSERT_EQ(actions.size(), 1U) << session.FindingsIn(path);
    EXPECT_EQ(actions[0]["edit"]["changes"][UriOf(path)][0]["newText"], ",");
}

// A letter that the file cannot hold is not overwritten by its substitute.
TEST(LanguageServer, FormatsWhatTheFileCanHold)
{
    const auto countEdits = [](const std::string& value)
    {
        ServerSession session;
        const std::string path = TestFolder().File("a.dlg");
        const std::string text = ExampleDescription("$VALUES\nUnit=" + value);
        session.Tell("textDocument/didOpen", {{"textDocument", {{"uri", UriOf(path)}, {"text", text}}}});
        return session.ResultOf("textDocument/formatting", ServerSession::Document(path)).size();
    };
    EXPECT_EQ(countEdits("m,x"), countEdits("\xE2\x99\xA5,x") + 1);
}

TEST(LanguageServer, OutlinesAndFolds)
{
    ServerSession session;
    const std::string path = samples + "finding.dlg";
    session.Open(path, ReadWholeFile(path).value());
    std::string outline;
    for (const Json& symbol : session.ResultOf("textDocument/documentSymbol", ServerSession::Document(path)))
    {
        outline += symbol["name"].get<std::string>() + " " + symbol["detail"].get<std::string>() + "\n";
        for (const Json& inner : symbol.value("children", Json::array()))
            outline += "    " + inner["name"].get<std::string>() + " " + inner["detail"].get<std::string>() + "\n";
    }
    EXPECT_EQ(outline, "$VERSION 1\n"
                       "$LAYOUT Finding\n"
                       "    Finding GroupBox\n"
                       "    TypicalLabel Text\n"
                       "    Typical ListBox\n"
                       "    Advice Text\n"
                       "    WordingLabel Text\n"
                       "    Wording TextBox\n"
                       "    SeverityLabel Text\n"
                       "    Severity OptionGroup\n"
                       "    Slight OptionButton\n"
                       "    Medium OptionButton\n"
                       "    Severe OptionButton\n"
                       "    PlaceLabel Text\n"
                       "    Place ComboBox\n"
                       "    Hint PushButton\n"
                       "    Ok OKButton\n"
                       "    Cancel CancelButton\n"
                       "$VALUES \n"
                       "$DEPENDANCES \n"
                       "$EVALUATION x\n"
                       "    Wording WordingMissing\n"
                       "    Severity PlaceMissing\n"
                       "$INPUT parent\n"
                       "    Start \n"
                       "    BeforeSeverity \n"
                       "    Severity \n"
                       "    BeforePlace \n"
                       "    Place \n"
                       "$OUTPUT parent\n"
                       "$OUTPUT wording\n"
                       "$END \n");
    std::string folds;
    for (const Json& fold : session.ResultOf("textDocument/foldingRange", ServerSession::Document(path)))
        folds += fold["startLine"].dump() + "-" + fold["endLine"].dump() + " ";
    EXPECT_EQ(folds, "7-26 28-46 48-51 53-55 57-63 65-68 69-70 ");
}

TEST(LanguageServer, RefusesByTheProtocolsNumbers)
{
    ServerSession session;
    EXPECT_EQ(ErrorOf(session.Ask("initialize", Json::object())), -32600);
    EXPECT_EQ(ErrorOf(session.Ask("no/such", Json::object())), -32601);
    EXPECT_EQ(ErrorOf(session.Ask("textDocument/formatting", Json::object())), -32602);
    EXPECT_EQ(ErrorOf(session.Ask("textDocument/formatting", {{"textDocument", {{"uri", 7}}}})), -32602);
    for (const auto& [text, code] :
         std::initializer_list<std::pair<const char*, int>>{{"{\"id\":1,", -32700},
                                                            {"\xFF\xFE", -32700},
                                                            {"[]", -32600},
                                                            {"{\"id\":{},\"method\":\"shutdown\"}", -32600},
                                                            {"{\"id\":1}", -32600}})
    {
        session.Receive(text);
        ASSERT_EQ(session.sent.size(), 1U) << text;
        EXPECT_EQ(ErrorOf(session.sent[0]), code) << text;
    }
    for (const char* text :
         {"{}", "{\"method\":\"$/progress\"}", "{\"method\":\"textDocument/didChange\",\"params\":3}",
          "{\"method\":\"textDocument/didOpen\",\"params\":{\"textDocument\":[]}}", "{\"id\":1,\"result\":null}",
          "{\"method\":\"$/cancelRequest\",\"params\":{\"id\":[]}}"})
    {
        session.Receive(text);
        EXPECT_TRUE(session.sent.empty()) << text;
    }
    session.Receive(std::string(100000, '['));
    EXPECT_EQ(ErrorOf(session.sent[0]), -32700);
    EXPECT_EQ(session.ResultOf("shutdown", Json::object()), Json());
    EXPECT_EQ(ErrorOf(session.Ask("textDocument/formatting", Json::object())), -32600);
    EXPECT_FALSE(session.server.IsOver());
    session.Tell("exit", Json::object());
    EXPECT_TRUE(session.server.IsOver() && session.server.WasShutDown());
}

TEST(LanguageServer, AnswersNothingBeforeItIsInitialized)
{
    std::vector<Json> sent;
    Server server([&](const Json& message) { sent.push_back(message); }, {}, {});
    server.Receive("{\"id\":\"a\",\"method\":\"shutdown\"}");
    server.Work();
    ASSERT_EQ(sent.size(), 1U);
    EXPECT_EQ(ErrorOf(sent[0]), -32002);
    EXPECT_EQ(sent[0]["id"], "a");
    server.Receive("{\"method\":\"exit\"}");
    server.Work();
    EXPECT_TRUE(server.IsOver() && !server.WasShutDown());
}

TEST(LanguageServer, LeavesOutWhatIsCancelledBeforeItsTurn)
{
    ServerSession session;
    session.sent.clear();
    session.server.Receive("{\"id\":7,\"method\":\"no/such\"}");
    session.server.Receive("{\"method\":\"$/cancelRequest\",\"params\":{\"id\":7}}");
    EXPECT_FALSE(session.server.HasWork());
    ASSERT_EQ(session.sent.size(), 1U);
    EXPECT_EQ(ErrorOf(session.sent[0]), -32800);
}

// Each request about a place of a sample, as an editor sends it.
TEST(LanguageServer, AnswersAboutPlaces)
{
    ServerSession session;
    const std::string path = samples + "lytRpGrp.dlg";
    session.Open(path, ReadWholeFile(path).value());
    Json place = ServerSession::Document(path);
    const auto at = [&](int line, int character) -> const Json&
    {
        place["position"] = {{"line", line - 1}, {"character", character}};
        return place;
    };
    place["context"] = {{"includeDeclaration", true}};
    place["newName"] = "Chambers";
    const Json rooms = session.ResultOf("textDocument/references", at(44, 52));
    EXPECT_EQ(rooms.size(), 2U);
    EXPECT_EQ(session.ResultOf("textDocument/documentHighlight", at(44, 52)).size(), 2U);
    EXPECT_EQ(session.ResultOf("textDocument/rename", at(44, 52))["changes"][UriOf(path)].size(), 2U);
    EXPECT_EQ(session.ResultOf("textDocument/prepareRename", at(44, 52))["placeholder"], "RoomsLabel");
    EXPECT_EQ(ErrorOf(session.Ask("textDocument/prepareRename", at(44, 5))), -32803);
    EXPECT_EQ(session.ResultOf("textDocument/definition", at(44, 52))[0]["range"], rooms[0]["range"]);
    EXPECT_EQ(session.ResultOf("textDocument/definition", at(44, 38)).size(), 2U);
    EXPECT_NE(session.ResultOf("textDocument/hover", at(44, 38))["contents"]["value"].get<std::string>().find(
                  "German: Gew\xC3\xA4hlte R\xC3\xA4ume"),
              std::string::npos);
    EXPECT_EQ(session.ResultOf("textDocument/hover", at(1, 0)), Json());
    EXPECT_FALSE(session.ResultOf("textDocument/completion", at(97, 4)).empty());
    EXPECT_EQ(session.ResultOf("textDocument/completion", at(100000, 4)), Json::array());
    EXPECT_EQ(session.ResultOf("textDocument/completion", at(-1, -1)), Json::array());
    EXPECT_EQ(session.ResultOf("textDocument/documentLink", place).size(), 2U);
    EXPECT_EQ(session.ResultOf("textDocument/semanticTokens/full", place)["data"].size() % 5, 0U);
    place["range"] = ServerSession::Range(43, 0, 43, 99);
    EXPECT_EQ(session.ResultOf("textDocument/inlayHint", place)[0]["label"], "Chosen rooms");
    const Json lenses = session.ResultOf("textDocument/codeLens", place);
    EXPECT_EQ(lenses[0]["command"]["command"], "lytdlg.run");
    EXPECT_EQ(session.ResultOf("codeLens/resolve", lenses[1])["command"]["title"], "14 cases passed");
}

TEST(LanguageServer, AsksOfOtherTextsNothing)
{
    ServerSession session;
    const std::string path = TestFolder().Write("lyt.ini", "[global]\n");
    session.Open(path, "[global]\nCurrent Language=English\n");
    Json place = ServerSession::Document(path);
    place["position"] = {{"line", 1}, {"character", 1}};
    place["range"] = ServerSession::Range(0, 0, 99, 0);
    place["context"] = {{"includeDeclaration", true}};
    for (const char* method : {"textDocument/completion", "textDocument/definition", "textDocument/references",
                               "textDocument/documentHighlight", "textDocument/documentLink", "textDocument/inlayHint",
                               "textDocument/codeLens", "textDocument/formatting", "textDocument/documentSymbol",
                               "textDocument/foldingRange"})
        EXPECT_EQ(session.ResultOf(method, place), Json::array()) << method;
    EXPECT_EQ(session.ResultOf("textDocument/hover", place), Json());
}

// Each request about a language file and a file of cases.
TEST(LanguageServer, AnswersInTheOtherTextsOfADialog)
{
    const FolderWithExamples folder;
    folder.Write("judged.dlg", ExampleDescription(""));
    const std::string cases = folder.File("a.case");
    const std::string texts = folder.File("lang/English.nls");
    ServerSession session;
    session.Open(cases, "dialog: judged.dlg\ncase: one\nset Name = \xE4\nset Nothing = x\ncase: two\npush Ok\n");
    session.Open(texts, ReadWholeFile(texts).value());
    const auto ask = [&](const std::string& path, const char* method, int line, int character)
    {
        Json place = ServerSession::Document(path);
        place["position"] = {{"line", line}, {"character", character}};
        place["context"] = {{"includeDeclaration", true}};
        return session.ResultOf(method, place);
    };
    EXPECT_EQ(ask(cases, "textDocument/definition", 2, 5)[0]["uri"], UriOf(folder.File("judged.dlg")));
    EXPECT_EQ(ask(cases, "textDocument/documentSymbol", 0, 0)[1]["name"], "two");
    EXPECT_EQ(ask(cases, "textDocument/foldingRange", 0, 0).size(), 2U);
    EXPECT_EQ(ask(cases, "textDocument/documentHighlight", 2, 5).size(), 1U);
    EXPECT_EQ(ask(cases, "textDocument/semanticTokens/full", 0, 0)["data"].size(), 15U);
    EXPECT_EQ(ask(cases, "textDocument/documentLink", 0, 0)[0]["target"], UriOf(folder.File("judged.dlg")));
    EXPECT_FALSE(ask(cases, "textDocument/completion", 2, 4).empty());
    const Json found = session.FindingsIn(cases);
    ASSERT_EQ(found.size(), 2U) << found;
    EXPECT_EQ(found[0]["range"], ServerSession::Range(3, 4, 3, 11));
    EXPECT_EQ(found[0]["message"], "judged.dlg has no control \"Nothing\"");
    EXPECT_EQ(found[1]["range"]["start"]["line"], 5);
    EXPECT_NE(ask(texts, "textDocument/documentSymbol", 0, 0)[0]["children"].size(), 0U);
    EXPECT_NE(ask(texts, "textDocument/references", 1, 1).size(), 0U);
}

// Where upper and lower case are the same, the file has the new name all the same.
TEST(LanguageServer, RenamesAFileInTheCaseOfItsLetters)
{
    const FolderWithExamples folder;
    const std::string path = folder.File("a.dlg");
    const Json abilities = {{"workspace", {{"workspaceEdit", {{"resourceOperations", {"rename"}}}}}}};
    ServerSession session(abilities);
    const auto renamed = [&](const std::string& name, const std::string& newName)
    {
        const std::string text = ExampleDescription("$VALUES\nAdd: DIALOG = " + name + ", parent, parent\n");
        session.Open(path, text);
        Json place = ServerSession::Document(path);
        place["position"] = PositionAt(text, text.find(name + ", parent"));
        place["newName"] = newName;
        return session.ResultOf("textDocument/rename", place);
    };
    const Json changes = renamed("other", "Other")["documentChanges"];
    ASSERT_EQ(changes.size(), 2U) << changes;
    EXPECT_EQ(changes[0]["edits"][0]["newText"], "Other");
    EXPECT_EQ(changes[1]["newUri"], UriOf(folder.File("Other.dlg")));
    // The file has that name already.
    EXPECT_EQ(renamed("Other", "other")["changes"][UriOf(path)][0]["newText"], "other");
}

TEST(LanguageServer, RenamesADialogWithThoseThatOpenIt)
{
    const FolderWithExamples folder;
    const std::string path = folder.File("a.dlg");
    const std::string text = ExampleDescription("$VALUES\nAdd: DIALOG = other, parent, parent\n");
    const size_t name = text.find("other, parent");
    const TextPosition position = PositionAt(text, name);
    const auto renamed = [&](const Json& abilities)
    {
        ServerSession session(abilities);
        session.Open(path, text);
        Json place = ServerSession::Document(path);
        place["position"] = position;
        place["newName"] = "second";
        return session.Ask("textDocument/rename", place);
    };
    EXPECT_EQ(ErrorOf(renamed(Json::object())), -32803);
    const Json changes =
        renamed({{"workspace",
                  {{"workspaceEdit", {{"resourceOperations", {"create", "rename"}}}}}}})["result"]["documentChanges"];
    ASSERT_EQ(changes.size(), 2U) << changes;
    EXPECT_EQ(changes[0]["edits"][0]["newText"], "second");
    EXPECT_EQ(changes[1], (Json{{"kind", "rename"},
                                {"oldUri", UriOf(folder.File("other.dlg"))},
                                {"newUri", UriOf(folder.File("second.dlg"))}}));
}

// A dialog that is open in the editor is drawn as it is there, after what a user has done.
TEST(LanguageServer, DrawsADialogAfterActs)
{
    const FolderWithExamples folder;
    const std::string path = folder.File("drawn.dlg");
    ServerSession session;
    session.Open(path, ExampleDescription(""));
    Json params = ServerSession::Document(path);
    params["input"] = "b;a";
    params["acts"] = {"set Name = \xC3\xA4"};
    params["svg"] = true;
    const Json drawn = session.ResultOf("lytdlg/play", params);
    EXPECT_EQ(drawn["outcome"], "open");
    EXPECT_TRUE(drawn["svg"].get<std::string>().starts_with("<svg"));
    EXPECT_FALSE(drawn.contains("result"));
    const Json& controls = drawn["dialogs"][0]["controls"];
    const Json& name = controls[1];
    EXPECT_EQ(name["target"], "Name");
    EXPECT_EQ(name["type"], "TextBox");
    EXPECT_EQ(name["value"], "\xC3\xA4");
    EXPECT_EQ(controls[3]["value"], "a");
    EXPECT_TRUE(name["enabled"] && name["shown"] && name["place"]["width"] > 0);
    params["acts"] = {"set Name = x", "ok"};
    EXPECT_EQ(session.ResultOf("lytdlg/play", params)["result"], "x;a;hall place;;s;-");
    params["acts"] = {"set Nothing = x"};
    EXPECT_EQ(session.ResultOf("lytdlg/play", params)["failed"]["act"], 0);
    session.Tell("textDocument/didChange",
                 {{"textDocument", {{"uri", UriOf(path)}}}, {"contentChanges", {{{"text", "$VERSION 1\n"}}}}});
    EXPECT_EQ(session.ResultOf("lytdlg/play", params)["outcome"], "not opened");
    EXPECT_FALSE(folder.Has("drawn.dlg"));
}

// Texts that are open count as they are in the editor: the other dialog, the language file and lyt.ini.
TEST(LanguageServer, DrawsWhatIsNotSaved)
{
    const FolderWithExamples folder;
    const std::string path = folder.File("drawn.dlg");
    ServerSession session;
    session.Open(path, ExampleDescription("$VALUES\nAdd: DIALOG = inner, parent, parent\n"));
    session.Open(folder.File("inner.dlg"), ExampleDescription("$VALUES\nName = HIDDEN\n"));
    Json params = ServerSession::Document(path);
    const auto drawn = [&] { return session.ResultOf("lytdlg/play", params)["dialogs"].back()["controls"]; };
    session.Open(folder.File("lang/German.nls"), "[Example]\nName=Nicht gesichert\n");
    EXPECT_EQ(drawn()[0]["text"], "&Name:");
    session.Open(folder.File("lyt.ini"), "[global]\nCurrent Language=German\n");
    EXPECT_EQ(drawn()[0]["text"], "Nicht gesichert");
    params["acts"] = {"press Add"};
    EXPECT_EQ(drawn()[1]["target"], "Name");
    EXPECT_EQ(drawn()[1]["shown"], false);
    EXPECT_FALSE(folder.Has("inner.dlg"));
    session.Tell("textDocument/didClose", ServerSession::Document(folder.File("lyt.ini")));
    params["acts"] = Json::array();
    EXPECT_EQ(drawn()[0]["text"], "&Name:");
}

// An author completes the libraries of the folders that the server was given.
TEST(LanguageServer, OffersTheLibrariesThatAreThere)
{
    const TestFolder folder;
    folder.Write("ours.dll", "");
    const Workspace workspace({folder.Path()}, {});
    std::string offered;
    const std::string text = ExampleDescription("$VALUES\nAdd: ACTION = ");
    const std::string path = folder.Write("a.dlg", text);
    for (const Proposal& proposal : ProposalsAt(workspace, path, PositionAt(text, text.find("ACTION = ") + 9)).all)
        offered += proposal.label + " ";
    EXPECT_EQ(offered, "lyt64.dll ours ");
}

TEST(LanguageServer, WritesNoFileWhateverItIsTold)
{
    const FolderWithExamples folder;
    folder.Write("a.case", "dialog: a.dlg\nset Name = x\n");
    const std::string path = folder.Write("a.dlg", ExampleDescription("$VALUES\nUnit=HIDEN\n"));
    const auto before = ContentsOf(folder.Path());
    const Json abilities = {{"workspace", {{"workspaceEdit", {{"resourceOperations", {"rename"}}}}}}};
    ServerSession session(abilities);
    session.Open(path, ExampleDescription("$VALUES\nUnit = HIDEN\nAdd: DIALOG = other, parent, parent\n"));
    session.Open(folder.File("lang/English.nls"), "[Example]\nName=other\n");
    Json params = ServerSession::Document(path);
    params["range"] = ServerSession::Range(0, 0, 99, 0);
    params["context"] = {
        {"diagnostics", session.FindingsIn(path)}, {"only", {"source.fixAll"}}, {"includeDeclaration", true}};
    params["newName"] = "Other";
    params["command"] = checkFolderCommand;
    params["arguments"] = {UriOf(folder.Path())};
    params["data"] = UriOf(path);
    params["acts"] = {"press Add"};
    for (const Method& method : Methods())
    {
        const std::string name = method.name;
        for (const int line : {4, 45, 46, 50})
        {
            params["position"] = {{"line", line}, {"character", 14}};
            // What ends the session, and what opens and changes, is told elsewhere.
            if (name != "exit" && name != "shutdown" && !name.starts_with("textDocument/did"))
                session.Ask(method.name, params);
            EXPECT_EQ(ContentsOf(folder.Path()), before) << name;
        }
    }
}

TEST(LanguageServer, ExplainsTheWordsOfTheLanguage)
{
    ServerSession session;
    const std::string path = TestFolder().File("a.dlg");
    session.Open(path, ExampleDescription("$VALUES\nAdd: FILL = AllRooms\n"));
    const auto explained = [&](int line, int character)
    {
        Json place = ServerSession::Document(path);
        place["position"] = {{"line", line - 1}, {"character", character}};
        return session.ResultOf("textDocument/hover", place)["contents"]["value"].get<std::string>();
    };
    EXPECT_NE(explained(4, 5).find("- `Text` | fixed text, as large as its text | none |"), std::string::npos);
    EXPECT_NE(explained(45, 6).find("- `B: FILL = Values` | fills a list by its library |"), std::string::npos);
    EXPECT_NE(explained(46, 3).find("Rate/VISIBLE = Costs(C)"), std::string::npos);
}

TEST(LanguageServer, JudgesAFolderAndTellsHowFarItIs)
{
    const TestFolder folder;
    folder.Write("a.dlg", "");
    folder.Write("in/b.dlg", "");
    ServerSession session;
    session.Ask("workspace/executeCommand",
                {{"command", checkFolderCommand}, {"arguments", {UriOf(folder.Path())}}, {"workDoneToken", "t"}});
    std::string kinds;
    for (const Json& message : session.sent)
    {
        if (message.value("method", "") == "$/progress")
            kinds += message["params"]["value"]["kind"].get<std::string>() + " ";
    }
    EXPECT_EQ(kinds, "begin report report end ");
    const Json before = session.FindingsIn(folder.File("in/b.dlg"));
    EXPECT_FALSE(before.empty());
    folder.Write("in/b.dlg", ExampleDescription(""));
    session.Tell("workspace/didChangeWatchedFiles", {{"changes", Json::array()}});
    EXPECT_NE(session.FindingsIn(folder.File("in/b.dlg")), before);
    EXPECT_EQ(ErrorOf(session.Ask("workspace/executeCommand", {{"command", "other"}})), -32803);
}

TEST(MessageStream, CutsMessagesOutOfBytes)
{
    MessageStream stream;
    const auto take = [&](const std::string& bytes)
    {
        stream.Feed(bytes.data(), bytes.size());
        return stream.Take().value_or("-");
    };
    EXPECT_EQ(take("Content-Le"), "-");
    EXPECT_EQ(take("ngth: 3\r\nContent-Type: x\r\n\r\nab"), "-");
    EXPECT_EQ(take("ccontent-length:2\r\n\r\nde"), "abc");
    EXPECT_EQ(take(""), "de");
    EXPECT_EQ(take("Wrong: 1\r\n\r\n" + WithHeader("f")), "f");
    EXPECT_EQ(take("Content-Length: 99999999999999999999999\r\n\r\n" + WithHeader("g")), "g");
    EXPECT_EQ(take(WithHeader("")), "");
}

} // namespace lytdlg
