#include "tree/ClytTreeDialog.h"

#include "base/ClytRedrawPause.h"
#include "base/Words.h"
#include "environment/ClytEnvironment.h"
#include "environment/ClytException.h"
#include "environment/ProcessState.h"
#include "res/resource.h"
#include "tree/NodeExpansion.h"
#include "tree/NodeFill.h"
#include "tree/NodeSearch.h"

#include <cstdlib>

namespace
{

// The size of the window at the last confirmation, even a refused one; 0 before the first.
int lytTreeLastWidth = 0;
int lytTreeLastHeight = 0;
// The number of confirmed dialogs over the symbol tree. The first one ends the opening by levels for good.
int lytTreeOpened = 0;

int ReadNumber(const char* key)
{
    return lytNumberOf(lytEnvironment.GetIniValue("global", key));
}

class WaitCursor
{
public:
    WaitCursor() : m_previous(SetCursor(LoadCursorA(nullptr, IDC_WAIT))) {}
    WaitCursor(const WaitCursor&) = delete;
    WaitCursor& operator=(const WaitCursor&) = delete;
    ~WaitCursor() { SetCursor(m_previous); }

private:
    HCURSOR m_previous;
};

class ControlItems : public ClytTreeItems
{
public:
    explicit ControlItems(const CTreeCtrl& control) : m_control(control) {}

    HTREEITEM InsertItem(HTREEITEM parent, const char* text, int image) override
    {
        return m_control.InsertItem(text, image, image, parent, TVI_LAST);
    }
    void ExpandItem(HTREEITEM item) override { m_control.Expand(item, TVE_EXPAND); }
    HTREEITEM GetRootItem() const override { return m_control.GetRootItem(); }

private:
    const CTreeCtrl& m_control;
};

} // namespace

BEGIN_MESSAGE_MAP(ClytTreeDialog, CDialog)
    ON_WM_SIZE()
    ON_NOTIFY(TVN_ITEMEXPANDINGA, IDC_TREE, OnItemChange)
    ON_NOTIFY(TVN_DELETEITEMA, IDC_TREE, OnItemChange)
    ON_NOTIFY(NM_DBLCLK, IDC_TREE, OnDoubleClick)
END_MESSAGE_MAP()

ClytTreeDialog::ClytTreeDialog(const CString& request)
    : CDialog(IDD_TREE),
      startKey(request.Mid(1)),
      kind(request[0] == 'P' ? 'G' : request[0]),
      isPara(request[0] == 'P'),
      nodes(isPara ? lytParaNodes : lytSymbolNodes)
{
}

BOOL ClytTreeDialog::OnInitDialog()
{
    CDialog::OnInitDialog();
    TakeSize();
    SetTexts();
    imageList.Create(16, 16, 0, 0, 8);
    treeCtrl.m_hWnd = ::GetDlgItem(m_hWnd, IDC_TREE);
    {
        const WaitCursor waiting;
        HTREEITEM selection = nullptr;
        {
            const ClytRedrawPause pause(treeCtrl);
            LoadImages();
            FillTree();
            selection = ExpandTree();
        }
        // A control that does not redraw does not scroll either.
        SelectItem(selection);
    }
    MarkInitialNode();
    return TRUE;
}

void ClytTreeDialog::TakeSize()
{
    int width = lytTreeLastWidth;
    int height = lytTreeLastHeight;
    if (width == 0 && height == 0)
    {
        width = ReadNumber("TreeWidth");
        height = ReadNumber("TreeHeight");
    }
    SetWindowPos(nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOOWNERZORDER);
}

void ClytTreeDialog::SetTexts()
{
    SetWindowText(lytEnvironment.GetText("Label", "TreeDlgLabel"));
    GetDlgItem(IDOK)->SetWindowText(lytEnvironment.GetText("Buttons", "001"));
    GetDlgItem(IDCANCEL)->SetWindowText(lytEnvironment.GetText("Buttons", "002"));
}

void ClytTreeDialog::LoadImages()
{
    // In the order of the pictures' numbers.
    for (const int icon : {IDI_HEADING, IDI_GROUP, IDI_SYMBOL})
        imageList.Add(LoadIconW(AfxGetResourceHandle(), MAKEINTRESOURCEW(icon)));
    treeCtrl.SetImageList(&imageList, TVSIL_NORMAL);
}

