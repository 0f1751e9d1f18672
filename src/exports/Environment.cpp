// The exports that set and read where things are.
#include "lyt64.h"

#include "environment/ClytEnvironment.h"
#include "environment/ProcessState.h"
#include "exports/ExportFrame.h"
#include "tree/ClytNode.h"

void __stdcall lytInitialiseEnvironment(const char* docName, const char* dialogFolder, const char* initFolder)
{
    LYT_EXPORT_FRAME();
    lytEnvironment.SetDocName(docName);
    lytEnvironment.SetDialogPath(dialogFolder);
    lytEnvironment.SetInitPath(initFolder);
    lytEnvironment.ClearDialogDefine();
}

void __stdcall lytSetDialogDefine(const char* define)
{
    LYT_EXPORT_FRAME();
    lytEnvironment.AddDialogDefine(define);
}

int __stdcall lytGetInitializationPath(char* buffer, int size)
{
    LYT_EXPORT_FRAME(0);
    return CopyOut(buffer, size, lytEnvironment.GetInitPath());
}

int __stdcall lytGetCurrentDocName(char* buffer, int size)
{
    LYT_EXPORT_FRAME(0);
    return CopyOut(buffer, size, lytEnvironment.GetDocName());
}

void __stdcall FreeGlobalObject()
{
    LYT_EXPORT_FRAME();
    lytEnvironment.Reset();
    lytDeleteNodes();
    lytInputKey.Empty();
    lytWizardGroup.Empty();
}
