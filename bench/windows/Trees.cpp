// Opening the browser over a catalogue against a dialog of the same template that inserts the same items with the same
// pictures by hand, and a lookup in a catalogue that is kept.
#include "lyt64.h"

#include "windows/Works.h"

#include "res/resource.h"
#include "support/Library.h"
#include "support/TestFolder.h"
#include "tree/TestSource.h"
#include "windows/ByHand.h"

#include <commctrl.h>

#include <cstdio>

namespace
{

constexpr const char* iniText = "[global]\nCurrent Language=English\nTreeWidth=400\nTreeHeight=500\nTreeLevels=1\n";

// Headings with groups of nine symbols.
std::vector<lytTreeRecord> MakeRecords(int count)
{
    std::vector<lytTreeRecord> records(static_cast<size_t>(count));
    for (int number = 0; number < count; ++number)
    {
        lytTreeRecord& record = records[static_cast<size_t>(number)];
        record.nLevel = number % 100 == 0 ? 0 : number % 10 == 0 ? 1 : 2;
        record.nType = record.nLevel + 1;
        std::snprintf(record.szLabel, sizeof record.szLabel, "Entry number %d", number);
        std::snprintf(record.szKey, sizeof record.szKey, "key.%d", number);
    }
    return records;
}

template <class Function>
Function* Find(HMODULE library, const char* name)
{
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

// By its path, for a source that is beside this program would be found first.
HMODULE SourceLibrary()
{
    static const HMODULE source = LoadLibraryA((ProgramFolder() + "\\tree-tests\\complete\\lytsrc.dll").c_str());
    return source;
}

// The browser of the library and the dialog that does the same by hand, over the same records.
class Catalogue
{
public:
    explicit Catalogue(int count) : m_records(MakeRecords(count))
    {
        const TestSourceScript script = {m_records.data(), count, 1};
        Find<decltype(TestSourceServe)>(SourceLibrary(), "TestSourceServe")('S', &script);
        m_folder.Write("lyt.ini", iniText);
        m_folder.Write("lang\\English.nls",
                       "[Buttons]\r\n001=OK\r\n002=Cancel\r\n[Label]\r\nTreeDlgLabel=Catalogue\r\n");
        Forget();
    }

    void Browse() { Call<decltype(lytOpenTreeView)>("lytOpenTreeView")("S", m_target, 255); }
    void BrowseByHand() const
    {
        LookForCompanion();
        RunDialogByHand(GetModuleHandleA("lyt64.dll"), IDD_TREE, PlainDialog, reinterpret_cast<LPARAM>(this));
    }
    // What the library keeps is forgotten, its folders too.
    void Forget() const
    {
        Call<decltype(FreeGlobalObject)>("FreeGlobalObject")();
        Call<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")("", m_folder.Path().c_str(),
                                                                             m_folder.Path().c_str());
    }
    void Lookup() { Call<decltype(lytGetSymbolfromTree)>("lytGetSymbolfromTree")(LastKey(), m_target, 255); }
    void ReadTexts() const
    {
        const TextsByHand texts(m_folder.Path());
        texts.Read("Label", "TreeDlgLabel");
        texts.Read("Buttons", "001");
        texts.Read("Buttons", "002");
        for (const char* key : {"TreeWidth", "TreeHeight", "TreeLevels"})
            ReadProfile("global", key, m_folder.File("lyt.ini"));
    }
    void AskSource() const
    {
        lytTreeRecord record = {};
        m_start("");
        while (m_next(&record) != 0)
            continue;
    }

private:
    const char* LastKey() const { return m_records.back().szKey; }

    static INT_PTR CALLBACK PlainDialog(HWND dialog, UINT message, WPARAM wParam, LPARAM lParam)
    {
        static HIMAGELIST pictures = nullptr;
        if (message == WM_INITDIALOG)
        {
            pictures = reinterpret_cast<const Catalogue*>(lParam)->Fill(dialog);
            return TRUE;
        }
        if (message == WM_SIZE)
            Arrange(dialog, LOWORD(lParam), HIWORD(lParam));
        if (message == WM_COMMAND)
            EndDialog(dialog, LOWORD(wParam));
        if (message == WM_NCDESTROY)
            ImageList_Destroy(pictures);
        return 0;
    }
    HIMAGELIST Fill(HWND dialog) const
    {
        ReadTexts();
        SetWindowPos(dialog, nullptr, 0, 0, 400, 500, SWP_NOMOVE | SWP_NOZORDER);
        SetWindowTextA(dialog, "Catalogue");
        SetDlgItemTextA(dialog, IDOK, "OK");
        SetDlgItemTextA(dialog, IDCANCEL, "Cancel");
        HIMAGELIST pictures = ImageList_Create(16, 16, ILC_COLOR, 3, 0);
        HMODULE library = GetModuleHandleA("lyt64.dll");
        for (const int icon : {IDI_HEADING, IDI_GROUP, IDI_SYMBOL})
            ImageList_ReplaceIcon(pictures, -1, LoadIconA(library, MAKEINTRESOURCEA(icon)));
        HWND tree = GetDlgItem(dialog, IDC_TREE);
        SendMessageA(tree, TVM_SETIMAGELIST, TVSIL_NORMAL, reinterpret_cast<LPARAM>(pictures));
        SendMessageA(tree, WM_SETREDRAW, FALSE, 0);
        Insert(tree);
        SendMessageA(tree, WM_SETREDRAW, TRUE, 0);
        InvalidateRect(tree, nullptr, TRUE);
        SendMessageA(tree, TVM_SELECTITEM, TVGN_CARET, SendMessageA(tree, TVM_GETNEXTITEM, TVGN_ROOT, 0));
        return pictures;
    }
    static void Arrange(HWND dialog, int width, int height)
    {
        SetWindowPos(GetDlgItem(dialog, IDC_TREE), nullptr, 0, 0, width - 52, height - 80, SWP_NOZORDER | SWP_NOMOVE);
        SetWindowPos(GetDlgItem(dialog, IDOK), nullptr, width / 2 - 120, height - 40, 0, 0, SWP_NOZORDER | SWP_NOSIZE);
        SetWindowPos(GetDlgItem(dialog, IDCANCEL), nullptr, width / 2 + 17, height - 40, 0, 0,
                     SWP_NOZORDER | SWP_NOSIZE);
    }
    void Insert(HWND tree) const
    {
        HTREEITEM parents[3] = {};
        for (const lytTreeRecord& record : m_records)
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
    }

    TestFolder m_folder;
    std::vector<lytTreeRecord> m_records;
    lytTreeStartFunction m_start = Find<std::remove_pointer_t<lytTreeStartFunction>>(SourceLibrary(), "lytTreeStart");
    lytTreeNextFunction m_next = Find<std::remove_pointer_t<lytTreeNextFunction>>(SourceLibrary(), "lytTreeNext");
    char m_target[256] = "";
};

} // namespace

void MeasureTreeFirst(const BenchMeter& meter)
{
    Catalogue catalogue(meter.Size());
    const CancelledDialogs cancelled;
    meter.Compare({
        {"ours", [&] { catalogue.Browse(); }, [&] { catalogue.Forget(); }},
        {"by hand",
         [&]
         {
             catalogue.AskSource();
             catalogue.BrowseByHand();
         }},
        {"source", [&] { catalogue.AskSource(); }},
        {"texts", [&] { catalogue.ReadTexts(); }},
    });
}

void MeasureTreeLater(const BenchMeter& meter)
{
    Catalogue catalogue(meter.Size());
    const CancelledDialogs cancelled;
    catalogue.Browse();
    meter.Compare({
        {"ours", [&] { catalogue.Browse(); }},
        {"by hand", [&] { catalogue.BrowseByHand(); }},
        {"texts", [&] { catalogue.ReadTexts(); }},
    });
}

void MeasureTreeLookup(const BenchMeter& meter)
{
    Catalogue catalogue(meter.Size());
    const CancelledDialogs cancelled;
    catalogue.Browse();
    meter.Compare({{"ours", [&] { catalogue.Lookup(); }}});
}
