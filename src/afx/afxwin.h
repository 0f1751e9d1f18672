// The window half of the class library.
#pragma once

#include <afx.h>

#include <windows.h>

class CWinApp : public CObject
{
};
