#include "lytcall/Session.h"

#include "commandline/Program.h"
#include "lytcall/ScriptRunner.h"

#include <cstdio>

namespace lytcall
{

namespace
{

constexpr int defaultSize = 1024;
constexpr unsigned defaultPatience = 10;
// Some functions write one byte beyond the stated size.
constexpr size_t roomBehind = 16;

std::string TemporaryFolder()
{
    char folder[MAX_PATH] = "";
    GetTempPathA(sizeof folder, folder);
    return folder;
}

} // namespace

std::string ProgramFolder()
{
    char name[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, name, sizeof name);
    const std::string path = name;
    return path.substr(0, path.find_last_of("\\/"));
}

Session::Session(const Request& commandLine)
    : m_request(commandLine), m_library(commandLine.Text("--library", ProgramFolder() + "\\lyt64.dll"))
{
    const std::string document = m_request.Text("--document", TemporaryFolder() + "inspection.doc");
    const std::string dialogs = m_request.Text("--dialogs", ProgramFolder() + "\\samples\\dialogs");
    m_library.Find<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")(document.c_str(), dialogs.c_str(),
                                                                                   InitFolder().c_str());
    for (const std::string& define : m_request.Texts("--define"))
        m_library.Find<decltype(lytSetDialogDefine)>("lytSetDialogDefine")(define.c_str());
}

Session::~Session()
{
    m_library.Find<decltype(FreeGlobalObject)>("FreeGlobalObject")();
    if (m_ownFolder.empty())
        return;
    DeleteFileA((m_ownFolder + "\\lyt.ini").c_str());
    RemoveDirectoryA(m_ownFolder.c_str());
}

// The language is in lyt.ini, so another language needs another lyt.ini.
std::string Session::InitFolder()
{
    std::string folder = m_request.Text("--init", ProgramFolder() + "\\samples\\init");
    if (!m_request.Has("--language"))
        return folder;

    m_ownFolder = TemporaryFolder() + "lytcall-" + std::to_string(GetCurrentProcessId());
    const std::string copy = m_ownFolder + "\\lyt.ini";
    CreateDirectoryA(m_ownFolder.c_str(), nullptr);
    CopyFileA((folder + "\\lyt.ini").c_str(), copy.c_str(), FALSE);
    const std::string language = m_request.Text("--language", "");
    if (!WritePrivateProfileStringA("global", "Current Language", language.c_str(), copy.c_str()))
        throw CallError(copy + " cannot be written; leave --language out, or make the temporary folder writable");
    return m_ownFolder;
}

int Session::SizeOf(const char* sizeOption) const
{
    return m_request.Number(sizeOption, defaultSize);
}

std::vector<char> Session::Buffer(const char* sizeOption) const
{
    const int size = SizeOf(sizeOption);
    return std::vector<char>((size > 0 ? static_cast<size_t>(size) : 0) + roomBehind);
}

int Session::WithWindows(const std::function<int()>& call) const
{
    ScriptRunner runner(m_request.Text("--script", ""), m_request.Text("--shot", ""),
                        m_request.Number("--limit", static_cast<int>(commandline::Patience(defaultPatience))));
    // Whoever looks at a window wants to see first what it was opened with.
    std::fflush(stdout);
    const int result = call();
    runner.Finish();
    return result;
}

LytLibrary::LytLibrary(const std::string& fileName) : m_fileName(fileName), m_module(LoadLibraryA(fileName.c_str()))
{
    if (m_module == nullptr)
        throw CallError(fileName + " cannot be loaded (error " + std::to_string(GetLastError()) +
                        "); name it with --library, as a 64-bit DLL");
}

FARPROC LytLibrary::Address(const char* name) const
{
    FARPROC address = GetProcAddress(m_module, name);
    if (address == nullptr)
        throw CallError(m_fileName + " does not export " + name);
    return address;
}

} // namespace lytcall
