/* lyt64.h: the functions of lyt64.dll, for C and C++ callers.
 *
 * Written by scripts/make-exports from src/exports/exports.toml.
 *
 * Conventions
 *   - Texts are NUL-terminated bytes in the ANSI code page. A null pointer counts as an empty text.
 *   - Buffers belong to the caller; a size is the number of bytes in the buffer, including the NUL. With a null buffer
 *     or a size below 1, a function returns 0 and does nothing.
 *   - A text that does not fit its buffer leaves the buffer empty. Where a function says so, it also writes a NUL at
 *     buffer[size], one byte beyond the stated size: leave room for it.
 *   - Results are 32-bit integers.
 *   - The functions show their messages in a message box titled "lyt64". They keep the host as it was: current folder,
 *     cursor, focus and the enabled state of its windows.
 *   - Call the functions from one thread, one at a time. Dialogs are modal and belong to that thread's active window.
 *     While a window of the library is open, a call on another thread is refused: it returns 0, if anything, and does
 *     nothing.
 *   - Settings last from loading to unloading. Call lytInitialiseEnvironment first.
 *   - Unloading frees everything: a host may load, call and unload any number of times, and a library that is loaded
 *     again begins anew. Unload on the thread that calls. Unloading while a call is under way ends the process. Partner
 *     libraries and system libraries that a call has loaded stay in the process.
 *   - The library is 64-bit; its host must be, too.
 *   - Partner libraries are the catalogue's lytsrc.dll, the data libraries that descriptions name, and LytRes64.dll.
 *     Windows looks for them in the host program's folder, in its own folders, in the current folder and in PATH, and
 *     not beside this library. One that is not found counts as empty, without a message.
 *
 * Traps
 *   - Use the text of a property dialog only after a 1. After a 2 nothing changed, and the buffer holds the text that
 *     the dialog composed. That may differ from the key: for a group whose key was split, the part before the bracket
 *     is missing.
 *   - 1 with an empty text means that the buffer was too small: a text as long as the stated size does not fit. Or the
 *     dialog's result was empty, which leaves the buffer as it was. Only a group's first text that is longer than its
 *     buffer is refused with a message and 0.
 *   - lytWizard can return 0 together with the last text of a group, and the texts before it keep the "|" at their end:
 *     see its description.
 */
#ifndef LYT64_H
#define LYT64_H

