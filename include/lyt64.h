/* lyt64.h: the functions that lyt64.dll offers to a template's macros, for C and C++ callers.
 *
 * Written by scripts/make-exports from src/exports/exports.toml.
 *
 * Conventions
 *   - Texts are NUL-terminated bytes in the ANSI code page. A null pointer counts as an empty text.
 *   - Buffers belong to the caller; a size is the number of bytes in the buffer, the NUL included. A null buffer or a
 *     size below 1 is answered with 0 before anything else happens.
 *   - A text that does not fit its buffer leaves the buffer empty. Where a function says so, it also writes a NUL at
 *     buffer[size], one byte beyond the stated size: leave room for it.
 *   - Results are 32-bit integers.
 *   - The functions show their messages in a message box titled "lyt64". They keep the host as it was: current folder,
 *     cursor, focus and the enabled state of its windows.
 *   - All calls come from one thread, one at a time. Dialogs are modal and belong to that thread's active window. While
 *     a window of the library is up, a call on another thread is refused: it gives 0, if anything, and does nothing.
 *   - State lives in the process from load to unload. Call lytInitialiseEnvironment first.
 *   - Unloading frees everything: a host may load, call and unload as often as it likes, and a library that is loaded
 *     again starts afresh. Unload on the thread that calls, with no call under way. Unloading it while a call is under
 *     way ends the process. Partner libraries and the system's own libraries that a call has loaded stay in the
 *     process.
 *   - The library is 64-bit, and so must its host be.
 *   - Partner libraries (the catalogue's lytsrc.dll, the data libraries that descriptions name, LytRes64.dll) are not
 *     looked for beside this library. Windows looks for them in the host program's folder, in its own folders, in the
 *     current folder and in PATH. One that is not found is treated as empty, without a message.
 *
 * Traps
 *   - Use the text of a property dialog only after a 1. After a 2 nothing changed, and the buffer holds what the dialog
 *     composed. That need not be the key: of a group whose key was split, it lacks the part before the bracket.
 *   - 1 with an empty text means that the buffer was too small; a text as long as the stated size does not fit. Only a
 *     group's first text that is longer than its buffer is refused with a message and 0.
 *   - lytWizard can return 0 along with the last text of a group, and the texts before it keep the "|" at their end:
 *     see its description.
 */
#ifndef LYT64_H
#define LYT64_H