void ClytTreeDialog::FillTree()
{
    ControlItems items(treeCtrl);
    if (!nodes.IsEmpty())
    {
        lytFillFromList(nodes, items, kind);
        return;
    }
    ClytTreeSource source;
    if (!lytGetTreeSource(isPara ? 'P' : 'S', source))
        return;
    try
    {
        lytFillFromSource(nodes, source, &items, kind);
    }
    catch (...)
    {
        // Nothing could be done with entries that have no node.
        treeCtrl.DeleteAllItems();
        throw;
    }
}

HTREEITEM ClytTreeDialog::ExpandTree()
{
    if (!startKey.IsEmpty())
    {
        const ClytNode* start = lytFindNode(nodes, kind, startKey);
        if (start != nullptr)
            selectKey = start->key;
    }
    ControlItems items(treeCtrl);
    return lytExpandNodes(nodes, {ReadNumber("TreeLevels"), lytTreeOpened == 0 && !isPara, selectKey}, items);
}

void ClytTreeDialog::SelectItem(HTREEITEM item)
{
    if (item == nullptr)
        return;
    // Each selection scrolls its item into view, so this detour brings two siblings above into view as well.
    treeCtrl.SelectItem(item);
    treeCtrl.SelectItem(treeCtrl.GetPrevSiblingItem(treeCtrl.GetPrevSiblingItem(item)));
    treeCtrl.SelectItem(item);
}

void ClytTreeDialog::MarkInitialNode()
{
    if (isPara || lytTreeConfirmCount != 0)
        return;
    const ClytNode* initial =
        kind == 'G' ? lytFindCurrentNode(nodes) : lytFindNodeByItem(nodes, treeCtrl.GetSelectedItem());
    lytMarkInitialNode(nodes, initial);
}

void ClytTreeDialog::OnOK()
{
    // A choice that is refused below still counts and is remembered.
    CountConfirmation();
    StoreSize();
    const ClytNode* chosen = lytFindNodeByItem(nodes, treeCtrl.GetSelectedItem());
    StoreItemStates();
    if (chosen == nullptr)
    {
        lytReport(lytError("ChoiceRefused"));
        return;
    }

    lytMarkCurrentNode(nodes, chosen);
    if (kind != 'W' && chosen->type != kind)
    {
        lytReport(lytError("ChoiceRefused"));
        return;
    }
    choice = kind == 'W' ? lytWizardChoice(*chosen) : chosen->key;
    if (!isPara)
        ++lytTreeOpened;
    CDialog::OnOK();
}

void ClytTreeDialog::CountConfirmation() const
{
    if (!isPara)
        lytTreeConfirmCount = kind == 'W' ? -1 : lytTreeConfirmCount + 1;
}

void ClytTreeDialog::StoreSize() const
{
    CRect rect;
    GetWindowRect(&rect);
    lytTreeLastWidth = std::abs(rect.Width());
    lytTreeLastHeight = std::abs(rect.Height());
}

void ClytTreeDialog::StoreItemStates()
{
    for (ClytNode& node : nodes)
        node.itemState = treeCtrl.GetItemState(node.item, TVIS_EXPANDED);
}

void ClytTreeDialog::OnSize(UINT sizeKind, int width, int height)
{
    // The row of buttons is off centre on purpose.
    if (CWnd* tree = GetDlgItem(IDC_TREE))
        tree->SetWindowPos(nullptr, 0, 0, width - 52, height - 80, SWP_NOZORDER | SWP_NOMOVE);
    if (CWnd* ok = GetDlgItem(IDOK))
        ok->SetWindowPos(nullptr, width / 2 - 120, height - 40, 0, 0, SWP_NOZORDER | SWP_NOSIZE);
    if (CWnd* cancel = GetDlgItem(IDCANCEL))
        cancel->SetWindowPos(nullptr, width / 2 + 17, height - 40, 0, 0, SWP_NOZORDER | SWP_NOSIZE);
    CDialog::OnSize(sizeKind, width, height);
}

void ClytTreeDialog::OnItemChange(NMHDR* /*header*/, LRESULT* result)
{
    // A branch is complete already, and may always open. The items that go with the control, each reported, are many: an
    // answer from here is quicker than one from the platform.
    *result = 0;
}

void ClytTreeDialog::OnDoubleClick(NMHDR* /*header*/, LRESULT* result)
{
    if (!treeCtrl.ItemHasChildren(treeCtrl.GetSelectedItem()))
        OnOK();
    *result = 0;
}

std::optional<CString> lytBrowse(const CString& request)
{
    lytTreeResult = 0;
    ClytTreeDialog dialog(request);
    if (dialog.DoModal() != IDOK)
        return {};
    lytTreeResult = 1;
    return dialog.GetResult();
}
