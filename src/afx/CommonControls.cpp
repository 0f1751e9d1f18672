#include <afxcmn.h>

#include "ActivationContext.h"

#include <utility>

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

// A list of pictures may also be made, and usually dies, where no dialog has the module's manifest in force. The first
// call into the library of the common controls decides which version all others reach, so each of them has it.
BOOL CImageList::Create(int width, int height, UINT flags, int initialSize, int growth)
{
    DeleteImageList();
    const ModernControls modernControls;
    m_hImageList = ::ImageList_Create(width, height, flags, initialSize, growth);
    return m_hImageList != nullptr;
}

BOOL CImageList::DeleteImageList()
{
    const HIMAGELIST list = std::exchange(m_hImageList, nullptr);
    if (list == nullptr)
        return FALSE;
    const ModernControls modernControls;
    return ::ImageList_Destroy(list);
}

int CImageList::Add(HICON icon) const
{
    const ModernControls modernControls;
    return ::ImageList_ReplaceIcon(m_hImageList, -1, icon);
}
