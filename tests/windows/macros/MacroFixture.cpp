#include "MacroFixture.h"

#include "dialogs/DialogFixture.h"
#include "tree/TreeWindow.h"

#include <fstream>
#include <iterator>

namespace
{

// What the tests of this program have run of the module, all together.
std::set<int> statements;
std::set<int> statementsRun;

class EveryStatement : public testing::Environment
{
public:
    void TearDown() override
    {
        const testing::UnitTest& tests = *testing::UnitTest::GetInstance();
        if (tests.test_to_run_count() < tests.total_test_count())
            return;
        for (const int line : statements)
            EXPECT_TRUE(statementsRun.contains(line)) << "no test runs line " << line << " of lyt64.bas";
    }
};

[[maybe_unused]] const auto* everyStatement = testing::AddGlobalTestEnvironment(new EveryStatement);

std::string FolderOfPrograms()
{
    return ProgramFolder() + "\\..";
}

} // namespace

std::string ReadFileBeside(const std::string& name)
{
    std::ifstream file(ProgramFolder() + "\\" + name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

Value Given(const std::string& text)
{
    return macros::TextFrom(macros::Wide(text));
}

MacroTest::MacroTest()
{
    CopyLibrary("library");
    std::string titles = "[TEXTS]\n";
    for (const char* name : {"lytInSym", "lytInPhr", "lytCdGrp", "lytRpGrp", "lytWzGrp", "lytWzPhr", "lytWzSym"})
    {
        Description description;
        description.begin = "Begin Dialog Box 300, 200, \"" + std::string(name) + "\", .Main\n";
        folder.Write("dialogs/" + std::string(name) + ".dlg", description.Text());
        titles += std::string(name) + "=" + name + "\n";
    }
    folder.Write("dialogs/lang/English.nls", titles +
                                                 "[Label]\nTreeDlgLabel=Catalogue\n[Buttons]\n001=Fine\n002=Stop\n"
                                                 "[Some]\nplain=Good morning\nquoted=The file '' is gone\nempty=\n");
    folder.Write("init/lyt.ini", "[global]\nCurrent Language=English\n[LogLevel]\nlevel=2\n"
                                 "[Inspection]\nTrades=roof, wall,,floor\nnone=\n");
    // The catalogue is found because it is loaded.
    LoadLibraryA((FolderOfPrograms() + "\\lytsrc.dll").c_str());
    moduleText = ReadFileBeside("lyt64.bas");
    UseModule();
}

MacroTest::~MacroTest()
{
    EXPECT_TRUE(robot.Done()) << robot.Log();
    UseModule();
    // Declarations hold the library as a host does; the next test begins without it.
    while (HMODULE library = GetModuleHandleA("lyt64.dll"))
        FreeLibrary(library);
}

void MacroTest::UseModule(const std::string& moreMacros, bool is64Bit)
{
    if (module != nullptr)
        statementsRun.insert(module->Run().begin(), module->Run().end());
    module = std::make_unique<macros::Interpreter>(moduleText + moreMacros, is64Bit);
    if (moreMacros.empty())
        statements.merge(module->Statements());
}

void MacroTest::CopyLibrary(const std::string& folderName) const
{
    folder.Write(folderName + "/nothing.txt", "");
    CopyFileA((FolderOfPrograms() + "\\lyt64.dll").c_str(), folder.File(folderName + "/lyt64.dll").c_str(), FALSE);
}

void MacroTest::Start(const std::string& document)
{
    Call("lytusefolder", {Given(folder.File("library"))});
    Call("lytstart", {Given(document), Given(folder.File("dialogs")), Given(folder.File("init"))});
}

Value MacroTest::Call(const std::string& name, const std::vector<Value>& arguments)
{
    m_arguments.clear();
    for (const Value& argument : arguments)
    {
        macros::Type type = macros::Type::Numbers;
        if (std::holds_alternative<macros::Text>(argument))
            type = macros::Type::Texts;
        else if (std::holds_alternative<macros::Object>(argument))
            type = macros::Type::Objects;
        m_arguments.push_back(std::make_shared<macros::Variable>(macros::Variable{type, argument}));
    }
    return module->Call(name, m_arguments);
}

long long MacroTest::NumberOf(const std::string& name, const std::vector<Value>& arguments)
{
    return macros::NumberIn(Call(name, arguments));
}

std::string MacroTest::TextOf(const std::string& name, const std::vector<Value>& arguments)
{
    return macros::Bytes(macros::TextIn(Call(name, arguments)).characters);
}

std::string MacroTest::FailureOf(const std::string& name, const std::vector<Value>& arguments)
{
    try
    {
        Call(name, arguments);
    }
    catch (const macros::MacroError& raised)
    {
        error = raised.Number();
        return raised.what();
    }
    error = 0;
    return "(no error)";
}

std::string MacroTest::TextAt(size_t index) const
{
    return macros::Bytes(macros::TextIn(m_arguments.at(index)->value).characters);
}

Lines MacroTest::ItemsAt(size_t index) const
{
    return ItemsIn(m_arguments.at(index)->value);
}

Lines MacroTest::ItemsIn(const Value& collection)
{
    Lines items;
    for (const Value& item : macros::ObjectIn(collection).items)
        items.push_back(macros::Bytes(macros::TextIn(item).characters));
    return items;
}

void MacroTest::Answer(const std::string& title, const std::optional<std::string>& text, int button)
{
    robot.On(title,
             [text, button](HWND dialog)
             {
                 if (text)
                     SetWindowTextA(robot::ChildOfClass(dialog, "Edit"), text->c_str());
                 robot::Press(GetDlgItem(dialog, button));
             });
}

void MacroTest::Pick(const std::string& label, int button)
{
    robot.On("Catalogue",
             [label, button](HWND dialog)
             {
                 if (button == IDOK)
                     TreeWindow(dialog).Pick(label);
                 else
                     TreeWindow(dialog).Cancel();
             });
}
