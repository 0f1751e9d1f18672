/* lyt64.h: the functions that lyt64.dll offers to a template's macros, for C and C++ callers.
 *
 * Conventions
 *   - Texts are NUL-terminated bytes in the ANSI code page. A null pointer counts as an empty text.
 *   - Buffers belong to the caller; a size is the number of bytes in the buffer, the NUL included. A null buffer or a
 *     size below 1 is answered with 0 before anything else happens.
 *   - A text that does not fit its buffer leaves the buffer empty. Where a function says so, it also writes a NUL at
 *     buffer[size], one byte beyond the stated size: leave room for it.
 *   - Results are 32-bit integers.
 *   - The functions show their own messages, in a message box titled "lyt64", and keep the host as it was: current
 *     folder, cursor, focus and the enabled state of its windows.
 *   - All calls come from one thread, one at a time. Dialogs are modal and belong to that thread's active window.
 *   - State lives in the process from load to unload. Call lytInitialiseEnvironment first.
 */
#ifndef LYT64_H
#define LYT64_H

#ifdef __cplusplus
extern "C"
{
#endif

    /* ---- Environment ------------------------------------------------------------------------------------------------ */

    /* Says where things are: the document, the folder of the dialog descriptions (its subfolder `lang` holds the language
 * files) and the folder of lyt.ini. Nothing is checked or opened. Empties the list of defines. */
    void __stdcall lytInitialiseEnvironment(const char* docName, const char* dialogFolder, const char* initFolder);

    /* Adds a define, or several joined by commas, to those that switch stretches of a description on and off. */
    void __stdcall lytSetDialogDefine(const char* define);

    /* Copies the folder of lyt.ini (the document's name) to the buffer. Returns 1 when the copy is not empty, else 0. */
    int __stdcall lytGetInitializationPath(char* buffer, int size);
    int __stdcall lytGetCurrentDocName(char* buffer, int size);

    /* Ends a run of calls: forgets folders, document, catalogue and report. The list of defines and a list that is being
 * read stay. The library stays usable; start again with lytInitialiseEnvironment. */
    void __stdcall FreeGlobalObject(void);

#ifdef __cplusplus
}
#endif

#endif
