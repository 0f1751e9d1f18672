#include "TreeFixture.h"

#include "TestSources.h"

#include <algorithm>
#include <cstring>

const Records TreeTest::house = {
    Entry(0, LYT_TREE_HEADING, "House", "h"),       Entry(1, LYT_TREE_GROUP, "Roof", "roof"),
    Entry(2, LYT_TREE_SYMBOL, "Tile##red", "tile"), Entry(2, LYT_TREE_SYMBOL, "Tin", "tin"),
    Entry(1, LYT_TREE_GROUP, "Wall", "wall"),       Entry(2, LYT_TREE_SYMBOL, "Brick", "brick"),
    Entry(0, LYT_TREE_HEADING, "Garden", "garden"), Entry(1, LYT_TREE_SYMBOL, "Lone", "lone"),
};

const Lines TreeTest::houseShown = {
    "House [0]",  "  Roof [1]",    "    Tile   red [2]", "    Tin [2]",
    "  Wall [1]", "    Brick [2]", "Garden [0]",         "  Lone [2]",
};

const Records TreeTest::yard = {
    Entry(0, LYT_TREE_GROUP, "Path", "path"),
    Entry(1, LYT_TREE_GROUP, "Gravel", "gravel"),
    Entry(1, LYT_TREE_SYMBOL, "Stone", "stone"),
    Entry(0, LYT_TREE_GROUP, "Fence", "fence"),
};

lytTreeRecord Entry(int level, int type, const std::string& label, const std::string& key)
{
    lytTreeRecord record = {};
    record.nLevel = level;
    record.nType = type;
    std::memcpy(record.szLabel, label.data(), std::min(label.size(), sizeof record.szLabel));
    std::memcpy(record.szKey, key.data(), std::min(key.size(), sizeof record.szKey));
    return record;
}

TreeTest::TreeTest()
{
    folder.Write("dialogs/lang/English.nls",
                 "[Label]\nTreeDlgLabel=Catalogue\n"
                 "[Buttons]\n001=Fine\n002=Stop\n"
                 "[TEXTS]\nlytInSym=Form\nlytWzGrp=Group\nlytWzPhr=Phrase\nlytWzSym=Symbol\nPick=Pick\n"
                 "[Dialog_Error]\n207=No file ''.\n222=Pick another.\n");
    Configure("TreeWidth=300\nTreeHeight=400\nTreeLevels=2\n");
    m_library = LoadLibraryA((ProgramFolder() + "\\..\\lyt64.dll").c_str());
    if (m_library == nullptr)
        throw std::runtime_error("lyt64.dll is not to be found");
    Initialise();
}

void TreeTest::Initialise()
{
    Get<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")("", (folder.Path() + "\\dialogs").c_str(),
                                                                        folder.Path().c_str());
}

TreeTest::~TreeTest()
{
    TakeLibrariesAway();
}

void TreeTest::UseSource(const std::string& variant)
{
    m_source = LoadTestSource(variant);
    Serve('S', house);
    Serve('P', yard);
}

template <class Function>
Function* TreeTest::GetFromSource(const char* name) const
{
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(m_source, name)));
}

std::string TreeTest::NastyLibrary()
{
    return "\"" + ProgramFolder() + "\\..\\nasty.dll\"";
}

void TreeTest::Serve(char kind, Records records, int startResult)
{
    Records& kept = kind == 'P' ? m_paragraphs : m_symbols;
    kept = std::move(records);
    const TestSourceScript script = {kept.data(), static_cast<int>(kept.size()), startResult};
    GetFromSource<decltype(TestSourceServe)>("TestSourceServe")(kind, &script);
}

void TreeTest::Interrupt(int record, void (*act)()) const
{
    GetFromSource<decltype(TestSourceInterrupt)>("TestSourceInterrupt")(record, act);
}

int TreeTest::Starts(char kind) const
{
    return GetFromSource<decltype(TestSourceStarts)>("TestSourceStarts")(kind);
}

int TreeTest::Nexts(char kind) const
{
    return GetFromSource<decltype(TestSourceNexts)>("TestSourceNexts")(kind);
}

void TreeTest::WriteDialog(const std::string& name, Description description) const
{
    description.begin = "Begin Dialog Box 300, 200, \"" + name + "\", .Main\n";
    folder.Write("dialogs/" + name + ".dlg", description.Text());
}

