// Opening and closing a described dialog of sixty controls against a dialog of the same controls from a template of this
// program, a hundred dialogs' effect on memory, and the weight of the DLL: its size and the time to load it.
#include "lyt64.h"

#include "support/TestFolder.h"

#include <windows.h>

#include <algorithm>
#include <cstdio>
#include <functional>
#include <malloc.h>
#include <string>
#include <vector>

namespace
{

constexpr int templateId = 100;
constexpr int fields = 29;

double Milliseconds(const std::function<void()>& work)
{
    LARGE_INTEGER frequency;
    LARGE_INTEGER start;
    LARGE_INTEGER end;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&start);
    work();
    QueryPerformanceCounter(&end);
    return 1000.0 * static_cast<double>(end.QuadPart - start.QuadPart) / static_cast<double>(frequency.QuadPart);
}

double Median(std::vector<double> times)
{
    const auto middle = times.begin() + static_cast<std::ptrdiff_t>(times.size() / 2);
    std::nth_element(times.begin(), middle, times.end());
    return *middle;
}

// Two works in turn, so that both meet the same disturbances.
std::pair<double, double> MediansInTurn(int rounds, const std::function<void()>& first,
                                        const std::function<void()>& second)
{
    first();
    second();
    std::vector<double> firstTimes;
    std::vector<double> secondTimes;
    for (int round = 0; round < rounds; ++round)
    {
        firstTimes.push_back(Milliseconds(first));
        secondTimes.push_back(Milliseconds(second));
    }
    return {Median(firstTimes), Median(secondTimes)};
}

// Cancels every dialog as soon as it is shown.
LRESULT CALLBACK CancelWhenShown(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HCBT_ACTIVATE)
        PostMessageA(reinterpret_cast<HWND>(wParam), WM_COMMAND, IDCANCEL, 0);
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

// The controls of version 6, which the DLL's dialogs have: the plain dialog is made of the same.
class SameControls
{
public:
    SameControls()
    {
        ACTCTXA request{};
        request.cbSize = sizeof request;
        request.dwFlags = ACTCTX_FLAG_RESOURCE_NAME_VALID;
        request.lpSource = "lyt64.dll";
        request.lpResourceName = ISOLATIONAWARE_MANIFEST_RESOURCE_ID;
        m_context = CreateActCtxA(&request);
        ActivateActCtx(m_context, &m_cookie);
    }
    SameControls(const SameControls&) = delete;
    SameControls& operator=(const SameControls&) = delete;
    ~SameControls()
    {
        DeactivateActCtx(0, m_cookie);
        ReleaseActCtx(m_context);
    }

private:
    HANDLE m_context;
    ULONG_PTR m_cookie = 0;
};

INT_PTR CALLBACK PlainDialog(HWND window, UINT message, WPARAM wParam, LPARAM /*lParam*/)
{
    if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL)
        EndDialog(window, IDCANCEL);
    return message == WM_INITDIALOG;
}

void WriteDescription(const TestFolder& folder)
{
    std::string texts = "[Buttons]\r\n001=OK\r\n002=Cancel\r\n[TEXTS]\r\nTitle=Sixty controls\r\n";
    std::string controls;
    for (int field = 1; field <= fields; ++field)
    {
        const std::string number = std::to_string(field);
        const std::string top = std::to_string(field * 16);
        texts += "L" + number + "=A label of field " + number + "\r\n";
        controls += "Text 20, " + top + ", 160, 13, \"L" + number + "\", .L" + number + "\n";
        controls += "TextBox 200, " + top + ", 300, 16, .F" + number + "\n";
    }
    folder.Write("lyt.ini", "[global]\r\nCurrent Language=English\r\n");
    folder.Write("lang/English.nls", texts);
    folder.Write("lytInSym.dlg",
                 "$VERSION 1\n$LAYOUT TEXTS\nBegin Dialog Box 600, 560, \"Title\", .Main\n" + controls +
                     "OKButton 120, 500, 120, 22, .Ok\nCancelButton 360, 500, 120, 22, .Cancel\nEnd Dialog\n"
                     "$VALUES\n$DEPENDANCES\n$EVALUATION, x\n$INPUT, parent\nStart: (999, End = F1\n"
                     "$OUTPUT\n(\"%s\", F1)\n$END\n");
}

