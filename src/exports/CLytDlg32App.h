// The application object. It adds nothing to its base; the class library wants one in each module.
#pragma once

#include <afxwin.h>

class CLytDlg32App : public CWinApp
{
};