void TreeTest::Configure(const std::string& lines)
{
    folder.Write("lyt.ini", "[global]\nCurrent Language=English\n" + lines);
}

TreeTest::Answer TreeTest::Open(const std::string& request,
                                const std::vector<std::function<void(const TreeWindow&)>>& acts)
{
    robot::Robot robot;
    for (size_t index = 0; index < acts.size(); ++index)
    {
        if (index > 0)
            robot.AnswerMessage();
        if (acts[index] == nullptr)
            continue;
        const auto isTree = []
        {
            HWND dialog = robot::ActiveDialog();
            return dialog != nullptr && GetDlgItem(dialog, 1000) != nullptr;
        };
        robot.When("tree", isTree, [act = acts[index]] { act(TreeWindow(robot::ActiveDialog())); });
    }
    GuardedBuffer buffer(255, "untouched");
    const int result = Get<decltype(lytOpenTreeView)>("lytOpenTreeView")(request.c_str(), buffer.Data(), buffer.Size());
    EXPECT_TRUE(robot.Done()) << robot.Log();
    EXPECT_TRUE(buffer.IsIntact());
    return {result, buffer.Text(), robot.Messages()};
}

TreeTest::Answer TreeTest::Open(const std::string& request, const std::function<void(const TreeWindow&)>& act)
{
    return Open(request, std::vector<std::function<void(const TreeWindow&)>>{act});
}

template <class SEEN>
SEEN TreeTest::Look(const std::string& request, SEEN (TreeWindow::*look)() const)
{
    SEEN seen{};
    Open(request,
         [&](const TreeWindow& tree)
         {
             seen = (tree.*look)();
             tree.Cancel();
         });
    return seen;
}

Lines TreeTest::ItemsShown(const std::string& request)
{
    return Look(request, &TreeWindow::Items);
}

Lines TreeTest::ItemsOpen(const std::string& request)
{
    return Look(request, &TreeWindow::OpenItems);
}

std::string TreeTest::Preselected(const std::string& request)
{
    return Look(request, &TreeWindow::Selected);
}

SIZE TreeTest::SizeShown(const std::string& request)
{
    return Look(request, &TreeWindow::Size);
}

TreeTest::Answer TreeTest::Pick(const std::string& request, const std::string& label)
{
    return Open(request, [&](const TreeWindow& tree) { tree.Pick(label); });
}

std::string TreeTest::CallWizard(int size) const
{
    GuardedBuffer buffer(size, "untouched");
    const int result = Get<decltype(lytWizard)>("lytWizard")(buffer.Data(), buffer.Size());
    EXPECT_TRUE(buffer.IsIntact());
    return std::to_string(result) + " " + (buffer.Text().empty() ? "nothing" : buffer.Text());
}

std::string TreeTest::AskWizard(const std::string& label, const std::string& title, const std::string& text, int size)
{
    robot::Robot robot;
    robot.On("Catalogue", [&](HWND dialog) { TreeWindow(dialog).Pick(label); });
    robot.On(title,
             [&](HWND dialog)
             {
                 HWND field = robot::ChildOfClass(dialog, "Edit");
                 scanned = robot::TextOf(field);
                 if (!text.empty())
                     robot::ReplaceText(field, text);
                 robot::Press(robot::ChildWithText(dialog, text.empty() ? "Stop" : "Fine"));
             });
    std::string answer = CallWizard(size);
    EXPECT_TRUE(robot.Done()) << robot.Log();
    return answer;
}

std::string TreeTest::SymbolFor(const std::string& text)
{
    GuardedBuffer buffer(100, "untouched");
    const int result =
        Get<decltype(lytGetSymbolfromTree)>("lytGetSymbolfromTree")(text.c_str(), buffer.Data(), buffer.Size());
    EXPECT_TRUE(buffer.IsIntact());
    return std::to_string(result) + " " + buffer.Text();
}

Lines TreeTest::ReadChildren()
{
    Lines lines;
    for (;;)
    {
        GuardedBuffer text(255);
        GuardedBuffer path(255);
        if (Get<decltype(lytTreeReadChildNode)>("lytTreeReadChildNode")(text.Data(), text.Size(), path.Data(),
                                                                        path.Size()) == 0)
            return lines;
        EXPECT_TRUE(text.IsIntact() && path.IsIntact());
        lines.push_back(text.Text() + "|" + path.Text());
    }
}
