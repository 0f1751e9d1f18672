#include <afxcmn.h>

#include <utility>

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

BOOL CImageList::Create(int width, int height, UINT flags, int initialSize, int growth)
{
    DeleteImageList();
    m_hImageList = ::ImageList_Create(width, height, flags, initialSize, growth);
    return m_hImageList != nullptr;
}

BOOL CImageList::DeleteImageList()
{
    const HIMAGELIST list = std::exchange(m_hImageList, nullptr);
    return list != nullptr && ::ImageList_Destroy(list);
}
