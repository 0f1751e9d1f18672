// Each case of the files LYT_CASES is a transcript: after `>` a step, and below it what comes of it.
//
//     source, source without-next       makes the data source reachable; one that lacks a function
//     serve S 0 H House h / 1 S Tin t  its records: level, letter or number of the type, label and key
//     start 0                           what its start function answers
//     starts S, nexts S                 how often it was called
//     interrupt 3 fail, release         what happens inside the call that delivers the third record; 0 for never
//     configure A=1; B=2                lines of the section "global" of lyt.ini
//     texts LINES                       the language file has these lines only
//     release, initialise
//
//     tree REQUEST: ACT, ACT | ACT      opens the browser; a bar is a message, which is confirmed; `none |` is one before it
//     items, open, selected, captions, size REQUEST    opens the browser to look, and cancels it
//     find TEXT                         the symbol whose key the text begins
//     children KEY, read                the walk over the symbols below a group
//     wizard, wizard SIZE               one call of the wizard that shows nothing
//     ask SIZE LABEL, TITLE: TEXT       one that shows the tree, and a dialog that gets the text, or Cancel without one
//     form KEY: ACT, ACT                a dialog whose button opens the browser, or calls what `button` names
//     button LIBRARY, FUNCTION
//     during STEP; STEP                 the steps are done while a property dialog is open, which is then cancelled
//
// Acts in the browser: pick LABEL, select LABEL, nothing, ok, cancel, key RETURN, double LABEL, expand LABEL, collapse LABEL,
// mark LABEL, resize WIDTH HEIGHT, state LABEL; items, open, selected, captions and size look.
#include "TreeFixture.h"

#include "cases/CaseFile.h"
#include "cases/CaseWords.h"
#include "support/Leaks.h"

#include <map>
#include <stdexcept>

namespace
{

using Act = std::function<void(const TreeWindow&)>;

void Fail()
{
    throw std::runtime_error("The source broke off.");
}

void ReleaseEverything()
{
    reinterpret_cast<decltype(&FreeGlobalObject)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("lyt64"), "FreeGlobalObject")))();
}

std::string Joined(const Lines& lines, const std::string& separator)
{
    std::string text;
    for (const std::string& line : lines)
        text += (text.empty() ? "" : separator) + line;
    return text;
}

class TreeCase : public TreeTest, public testing::WithParamInterface<Case>
{
protected:
    TreeCase();
    // Carries out a step: what comes of it, with a line feed after each line.
    std::string Do(std::string step);

private:
    void ServeRecords(std::string rest);
    void Button(std::string function);
    std::string OpenTree(const std::string& rest);
    std::string FindSymbol(const std::string& text);
    std::string Ask(std::string rest);
    std::string ShowForm(const std::string& rest);
    std::string During(const std::string& steps);

    // The acts of each stage; what they look at is added to `m_seen`.
    std::vector<Act> ActsOf(const std::string& stages);
    void Carry(const TreeWindow& tree, std::string act);

    std::string m_seen;
};

TreeCase::TreeCase()
{
    for (const char* file : {"lytWzGrp", "lytWzPhr", "lytWzSym"})
        WriteDialog(file, {});
    Button("lyt64.dll, lytOpenTreeView");
}

void TreeCase::ServeRecords(std::string rest)
{
    static const std::map<std::string, int> types = {
        {"H", LYT_TREE_HEADING}, {"G", LYT_TREE_GROUP}, {"S", LYT_TREE_SYMBOL}};
    const char kind = TakeWord(rest)[0];
    Records records;
    for (const std::string& record : rest.empty() ? Lines() : Split(rest, " / "))
    {
        const Lines words = Split(record, " ");
        records.push_back(Entry(std::stoi(words.at(0)), types.at(words.at(1)), words.at(2), words.at(3)));
    }
    Serve(kind, records);
}

void TreeCase::Button(std::string function)
{
    Exchange(function, "nasty", NastyLibrary());
    Description description;
    description.controls += "TextBox 10, 30, 100, 19, .Choice\nPushButton 10, 60, 60, 20, \"Pick\", .Pick\n";
    description.values = "Pick: ACTION = " + function + ", PickOut, PickIn\n";
    description.input += "$INPUT, PickIn\nStart: (99, End = Choice\n";
    description.output = "$OUTPUT, parent\n(\"%s>%s\", Key, Choice)\n$OUTPUT, PickOut\n(\"%s\", Key)\n";
    WriteDialog("lytInSym", description);
}

