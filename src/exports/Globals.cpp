// The process-wide objects with a constructor or destructor, in one file: they are constructed in this order and destroyed
// in the reverse one.
#include "environment/ClytEnvironment.h"
#include "environment/ProcessState.h"
#include "tree/ClytNode.h"
#include "tree/ClytWizardQueue.h"

#include <afxmt.h>
#include <afxtempl.h>
#include <afxwin.h>

// It adds nothing to its base; the class library needs one in each module.
class CLytDlg32App : public CWinApp
{
};

CLytDlg32App lytApplication;
CMap<int, int, CString, CString> lytLanguageTags;
CCriticalSection lytReportLock;
ClytEnvironment lytEnvironment;
CString lytInputKey;
ClytNodeList lytSymbolNodes;
ClytNodeList lytParaNodes;
CString lytWizardGroup;
CString lytIniList;
ClytWizardQueue lytWizardQueue;

int lytCommandSeen = 0;
int lytTreeConfirmCount = 0;
int lytTreeResult = 0;