template <class Function>
Function* Export(HMODULE library, const char* name)
{
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

void PrintRow(const char* what, double ours, const char* oursUnit, double other, double aim)
{
    std::printf("%-46s %9.2f %-4s %9.2f %-4s %6.2f x   (aim %.2f)\n", what, ours, oursUnit, other, oursUnit,
                ours / other, aim);
}

void BenchDialogs(HMODULE library)
{
    const TestFolder folder;
    WriteDescription(folder);
    Export<decltype(lytInitialiseEnvironment)>(library, "lytInitialiseEnvironment")("doc.rtf", folder.Path().c_str(),
                                                                                    folder.Path().c_str());
    const auto symbol = Export<decltype(lytSymbolPropertyDialog)>(library, "lytSymbolPropertyDialog");
    HHOOK hook = SetWindowsHookExA(WH_CBT, CancelWhenShown, nullptr, GetCurrentThreadId());
    char buffer[100] = "";
    const auto described = [&] { symbol("key", buffer, sizeof buffer); };
    const auto plain = []
    {
        const SameControls controls;
        DialogBoxParamA(GetModuleHandleA(nullptr), MAKEINTRESOURCEA(templateId), nullptr, PlainDialog, 0);
    };
    const auto [ours, other] = MediansInTurn(41, described, plain);
    PrintRow("dialog of 60 controls, opened and closed", ours, "ms", other, 1.15);

    const auto heapSize = []
    {
        size_t bytes = 0;
        PROCESS_HEAP_ENTRY entry{};
        HANDLE heap = reinterpret_cast<HANDLE>(_get_heap_handle());
        while (HeapWalk(heap, &entry) != FALSE)
            bytes += (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY) != 0 ? entry.cbData : 0;
        return bytes;
    };
    const size_t before = heapSize();
    for (int round = 0; round < 100; ++round)
        described();
    std::printf("%-46s %+9lld bytes of heap\n", "100 described dialogs one after another",
                static_cast<long long>(heapSize()) - static_cast<long long>(before));
    UnhookWindowsHookEx(hook);
}

long FileSize(const char* name)
{
    WIN32_FILE_ATTRIBUTE_DATA data{};
    GetFileAttributesExA(name, GetFileExInfoStandard, &data);
    return static_cast<long>(data.nFileSizeLow);
}

void BenchLoading()
{
    const auto load = [](const char* name) { FreeLibrary(LoadLibraryA(name)); };
    const auto [ours, other] = MediansInTurn(
        201, [&] { load("lyt64.dll"); }, [&] { load("empty-library.dll"); });
    PrintRow("loading the library, against an empty one", ours, "ms", other, 2.0);
    std::printf("%-46s %9.1f KB                            (aim below 400)\n", "size of the library",
                static_cast<double>(FileSize("lyt64.dll")) / 1024.0);
}

std::string FolderOfProgram()
{
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, sizeof path);
    const std::string file = path;
    return file.substr(0, file.find_last_of('\\'));
}

} // namespace

int main()
{
    char computer[MAX_COMPUTERNAME_LENGTH + 1] = "";
    DWORD size = sizeof computer;
    GetComputerNameA(computer, &size);
    std::printf("lyt64 on %s: ours, the plain equivalent, their ratio (medians)\n", computer);
    SetCurrentDirectoryA(FolderOfProgram().c_str());
    BenchLoading();
    HMODULE library = LoadLibraryA("lyt64.dll");
    if (library == nullptr)
        return 1;
    BenchDialogs(library);
    return 0;
}
