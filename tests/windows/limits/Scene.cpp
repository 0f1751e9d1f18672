#include "Scene.h"

#include "Observation.h"

Scene* Scene::m_current = nullptr;
const std::string Scene::everyAnswer =
    "lytGetTextForKey 1\nlytGetTextFromIniFile 1\nlytListFromIniStart 1\nlytListFromIniNext 1\n"
    "lytSystemInfoInit 1\nlytSystemInfoRead 1\nlytGetInitializationPath 1\nlytGetCurrentDocName 1\n";

namespace
{

std::string LibraryFile()
{
    return ProgramFolder() + "\\..\\lyt64.dll";
}

} // namespace

Scene::Scene() : m_library(LibraryFile())
{
    m_current = this;
    folder.Write("lyt.ini", "[global]\r\nCurrent Language=Test\r\nTreeWidth=300\r\nTreeHeight=300\r\n"
                            "[lists]\r\nlist=a,b\r\n[LogLevel]\r\nlevel=2\r\n");
    folder.Write("lang/Test.nls", SharedTexts() + "[Label]\r\nTreeDlgLabel=Catalogue\r\n"
                                                  "[LIMITS]\r\nTitle=The title\r\nFill=Fill\r\nGo=Go\r\n");
    for (const char* name : {"lytInSym", "lytInPhr", "lytCdGrp", "lytRpGrp", "lytWzGrp", "lytWzPhr", "lytWzSym"})
        folder.Write(std::string(name) + ".dlg", Description().Text());
    Initialise();
}

Scene::~Scene()
{
    EXPECT_TRUE(robot.Done()) << robot.Log();
    Get<decltype(FreeGlobalObject)>("FreeGlobalObject")();
    for (HMODULE partner : m_partners)
    {
        *reinterpret_cast<decltype(&Acts)>(reinterpret_cast<void*>(GetProcAddress(partner, "Acts")))() = {};
        FreeLibrary(partner);
    }
    m_current = nullptr;
}

HostileActs& Scene::Partner(const std::string& library)
{
    const HMODULE partner = LoadLibraryA(library.c_str());
    m_partners.push_back(partner);
    return *reinterpret_cast<decltype(&Acts)>(reinterpret_cast<void*>(GetProcAddress(partner, "Acts")))();
}

void Scene::Initialise() const
{
    Get<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")((folder.Path() + "\\doc.rtf").c_str(),
                                                                        folder.Path().c_str(), folder.Path().c_str());
}

void Scene::Describe(const std::string& controls, const std::string& values, const std::string& rules) const
{
    Description description;
    description.head = "$VERSION 1\n$LAYOUT LIMITS\n";
    description.controls += controls + "PushButton 200, 10, 60, 20, \"Fill\", .Fill\n"
                                       "PushButton 200, 40, 60, 20, \"Go\", .Go\n";
    description.values = values;
    description.rules = rules;
    description.input += "$INPUT, Take\nStart: (999, End = Key\n";
    description.output += "$OUTPUT, Send\n(\"<%s>\", Key)\n";
    folder.Write("lytInSym.dlg", description.Text());
}

std::string Scene::ShowSymbol()
{
    GuardedBuffer buffer(1000, "as it was");
    const int result = Get<decltype(lytSymbolPropertyDialog)>("lytSymbolPropertyDialog")("key", buffer.Data(), 1000);
    EXPECT_TRUE(buffer.IsIntact());
    return std::to_string(result) + " " + buffer.Text();
}

std::string Scene::OpenBrowser()
{
    GuardedBuffer buffer(300, "as it was");
    const int result = Get<decltype(lytOpenTreeView)>("lytOpenTreeView")("W", buffer.Data(), 300);
    EXPECT_TRUE(buffer.IsIntact());
    return std::to_string(result) + " " + buffer.Text();
}

int Scene::AskForText() const
{
    char buffer[10] = "";
    return Get<decltype(lytGetTextForKey)>("lytGetTextForKey")("Buttons", "001", "", buffer, sizeof buffer);
}

std::string Scene::FindSymbol(const std::string& begin) const
{
    GuardedBuffer buffer(300, "as it was");
    const int result = Get<decltype(lytGetSymbolfromTree)>("lytGetSymbolfromTree")(begin.c_str(), buffer.Data(), 300);
    EXPECT_TRUE(buffer.IsIntact());
    return std::to_string(result) + " " + buffer.Text();
}

void Scene::Unload()
{
    FreeLibrary(m_library.Module());
}

void Scene::LoadAgain()
{
    EXPECT_EQ(LoadLibraryA(LibraryFile().c_str()), m_library.Module());
}

std::string Scene::CallEverything() const
{
    std::string given;
    for (const Export& function : Exports())
    {
        if (const int result = CallWithGoodValues(*this, function); result != 0)
            given += std::string(function.name) + " " + std::to_string(result) + "\n";
    }
    Initialise();
    return given;
}

Scene& Scene::CancelEverything()
{
    for (int dialog = 0; dialog < 3; ++dialog)
        EndDialog(IDCANCEL);
    for (int browser = 0; browser < 3; ++browser)
        EndBrowser(IDCANCEL);
    return *this;
}
