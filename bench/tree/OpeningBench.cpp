// Opening the browser over 20,000 records against a dialog of the same template that inserts the same items with the same
// pictures by hand, and a lookup in a catalogue that is kept.
#include "lyt64.h"

#include "Timing.h"
#include "support/TestFolder.h"
#include "tree/TestSource.h"

#include <windows.h>

#include <commctrl.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

namespace
{

constexpr int recordCount = 20'000;
constexpr int rounds = 11;
constexpr int treeTemplate = 131;
constexpr int treeControl = 1000;

std::string ProgramFolder()
{
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, sizeof path);
    *std::strrchr(path, '\\') = '\0';
    return path;
}

template <class Function>
Function* Find(HMODULE library, const char* name)
{
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

// Headings with groups of nine symbols.
std::vector<lytTreeRecord> MakeRecords()
{
    std::vector<lytTreeRecord> records(recordCount);
    for (int number = 0; number < recordCount; ++number)
    {
        lytTreeRecord& record = records[static_cast<size_t>(number)];
        record.nLevel = number % 100 == 0 ? 0 : number % 10 == 0 ? 1 : 2;
        record.nType = record.nLevel + 1;
        std::snprintf(record.szLabel, sizeof record.szLabel, "Entry number %d", number);
        std::snprintf(record.szKey, sizeof record.szKey, "key.%d", number);
    }
    return records;
}

std::vector<lytTreeRecord> records;

// The button that ends the dialog which comes up next.
int endingButton = IDCANCEL;

LRESULT CALLBACK EndDialogs(int code, WPARAM wParam, LPARAM lParam)
{
    if (code == HCBT_ACTIVATE)
        PostMessageA(reinterpret_cast<HWND>(wParam), WM_COMMAND, static_cast<WPARAM>(endingButton), 0);
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

void InsertByHand(HWND tree)
{
    SendMessageA(tree, WM_SETREDRAW, FALSE, 0);
    HTREEITEM parents[3] = {};
    for (const lytTreeRecord& record : records)
    {
        TVINSERTSTRUCTA insert = {};
        insert.hParent = record.nLevel > 0 ? parents[record.nLevel - 1] : nullptr;
        insert.hInsertAfter = TVI_LAST;
        insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
        insert.item.pszText = const_cast<char*>(record.szLabel); // the control copies it
        insert.item.iImage = insert.item.iSelectedImage = record.nType - 1;
        parents[record.nLevel] =
            reinterpret_cast<HTREEITEM>(SendMessageA(tree, TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insert)));
    }
    SendMessageA(tree, WM_SETREDRAW, TRUE, 0);
}

INT_PTR CALLBACK PlainDialog(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
{
    static HIMAGELIST pictures = nullptr;
    if (message == WM_INITDIALOG)
    {
        SetWindowPos(dialog, nullptr, 0, 0, 400, 500, SWP_NOMOVE | SWP_NOZORDER);
        pictures = ImageList_Create(16, 16, ILC_COLOR, 3, 0);
        for (const int icon : {138, 136, 137})
            ImageList_ReplaceIcon(pictures, -1, LoadIconA(reinterpret_cast<HINSTANCE>(lParam), MAKEINTRESOURCEA(icon)));
        HWND tree = GetDlgItem(dialog, treeControl);
        SendMessageA(tree, TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(pictures));
        InsertByHand(tree);
        return TRUE;
    }
    if (message == WM_COMMAND)
        EndDialog(dialog, LOWORD(wParam));
    if (message == WM_NCDESTROY)
        ImageList_Destroy(pictures);
    return 0;
}

void Compare(const char* what, const std::vector<double>& ours, const std::vector<double>& plain)
{
    std::printf("%-18s %8.2f ms, plain dialog %8.2f ms, ratio %5.2f\n", what, Median(ours), Median(plain),
                Median(ours) / Median(plain));
}

void MeasureOpenings(HMODULE library)
{
    auto* const open = Find<decltype(lytOpenTreeView)>(library, "lytOpenTreeView");
    auto* const release = Find<decltype(FreeGlobalObject)>(library, "FreeGlobalObject");
    char target[256] = "";
    const auto browse = [&](const char* request) { open(request, target, 255); };
    const auto showPlain = [&] {
        DialogBoxParamA(library, MAKEINTRESOURCEA(treeTemplate), nullptr, PlainDialog,
                        reinterpret_cast<LPARAM>(library));
    };

    browse("S");
    showPlain();
    std::vector<double> first;
    std::vector<double> later;
    std::vector<double> plain;
    for (int round = 0; round < rounds; ++round)
    {
        release();
        first.push_back(TimeOf([&] { browse("S"); }));
        plain.push_back(TimeOf(showPlain));
        later.push_back(TimeOf([&] { browse("S"); }));
    }
    Compare("first opening", first, plain);
    Compare("later opening", later, plain);
}

void MeasureLookups(HMODULE library)
{
    auto* const find = Find<decltype(lytGetSymbolfromTree)>(library, "lytGetSymbolfromTree");
    char target[256] = "";
    for (const char* key : {"key.11", "key.19999", "none"})
    {
        std::vector<double> times;
        for (int round = 0; round < 101; ++round)
            times.push_back(TimeOf([&] { find(key, target, 255); }));
        std::printf("lookup of %-9s %8.3f ms\n", key, Median(times));
    }
}

} // namespace

int main()
{
    const HMODULE library = LoadLibraryA("lyt64.dll");
    // By its path, for a source that lies beside this program would be found first.
    const HMODULE source = LoadLibraryA((ProgramFolder() + "\\tree-tests\\complete\\lytsrc.dll").c_str());
    if (library == nullptr || source == nullptr)
        return 1;

    records = MakeRecords();
    const TestSourceScript script = {records.data(), recordCount, 1};
    Find<decltype(TestSourceServe)>(source, "TestSourceServe")('S', &script);
    const TestFolder folder;
    folder.Write("lyt.ini", "[global]\nTreeWidth=400\nTreeHeight=500\nTreeLevels=1\n");
    Find<decltype(lytInitialiseEnvironment)>(library, "lytInitialiseEnvironment")("", folder.Path().c_str(),
                                                                                  folder.Path().c_str());
    SetWindowsHookExA(WH_CBT, EndDialogs, nullptr, GetCurrentThreadId());
    std::printf("%d records, medians of %d rounds\n", recordCount, rounds);
    MeasureOpenings(library);
    MeasureLookups(library);
    return 0;
}
