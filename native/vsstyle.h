// Parts of visual themes for the native build.
#pragma once

enum
{
    BP_CHECKBOX = 3,
    CBS_UNCHECKEDNORMAL = 1,
    CBS_UNCHECKEDDISABLED = 4,
    CBS_CHECKEDNORMAL = 5,
    CBS_CHECKEDDISABLED = 8
};
