// Common controls of the class library.
#pragma once

#include <afxwin.h>

#include <commctrl.h>

class CTreeCtrl : public CWnd
{
public:
    // The state bits of the item, whole as the control keeps them; 0 for an item that does not exist.
    UINT GetItemState(HTREEITEM item, UINT mask) const;
    BOOL ItemHasChildren(HTREEITEM item) const;
};

// Owns the list of pictures that it creates.
class CImageList : public CObject
{
public:
    CImageList() = default;
    ~CImageList() override { DeleteImageList(); }

    HIMAGELIST m_hImageList = nullptr;
    HIMAGELIST GetSafeHandle() const { return m_hImageList; }
    BOOL Create(int width, int height, UINT flags, int initialSize, int growth);
    BOOL DeleteImageList();
    // The picture's index, or -1.
    int Add(HICON icon) const { return ::ImageList_ReplaceIcon(m_hImageList, -1, icon); }
};
