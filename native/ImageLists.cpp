// Lists of pictures: how large they are and how many; the pictures themselves do not matter.
#include "FaultPlan.h"

#include <commctrl.h>

#include <map>

namespace
{

struct ImageList
{
    SIZE size;
    int count;
};

std::map<HIMAGELIST, ImageList>& ImageLists()
{
    static std::map<HIMAGELIST, ImageList> lists;
    return lists;
}

} // namespace

HIMAGELIST ImageList_Create(int width, int height, UINT /*flags*/, int /*initialSize*/, int /*growth*/)
{
    const platform::PlatformAtWork working;
    static uintptr_t lastHandle = 0x1000;
    const auto list = reinterpret_cast<HIMAGELIST>(++lastHandle);
    ImageLists()[list] = {{width, height}, 0};
    return list;
}

BOOL ImageList_Destroy(HIMAGELIST list)
{
    return ImageLists().erase(list) != 0;
}

int ImageList_ReplaceIcon(HIMAGELIST list, int /*index*/, HICON /*icon*/)
{
    const auto found = ImageLists().find(list);
    return found != ImageLists().end() ? found->second.count++ : -1;
}

int ImageList_GetImageCount(HIMAGELIST list)
{
    const auto found = ImageLists().find(list);
    return found != ImageLists().end() ? found->second.count : 0;
}

BOOL ImageList_GetIconSize(HIMAGELIST list, int* width, int* height)
{
    const auto found = ImageLists().find(list);
    if (found == ImageLists().end())
        return FALSE;
    *width = found->second.size.cx;
    *height = found->second.size.cy;
    return TRUE;
}
