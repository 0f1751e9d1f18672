// Common controls for the native build: the tree view and its pictures, as far as our sources, tests and tools name them.
#pragma once

#include <windows.h>

using HTREEITEM = struct _TREEITEM*;
using HIMAGELIST = struct _IMAGELIST*;

struct TVITEMA
{
    UINT mask;
    HTREEITEM hItem;
    UINT state, stateMask;
    char* pszText;
    int cchTextMax, iImage, iSelectedImage, cChildren;
    LPARAM lParam;
};
using TVITEM = TVITEMA;

struct TVINSERTSTRUCTA
{
    HTREEITEM hParent, hInsertAfter;
    TVITEMA item;
};

struct NMTREEVIEWA
{
    NMHDR hdr;
    UINT action;
    TVITEMA itemOld, itemNew;
    POINT ptDrag;
};

struct INITCOMMONCONTROLSEX
{
    DWORD dwSize, dwICC;
};

#define TVI_ROOT (reinterpret_cast<HTREEITEM>(static_cast<LONG_PTR>(-0x10000)))
#define TVI_LAST (reinterpret_cast<HTREEITEM>(static_cast<LONG_PTR>(-0x0FFFE)))

enum : UINT
{
    ICC_TREEVIEW_CLASSES = 2,
    ICC_STANDARD_CLASSES = 0x4000,
    TVS_HASBUTTONS = 1,
    TVS_HASLINES = 2,
    TVS_LINESATROOT = 4,
    TVS_SHOWSELALWAYS = 0x20,
    TVIF_TEXT = 1,
    TVIF_IMAGE = 2,
    TVIF_STATE = 8,
    TVIF_SELECTEDIMAGE = 0x20,
    TVIF_CHILDREN = 0x40,
    TVIS_SELECTED = 2,
    TVIS_BOLD = 0x10,
    TVIS_EXPANDED = 0x20,
    TVIS_EXPANDEDONCE = 0x40,
    TVE_COLLAPSE = 1,
    TVE_EXPAND = 2,
    TVGN_ROOT = 0,
    TVGN_NEXT = 1,
    TVGN_PREVIOUS = 2,
    TVGN_PARENT = 3,
    TVGN_CHILD = 4,
    TVGN_FIRSTVISIBLE = 5,
    TVGN_NEXTVISIBLE = 6,
    TVGN_CARET = 9,
    TVM_INSERTITEMA = 0x1100,
    TVM_DELETEITEM = 0x1101,
    TVM_EXPAND = 0x1102,
    TVM_GETITEMRECT = 0x1104,
    TVM_GETIMAGELIST = 0x1108,
    TVM_SETIMAGELIST = 0x1109,
    TVM_GETNEXTITEM = 0x110A,
    TVM_SELECTITEM = 0x110B,
    TVM_GETITEMA = 0x110C,
    TVM_SETITEMA = 0x110D,
    TVM_ENSUREVISIBLE = 0x1114,
    TVC_UNKNOWN = 0,
    TVC_BYMOUSE = 1,
    TVC_BYKEYBOARD = 2,
    NM_CLICK = static_cast<UINT>(-2),
    NM_DBLCLK = static_cast<UINT>(-3),
    NM_SETFOCUS = static_cast<UINT>(-7),
    NM_KILLFOCUS = static_cast<UINT>(-8),
    TVN_SELCHANGINGA = static_cast<UINT>(-401),
    TVN_SELCHANGEDA = static_cast<UINT>(-402),
    TVN_ITEMEXPANDINGA = static_cast<UINT>(-405),
    TVN_ITEMEXPANDEDA = static_cast<UINT>(-406),
    TVN_DELETEITEMA = static_cast<UINT>(-409),
    TVN_KEYDOWN = static_cast<UINT>(-412),
};

inline constexpr int TVSIL_NORMAL = 0;

inline BOOL InitCommonControlsEx(const INITCOMMONCONTROLSEX* /*classes*/)
{
    return TRUE;
}
inline void InitCommonControls() {}
HIMAGELIST ImageList_Create(int width, int height, UINT flags, int initialSize, int growth);
BOOL ImageList_Destroy(HIMAGELIST list);
int ImageList_ReplaceIcon(HIMAGELIST list, int index, HICON icon);
int ImageList_GetImageCount(HIMAGELIST list);
BOOL ImageList_GetIconSize(HIMAGELIST list, int* width, int* height);
