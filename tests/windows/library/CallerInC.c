/* A caller in plain C: the header compiles, and the import library knows every name that it declares. */
#include "lyt64.h"

#include "CallerInC.h"

static void (*const functions[])(void) = {
    (void (*)(void))FreeGlobalObject,         (void (*)(void))lytGetCurrentDocName,
    (void (*)(void))lytGetInitializationPath, (void (*)(void))lytGetSymbolfromTree,
    (void (*)(void))lytGetTextForKey,         (void (*)(void))lytGetTextFromIniFile,
    (void (*)(void))lytGroupPropertyDialog,   (void (*)(void))lytInitialiseEnvironment,
    (void (*)(void))lytListFromIniNext,       (void (*)(void))lytListFromIniStart,
    (void (*)(void))lytOpenTreeView,          (void (*)(void))lytOpenTreeViewPara,
    (void (*)(void))lytPhrasePropertyDialog,  (void (*)(void))lytSetDialogDefine,
    (void (*)(void))lytSymbolPropertyDialog,  (void (*)(void))lytSystemInfoInit,
    (void (*)(void))lytSystemInfoRead,        (void (*)(void))lytTreeReadChildNode,
    (void (*)(void))lytTreeStartChildNode,    (void (*)(void))lytWizard,
    (void (*)(void))lytWriteToLogFile,
};

int CountFunctionsSeenFromC(void)
{
    int count = 0;
    for (unsigned i = 0; i < sizeof functions / sizeof functions[0]; ++i)
        count += functions[i] != 0;
    return count;
}

int ReadDocNameFromC(const char* docName, char* buffer, int size)
{
    lytInitialiseEnvironment(docName, "", "");
    return lytGetCurrentDocName(buffer, size);
}
