#include <afxcmn.h>

#include "system/ModernControls.h"

#include <utility>

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