#ifdef __cplusplus
extern "C"
{
#endif

    /* ---- Environment --------------------------------------------------------------------------------------------- */

    /* Sets where things are: the document, the folder of the dialog descriptions (its subfolder `lang` has the language
     * files) and the folder of lyt.ini. Nothing is checked or opened. Also empties the list of defines. */
    void __stdcall lytInitialiseEnvironment(const char* docName, const char* dialogFolder, const char* initFolder);

    /* Adds a define, or several joined by commas, to the list of defines, which switch lines of descriptions on and
     * off. */
    void __stdcall lytSetDialogDefine(const char* define);

    /* Copies the folder of lyt.ini (the document's name) to the buffer. Returns 1 when the copy is not empty, else 0.
     */
    int __stdcall lytGetInitializationPath(char* buffer, int size);
    int __stdcall lytGetCurrentDocName(char* buffer, int size);

    /* Ends a run of calls: forgets folders, document, catalogue and report. It keeps the list of defines, a list that
     * is being read and the texts that lytWizard still has to deliver. To use the library again, call
     * lytInitialiseEnvironment. */
    void __stdcall FreeGlobalObject(void);

    /* ---- Property dialogs ---------------------------------------------------------------------------------------- */

    /* These functions show the dialog for the kind of a placeholder, with the key scanned into its controls, until the
     * user closes it.
     *
     * They return 1 when the placeholder changed, and 2 when it did not. They return 0 when the user cancelled, or when
     * the dialog could not be shown and a message said why. After a 0 the buffers are as they were. */

    /* The descriptions are lytInSym.dlg and lytInPhr.dlg. The placeholder counts as changed when the buffer then holds
     * anything but the key. An empty result leaves the buffer as it was. A result that is longer than the size leaves
     * it empty and writes a NUL at result[size], one byte beyond it. */
    int __stdcall lytSymbolPropertyDialog(const char* key, char* result, int size);
    int __stdcall lytPhrasePropertyDialog(const char* key, char* result, int size);

    /* The description is lytCdGrp.dlg for kind 0, and lytRpGrp.dlg for any other kind.
     *
     * The dialog's result is cut at its first ")/1": what comes before the "/" goes to `first`, what follows it to
     * `second`; without ")/1" both get an empty text. An empty result counts as the text that `first` already holds,
     * and leaves `second` as it was.
     *
     * A key that contains "BNG", and with kind 1 any key that is not empty, is split: the dialog sees only what begins
     * with the first "(". After a change, the part before the bracket is put in front of `first` again. Bytes 5, 6 and
     * 7 of the key, counted from 0, replace the same bytes of `second`, if key and second buffer have 8 bytes or more.
     * Any other key counts as changed whenever the user confirms.
     *
     * A first part that is longer than its buffer is refused with a message: the buffer is then empty, and the result
     * is 0. A second part that does not fit leaves its buffer empty; one longer than secondSize also writes a NUL at
     * second[secondSize]. A second buffer that is null, or whose size is below 1, is not written to. */
    int __stdcall lytGroupPropertyDialog(int kind, const char* key, char* first, int firstSize, char* second,
                                         int secondSize);

    /* ---- Catalogue ----------------------------------------------------------------------------------------------- */

    /* Shows the catalogue and copies what the user picks to the target. The first character of the request is the kind:
     *   S  a symbol; its key is copied
     *   G  a group; its key is copied
     *   P  a group of the para tree; its key is copied
     *   W  any entry: "G/key/label", "S/key/label" or "H//label" (a heading) is copied
     * After it comes the entry to select: its key, or for kinds other than groups the beginning of its key. Returns 1
     * when the user confirmed, else 0 with the target as it was. A result longer than the size leaves the target empty
     * and writes a NUL at target[size] as well. Both names are one function; only the letter chooses the para tree. */
    int __stdcall lytOpenTreeView(const char* request, char* target, int size);
    int __stdcall lytOpenTreeViewPara(const char* request, char* target, int size);

    /* Copies the key of the first symbol whose key begins with the text, and returns 1. Without such a symbol, or when
     * the text is empty, returns 0 with the target as it was. Shows nothing. Reads the catalogue for this call, unless
     * a dialog has read it. */
    int __stdcall lytGetSymbolfromTree(const char* text, char* target, int size);

    /* Read the symbols below a group of the symbol tree, once a dialog has read the tree: one start, then reads until
     * 0. lytTreeStartChildNode returns 1 when an entry with the key was found and another entry follows it. If that is
     * not a symbol, the reads continue where an earlier walk ended. lytTreeReadChildNode copies the label as shown, and
     * a text made of the key, a backslash and the label as the data source gave it. It returns 1, or 0 at the end. The
     * end is after the last entry, or at an entry of another level than the very first one that was read in this
     * process. */
    int __stdcall lytTreeStartChildNode(const char* key);
    int __stdcall lytTreeReadChildNode(char* text, int textSize, char* path, int pathSize);

    /* ---- Texts, lists and the log -------------------------------------------------------------------------------- */

    /* Copies the text of a key in the language file to the buffer, at most 74 bytes of it, with the argument inserted
     * after the first apostrophe. Returns 1. Without such a text the buffer holds "no value present", and the result is
     * 0. */
    int __stdcall lytGetTextForKey(const char* section, const char* key, const char* argument, char* buffer, int size);

    /* Copies a value of lyt.ini, named by a text of the form "section/key", to the buffer, at most 1023 bytes of it,
     * and returns 1. Without such a key the buffer gets "Entry not found", and the result is still 1. A path without
     * "/" shows message 250 and returns 0, with the buffer as it was. */
    int __stdcall lytGetTextFromIniFile(const char* path, char* buffer, int size);

    /* Starts a list: the value of lyt.ini named by "section/key", cut at its commas. Returns 1 when there is one. A
     * missing key gives a list with the single item "Entry not found"; a path without "/" gives no list. */
    int __stdcall lytListFromIniStart(const char* path);

    /* Copies the next item to both buffers and returns 1, or returns 0 at the end of the list and writes nothing.
     * Nothing is trimmed. Also writes a NUL at value[valueSize] and display[displaySize], one byte beyond either stated
     * size. */
    int __stdcall lytListFromIniNext(char* value, int valueSize, char* display, int displaySize);

    /* Writes a text to the log, as a block between two banners, when the level is not above the key "level" of the
     * section "LogLevel" in lyt.ini. The name of the log is the document's path up to its first dot, with ".log" added.
     * Level 0 in lyt.ini means no log.
     *
     * A log that cannot be opened (207), written (208) or closed (209) throws a C++ exception out of the function, a
     * pointer to the library's ClytException. A C++ caller of the same tool chain can catch it, at least with catch
     * (...). A caller in any other language cannot, and its process may end. So let lyt.ini ask for a log only where
     * the document's folder can be written. The log is closed by then, and the next call tries again. */
    void __stdcall lytWriteToLogFile(const char* text, int level);

    /* ---- Wizard -------------------------------------------------------------------------------------------------- */

    /* Guides the user to a new placeholder: the user picks an entry of the catalogue and fills in its dialog
     * (lytWzGrp.dlg, lytWzPhr.dlg or lytWzSym.dlg). Call again while the result is 1:
     *   0  after a 1: the last text of a group, in the buffer, or the end of a list that ended in "|", with the buffer
     *      as it was. At any other time: nothing chosen, or cancelled. Empty the buffer before each call to tell them
     *      apart
     *   1  the buffer holds a text of a group, and the next call brings another
     *   2  the buffer holds the text of a symbol
     *   3  the buffer holds the text of a phrase
     * The texts of a group are in its dialog's result after "/LIST" and "{", separated by "|"; the first text is what
     * comes before them, including the brace. Each of the others, except the last, keeps its "|" at the end: "a|b|c"
     * comes as "a|", "b|" and "c". A list that ends in "|" loses its last text: that call returns 0 and leaves the
     * buffer as it was. A caller that stops early gets the rest with its next call, before the catalogue is shown
     * again. */
    int __stdcall lytWizard(char* buffer, int size);

    /* ---- System report ------------------------------------------------------------------------------------------- */

    /* Makes the report on how this workstation is set up, with a list of the files in the directory, in place of an
     * earlier report, and returns 1. The report's lines say what cannot be read; nothing on the machine changes. The
     * report may change the folder of lyt.ini, for all later calls, to the one that the registry or a template names.
     * This call may take some time. */
    int __stdcall lytSystemInfoInit(const char* directory);

    /* Copies the line with an index, counted from 0, to the target and returns 1. A longer line is cut to size - 1
     * characters. The last byte, target[size - 1], becomes a NUL for a short line, too. An index without a line frees
     * the report, returns 0, and leaves the target as it was except for its last byte. So read upward from 0 until the
     * result is 0. A line may be empty. Once the report is freed, every index gives 0 until the next lytSystemInfoInit.
     */
    int __stdcall lytSystemInfoRead(int index, char* target, int size);

#ifdef __cplusplus
}
#endif

#endif