void TreeCase::Carry(const TreeWindow& tree, std::string act)
{
    static const std::map<std::string, void (*)(const TreeWindow& tree, const std::string& label)> acts = {
        {"pick", [](const TreeWindow& on, const std::string& label) { on.Pick(label); }},
        {"select", [](const TreeWindow& on, const std::string& label) { on.Select(label); }},
        {"nothing", [](const TreeWindow& on, const std::string&) { on.SelectNothing(); }},
        {"ok", [](const TreeWindow& on, const std::string&) { on.Confirm(); }},
        {"cancel", [](const TreeWindow& on, const std::string&) { on.Cancel(); }},
        {"double", [](const TreeWindow& on, const std::string& label) { on.DoubleClick(label); }},
        {"expand", [](const TreeWindow& on, const std::string& label) { on.Expand(label); }},
        {"collapse", [](const TreeWindow& on, const std::string& label) { on.Collapse(label); }},
        {"mark",
         [](const TreeWindow& on, const std::string& label) { on.SetState(label, on.StateOf(label) | TVIS_BOLD); }},
        {"key",
         [](const TreeWindow&, const std::string& key) { robot::PressKey(key == "RETURN" ? VK_RETURN : VK_ESCAPE); }},
        {"resize", [](const TreeWindow& on, const std::string& size)
         { on.Resize(std::stoi(size), std::stoi(size.substr(size.find(' ')))); }},
    };
    static const std::map<std::string, std::string (*)(const TreeWindow& tree, const std::string& label)> looks = {
        {"items", [](const TreeWindow& at, const std::string&)
         { return at.Items() == houseShown ? "all" : Joined(at.Items(), "\n"); }},
        {"open", [](const TreeWindow& at, const std::string&) { return Joined(at.OpenItems(), ", "); }},
        {"captions",
         [](const TreeWindow& at, const std::string&)
         {
             return Joined({robot::TextOf(at.Dialog()), robot::TextOf(GetDlgItem(at.Dialog(), IDOK)),
                            robot::TextOf(GetDlgItem(at.Dialog(), IDCANCEL))},
                           ", ");
         }},
        {"selected", [](const TreeWindow& at, const std::string&) { return at.Selected(); }},
        {"size", [](const TreeWindow& at, const std::string&)
         { return std::to_string(at.Size().cx) + " x " + std::to_string(at.Size().cy); }},
        {"state", [](const TreeWindow& at, const std::string& label) { return std::to_string(at.StateOf(label)); }},
    };
    const std::string word = TakeWord(act);
    if (const auto look = looks.find(word); look != looks.end())
    {
        const std::string seen = look->second(tree, act);
        m_seen += (seen.empty() ? "nothing" : seen) + "\n";
    }
    else
        acts.at(word)(tree, act);
}

std::vector<Act> TreeCase::ActsOf(const std::string& stages)
{
    std::vector<Act> acts;
    for (const std::string& stage : Split(stages, " | "))
    {
        acts.emplace_back(
            [this, stage](const TreeWindow& tree)
            {
                for (const std::string& act : Split(stage, ", "))
                    Carry(tree, act);
            });
        if (stage == "none")
            acts.back() = nullptr;
    }
    return acts;
}

std::string TreeCase::OpenTree(const std::string& rest)
{
    const size_t colon = rest.find(": ");
    const Answer answer = Open(rest.substr(0, colon), ActsOf(rest.substr(colon + 2)));
    std::string text = m_seen + std::to_string(answer.result) + " " + answer.text;
    for (const std::string& message : answer.messages)
        text += ", \"" + message + "\"";
    return text + "\n";
}

std::string TreeCase::FindSymbol(const std::string& text)
{
    try
    {
        return SymbolFor(text) + "\n";
    }
    catch (const std::runtime_error& error)
    {
        return std::string(error.what()) + "\n";
    }
}

std::string TreeCase::Ask(std::string rest)
{
    const int size = std::stoi(TakeWord(rest));
    const size_t comma = rest.find(", ");
    const size_t colon = std::min(rest.find(": "), rest.size());
    const std::string text = colon < rest.size() ? rest.substr(colon + 2) : "";
    const std::string answer = AskWizard(rest.substr(0, comma), rest.substr(comma + 2, colon - comma - 2), text, size);
    return scanned + "\n" + answer + "\n";
}

std::string TreeCase::ShowForm(const std::string& rest)
{
    const size_t colon = rest.find(": ");
    robot::Robot user;
    user.On("Form", [](HWND dialog) { robot::Click(robot::ChildWithText(dialog, "Pick")); });
    if (colon != std::string::npos)
        user.On("Catalogue", [&](HWND dialog) { ActsOf(rest.substr(colon + 2)).front()(TreeWindow(dialog)); });
    user.On("Form", [](HWND dialog) { robot::Press(robot::ChildWithText(dialog, "Fine")); });
    GuardedBuffer buffer(255, "untouched");
    Get<decltype(lytSymbolPropertyDialog)>("lytSymbolPropertyDialog")(rest.substr(0, colon).c_str(), buffer.Data(),
                                                                      buffer.Size());
    EXPECT_TRUE(user.Done()) << user.Log();
    return m_seen + buffer.Text() + "\n";
}

