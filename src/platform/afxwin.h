// The application object, as far as programs without a window have one.
#pragma once

#include <afx.h>

class CWinApp : public CObject
{
};
