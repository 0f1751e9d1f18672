#include <afxcmn.h>

void CTreeCtrl::SetImageList(const CImageList* images, int kind) const
{
    SendMessage(TVM_SETIMAGELIST, static_cast<WPARAM>(kind), reinterpret_cast<LPARAM>(images->GetSafeHandle()));
}

HTREEITEM CTreeCtrl::InsertItem(const char* text, int image, int selectedImage, HTREEITEM parent,
                                HTREEITEM insertAfter) const
{
    TVINSERTSTRUCTA insert{};
    insert.hParent = parent;
    insert.hInsertAfter = insertAfter;
    insert.item.mask = TVIF_TEXT | TVIF_IMAGE | TVIF_SELECTEDIMAGE;
    insert.item.pszText = const_cast<char*>(text); // the control copies it
    insert.item.iImage = image;
    insert.item.iSelectedImage = selectedImage;
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_INSERTITEMA, 0, reinterpret_cast<LPARAM>(&insert)));
}

BOOL CTreeCtrl::DeleteAllItems() const
{
    return static_cast<BOOL>(SendMessage(TVM_DELETEITEM, 0, reinterpret_cast<LPARAM>(TVI_ROOT)));
}

BOOL CTreeCtrl::Expand(HTREEITEM item, UINT code) const
{
    return static_cast<BOOL>(SendMessage(TVM_EXPAND, code, reinterpret_cast<LPARAM>(item)));
}

BOOL CTreeCtrl::SelectItem(HTREEITEM item) const
{
    return static_cast<BOOL>(SendMessage(TVM_SELECTITEM, TVGN_CARET, reinterpret_cast<LPARAM>(item)));
}

HTREEITEM CTreeCtrl::GetNextItem(HTREEITEM item, UINT code) const
{
    return reinterpret_cast<HTREEITEM>(SendMessage(TVM_GETNEXTITEM, code, reinterpret_cast<LPARAM>(item)));
}

UINT CTreeCtrl::GetItemState(HTREEITEM item, UINT mask) const
{
    TVITEMA request{};
    request.hItem = item;
    request.mask = TVIF_STATE;
    request.stateMask = mask;
    SendMessage(TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&request));
    return request.state;
}

BOOL CTreeCtrl::ItemHasChildren(HTREEITEM item) const
{
    TVITEMA request{};
    request.hItem = item;
    request.mask = TVIF_CHILDREN;
    SendMessage(TVM_GETITEMA, 0, reinterpret_cast<LPARAM>(&request));
    return request.cChildren != 0;
}
