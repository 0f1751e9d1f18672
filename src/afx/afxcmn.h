// Common controls of the class library.
#pragma once

#include <afxwin.h>

#include <commctrl.h>

class CImageList;

class CTreeCtrl : public CWnd
{
public:
    // The list still belongs to its object, which outlives the control.
    void SetImageList(const CImageList* images, int kind) const;
    // The new item; null when the control cannot take it.
    HTREEITEM InsertItem(const char* text, int image, int selectedImage, HTREEITEM parent = TVI_ROOT,
                         HTREEITEM insertAfter = TVI_LAST) const;
    BOOL DeleteAllItems() const;
    BOOL Expand(HTREEITEM item, UINT code) const;
    // Null, like any item that is not there, selects nothing.
    BOOL SelectItem(HTREEITEM item) const;
    HTREEITEM GetNextItem(HTREEITEM item, UINT code) const;
    HTREEITEM GetRootItem() const { return GetNextItem(nullptr, TVGN_ROOT); }
    HTREEITEM GetSelectedItem() const { return GetNextItem(nullptr, TVGN_CARET); }
    HTREEITEM GetPrevSiblingItem(HTREEITEM item) const { return GetNextItem(item, TVGN_PREVIOUS); }
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
    int Add(HICON icon) const;
};
