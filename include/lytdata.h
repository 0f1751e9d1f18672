/* lytdata.h: what a data library offers to the controls of a description file.
 *
 * A data library is a 64-bit DLL that a description file names, with its functions, in one of these statements:
 *
 *     Name = FILLEDBY, library, function, , rule              an edit: one call gives its text
 *     Name = FILLEDBY, library, start, next, rule             a list or check list: start opens, next delivers the items
 *     Name = FILLEDBY, library, start, next, rule, key/value  a combo box: the same, below a fixed first item
 *     Name = ACTION, library, function, rule, input           a push button: one call, its answer is scanned
 *
 * The function names are free; they are the undecorated names of exported C functions. This header has types only, to
 * declare them with: `extern "C" __declspec(dllexport) lytDataText MyText;` in C++, without the first two words in C.
 *
 * Conventions
 *   1. Texts are bytes in the ANSI code page and end with a NUL.
 *   2. The parameter is the text that the named output rule composes, never null; without a rule it is empty. It
 *      belongs to the caller and is gone after the call.
 *   3. A buffer holds LYT_DATA_SIZE bytes, of which LYT_DATA_SIZE - 1 are for characters; that number, and nothing else,
 *      is what a function receives as `size`. The caller always makes the last byte of the buffer a NUL.
 *   4. Functions are called on the thread that runs the dialog, one at a time. They must not raise:
 *      an exception ends the fill or the action with a message, and so does a fault such as an access violation.
 *   5. All controls of one kind share the library that the first of them loaded, for the life of the process: let one
 *      library carry all functions that the lists of a process need. A library is never unloaded.
 *   6. An edit with the preset value FILL is filled while its window is created, before the output rules are known: a
 *      rule for its parameter would end that fill. Later fills, by a rule or by the input, may have one.
 *   7. When a library or function is missing, or a start finds nothing, the control stays empty (an edit, and a list
 *      without a selection: as it was), and no message is shown. Show your own if the user should know.
 *   8. A library is looked for where Windows looks for any library: in the host program's folder, in the folders of
 *      Windows, in the current folder and in PATH, and not beside lyt64.dll. A description may name it with its whole
 *      path, in quotes.
 */
#ifndef LYTDATA_H
#define LYTDATA_H

#define LYT_DATA_SIZE 256

/* NOLINTBEGIN(modernize-use-using): these serve partners in C, too. */

/* Opens a listing. It returns nothing: a listing that cannot be opened simply has no first item. */
typedef void lytDataStart(const char* parameter);

/* Delivers one item: the text to show and the value that the control gives back. Nonzero with an item, 0 after the
 * last; a listing ends after 1,000,000 items, even if the function has more. The buffers are empty at the first call and are
 * not cleared between calls: a buffer that is left alone repeats the item before it. */
typedef int lytDataNext(char* display, int size, char* value, int valueSize);

/* Answers one text. The buffer is empty when the function is called; what is returned is not looked at. As the function
 * of an action, its text is scanned into the dialog only after a tree browser was confirmed. */
typedef int lytDataText(const char* parameter, char* text, int size);

/* NOLINTEND(modernize-use-using) */

#endif