std::string TreeCase::During(const std::string& steps)
{
    std::string seen;
    robot::Robot user;
    user.On("Form",
            [&](HWND)
            {
                for (const std::string& step : Split(steps, "; "))
                    seen += Do(step);
            });
    user.On("Form", [](HWND dialog) { SendMessageA(dialog, WM_COMMAND, IDCANCEL, 0); });
    GuardedBuffer buffer(255);
    EXPECT_EQ(Get<decltype(lytSymbolPropertyDialog)>("lytSymbolPropertyDialog")("k", buffer.Data(), buffer.Size()), 0);
    EXPECT_TRUE(user.Done()) << user.Log();
    return seen;
}

std::string TreeCase::Do(std::string step)
{
    const auto silent = [](auto act)
    {
        return [act](std::string& rest)
        {
            act(rest);
            return std::string();
        };
    };
    const std::map<std::string, std::function<std::string(std::string & rest)>> steps = {
        {"source", silent([this](const std::string& rest) { UseSource(rest.empty() ? "complete" : rest); })},
        {"serve", silent([this](const std::string& rest) { ServeRecords(rest); })},
        {"start", silent([this](const std::string& rest) { Serve('S', house, std::stoi(rest)); })},
        {"interrupt", silent(
                          [this](std::string& rest)
                          {
                              const int record = std::stoi(TakeWord(rest));
                              Interrupt(record, rest == "fail" ? Fail : ReleaseEverything);
                          })},
        {"configure", silent(
                          [this](std::string& rest)
                          {
                              Exchange(rest, "; ", "\n");
                              Configure(rest + "\n");
                          })},
        {"texts", silent([this](const std::string& rest) { folder.Write("dialogs/lang/English.nls", rest + "\n"); })},
        {"button", silent([this](const std::string& rest) { Button(rest); })},
        {"release", silent([](const std::string&) { ReleaseEverything(); })},
        {"initialise", silent([this](const std::string&) { Initialise(); })},
        {"starts", [this](const std::string& rest) { return std::to_string(Starts(rest[0])) + "\n"; }},
        {"nexts", [this](const std::string& rest) { return std::to_string(Nexts(rest[0])) + "\n"; }},
        {"tree", [this](const std::string& rest) { return OpenTree(rest); }},
        {"find", [this](const std::string& rest) { return FindSymbol(rest); }},
        {"children",
         [this](const std::string& rest)
         {
             const int result = Get<decltype(lytTreeStartChildNode)>("lytTreeStartChildNode")(rest.c_str());
             return std::to_string(result) + "\n";
         }},
        {"read",
         [this](const std::string&)
         {
             const std::string children = Joined(ReadChildren(), "\n");
             return (children.empty() ? "nothing" : children) + "\n";
         }},
        {"wizard", [this](const std::string& rest) { return CallWizard(rest.empty() ? 255 : std::stoi(rest)) + "\n"; }},
        {"ask", [this](const std::string& rest) { return Ask(rest); }},
        {"form", [this](const std::string& rest) { return ShowForm(rest); }},
        {"during", [this](const std::string& rest) { return During(rest); }},
    };
    m_seen.clear();
    WriteOutRuns(step);
    const std::string word = TakeWord(step);
    if (const auto known = steps.find(word); known != steps.end())
        return known->second(step);
    Open(step, ActsOf(word + ", cancel"));
    return m_seen;
}

} // namespace

TEST_P(TreeCase, ComesOutAsWritten)
{
    const CaseLines& lines = GetParam().lines;
    const auto run = [&]
    {
        for (size_t index = 0; index < lines.size();)
        {
            const CaseLine& step = lines[index];
            const testing::ScopedTrace trace(GetParam().file.c_str(), step.number, step.text);
            std::string expected;
            while (++index < lines.size() && !lines[index].text.starts_with("> "))
                expected += lines[index].text + "\n";
            WriteOutRuns(expected);
            EXPECT_EQ(Do(step.text.substr(2)), expected);
        }
    };
    if (GetParam().hasRounds)
        ExpectNoGrowth(run, 20);
    else
        run();
}

INSTANTIATE_TEST_SUITE_P(, TreeCase, testing::ValuesIn(CasesOf(LYT_CASES)), NameOfCase);