#ifdef __cplusplus
extern "C"
{
#endif

    /* ---- Environment --------------------------------------------------------------------------------------------- */

    /* Sets where things are: the document, the folder of the dialog descriptions (its subfolder `lang` holds the
     * language files) and the folder of lyt.ini. Nothing is checked or opened. Empties the list of defines. */
    void __stdcall lytInitialiseEnvironment(const char* docName, const char* dialogFolder, const char* initFolder);

    /* Adds a define, or several joined by commas, to those that switch stretches of a description on and off. */
    void __stdcall lytSetDialogDefine(const char* define);

    /* Copies the folder of lyt.ini (the document's name) to the buffer. Returns 1 when the copy is not empty, else 0.
     */
    int __stdcall lytGetInitializationPath(char* buffer, int size);
    int __stdcall lytGetCurrentDocName(char* buffer, int size);

    /* Ends a run of calls: forgets folders, document, catalogue and report. The list of defines, a list that is being
     * read and the texts that lytWizard still has to deliver stay. The library stays usable; start again with
     * lytInitialiseEnvironment. */
    void __stdcall FreeGlobalObject(void);

    /* ---- Property dialogs ---------------------------------------------------------------------------------------- */

    /* Show the dialog of a placeholder's kind, with the key scanned into its controls, until the user ends it.
     *
     * Return 1 when the placeholder changed, 2 when it did not, and 0 when there is nothing to use. Then the user
     * cancelled, or the dialog could not be shown and a message said why. In both cases the buffers are as they were.
     */

    /* The descriptions lytInSym.dlg and lytInPhr.dlg. The placeholder counts as changed when the buffer then holds
     * anything but the key. A result that is empty leaves the buffer as it was. One that is longer than the size leaves
     * it empty and writes a NUL at result[size], one byte beyond it. */
    int __stdcall lytSymbolPropertyDialog(const char* key, char* result, int size);
    int __stdcall lytPhrasePropertyDialog(const char* key, char* result, int size);

    /* The description lytCdGrp.dlg for kind 0, lytRpGrp.dlg for any other.
     *
     * The dialog's result is cut at its first ")/1": what comes before the "/" goes to `first`, what follows it to
     * `second`; without ")/1" both get an empty text. An empty result means the text that `first` holds already, and
     * leaves `second` alone.
     *
     * A key that holds "BNG", and with kind 1 any key but an empty one, is split: the dialog sees only what begins with
     * the first "(". After a change the part before it is put in front again. Bytes 5, 6 and 7 of the key, counted from
     * 0, replace the same bytes of `second`, if key and second buffer have 8 bytes or more. Any other key counts as
     * changed whenever the user confirms.
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
     * What follows it is the entry to select: its key, or for kinds other than groups the beginning of its key. Returns
     * 1 when the user confirmed, else 0 with the target as it was. A result longer than the size leaves the target
     * empty and writes a NUL at target[size] as well. Both names are one function; the letter alone chooses the para
     * tree. */
    int __stdcall lytOpenTreeView(const char* request, char* target, int size);
    int __stdcall lytOpenTreeViewPara(const char* request, char* target, int size);

    /* Copies the key of the first symbol whose key begins with the text. Returns 1, or 0 without such a symbol or when
     * the text is empty, with the target as it was. Shows nothing; reads the catalogue for this call unless a dialog
     * has read it. */
    int __stdcall lytGetSymbolfromTree(const char* text, char* target, int size);

    /* Walk over the symbols below a group of the symbol tree, once a dialog has read it: one start, then reads until 0.
     * lytTreeStartChildNode returns 1 when an entry with the key was found and another entry follows it. Unless that is
     * a symbol, reads continue where an earlier walk ended. lytTreeReadChildNode copies the label as shown, and the
     * key, a backslash and the label as the data source gave it. It returns 1, or 0 at the end. The end is after the
     * last entry, or at an entry of another level than the very first one that was read in this process. */
    int __stdcall lytTreeStartChildNode(const char* key);
    int __stdcall lytTreeReadChildNode(char* text, int textSize, char* path, int pathSize);

    /* ---- Texts, lists and the log -------------------------------------------------------------------------------- */

    /* Copies the language text of a key to the buffer, at most 74 bytes of it, with the argument put in after the first
     * apostrophe. Returns 1 when the text is there; without it the buffer holds "no value present", and the result is
     * 0. */
    int __stdcall lytGetTextForKey(const char* section, const char* key, const char* argument, char* buffer, int size);

    /* Copies the value of lyt.ini that a text of the form "section/key" names to the buffer, at most 1023 bytes of it,
     * and returns 1. A key that is not there gives "Entry not found", and still 1. A path without "/" shows message 250
     * and gives 0, with the buffer as it was. */
    int __stdcall lytGetTextFromIniFile(const char* path, char* buffer, int size);

    /* Starts a list: the value of lyt.ini named by "section/key", cut at its commas. Returns 1 when there is one. A key
     * that is not there is a list of the one item "Entry not found"; a path without "/" gives no list. */
    int __stdcall lytListFromIniStart(const char* path);

    /* Copies the next item to both buffers and returns 1, or returns 0 at the end of the list and writes nothing.
     * Nothing is trimmed. Also writes a NUL at value[valueSize] and display[displaySize], one byte beyond either stated
     * size. */
    int __stdcall lytListFromIniNext(char* value, int valueSize, char* display, int displaySize);

    /* Writes a text to the log, as a block between two banners, when the level is not above the key "level" of the
     * section "LogLevel" in lyt.ini. The log has the document's name up to the first dot of its path, and then ".log".
     * Level 0 in lyt.ini means no log.
     *
     * A log that cannot be opened (207), written (208) or closed (209) raises a C++ exception, thrown as a pointer to
     * the library's ClytException: a failure that leaves the function. A C++ caller of the same tool chain can catch
     * it, with catch (...) at least. A caller in any other language cannot, and its process may end. This is what a
     * level above 0 costs: let lyt.ini ask for a log only where the document's folder can be written. The log is closed
     * by then, and the next call starts again. */
    void __stdcall lytWriteToLogFile(const char* text, int level);

    /* ---- Wizard -------------------------------------------------------------------------------------------------- */

    /* Leads through a new placeholder: the user picks an entry of the catalogue and fills in the entry's dialog
     * (lytWzGrp.dlg, lytWzPhr.dlg or lytWzSym.dlg). Call again while the result is 1:
     *   0  after a 1: the last text of a group, in the buffer, or the end of a list that ended in "|", with the buffer
     *      as it was. At any other time: nothing chosen, or cancelled. Empty the buffer before each call to tell them
     *      apart
     *   1  text of a group in the buffer, and more to come with the next call
     *   2  text of a symbol in the buffer
     *   3  text of a phrase in the buffer
     * A group's texts are what its dialog's result holds after "/LIST" and "{", separated by "|"; the first text is
     * what precedes them, brace included. Each but the last keeps its "|" at the end: "a|b|c" comes as "a|", "b|" and
     * "c". A list that ends in "|" loses its last text: that call returns 0 and leaves the buffer as it was. A caller
     * that stops early gets the rest with its next call, before the catalogue is shown again. */
    int __stdcall lytWizard(char* buffer, int size);

    /* ---- System report ------------------------------------------------------------------------------------------- */

    /* Gathers the report on how this workstation is set up, with a listing of the directory given, in place of an
     * earlier one, and returns 1. What cannot be read is noted in the report's lines; nothing on the machine changes.
     * The report may move the folder of lyt.ini to where the registry or a template says it is, for all later calls. It
     * may take some time, all of it in this call. */
    int __stdcall lytSystemInfoInit(const char* directory);

    /* Copies the line of an index, counted from 0, to the target and returns 1. A longer line is cut to size - 1
     * characters. The last byte, target[size - 1], becomes a NUL for a short line, too. An index without a line frees
     * the report, leaves the target as it was and returns 0. So read upward from 0 until 0 comes back, which takes time
     * in proportion to their number. An empty line is a line. Once the report is freed, every index gives 0 until the
     * next lytSystemInfoInit. */
    int __stdcall lytSystemInfoRead(int index, char* target, int size);

#ifdef __cplusplus
}
#endif

#endif
