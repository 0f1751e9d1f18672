/* lytdata.h: what a data library implements for the controls of a description.
 *
 * A data library is a 64-bit DLL that a description names, with its functions, in one of these statements:
 *
 *     Name = FILLEDBY, library, function, x, rule             a field: one call gives its text
 *     Name = FILLEDBY, library, start, next, rule             a list or check list: start opens, next delivers the items
 *     Name = FILLEDBY, library, start, next, rule, key/value  a combo box: the same, below a fixed first item
 *     Name: ACTION = library, function, rule, input           a push button: one call, whose text is scanned
 *
 * The function names are free; they are the undecorated names of exported C functions. This header has types only, to
 * declare them with: `extern "C" __declspec(dllexport) lytDataText MyText;` in C++, without the first two words in C.
 *
 * Conventions
 *   1. Texts are bytes in the ANSI code page and end with a NUL.
 *   2. The parameter is the text that the named output rule composes, never null; without a rule it is empty. It
 *      belongs to the caller and is not valid after the call.
 *   3. A buffer holds LYT_DATA_SIZE bytes. A function receives LYT_DATA_SIZE - 1 as `size`, the number of bytes for
 *      characters. The caller always makes the last byte of the buffer a NUL.
 *   4. Functions are called on the thread that runs the dialog, one at a time. They must not raise exceptions: one ends
 *      the fill or the action with a message, and so does a fault such as an access violation.
 *   5. All controls of one type share the library that the first of them loaded, for the life of the process. So put
 *      all functions for lists and fields into one library. A library is never unloaded.
 *   6. A field with the initial value FILL is filled while its window is created, before the output rules are known: a
 *      rule for its parameter would end that fill. Later fills, by a rule or by the input, may have one.
 *   7. When a library or function is missing, or a start finds nothing, no message is shown. A list with a selection is
 *      emptied; any other list and a field stay as they were. Show your own message if the user should know.
 *   8. Windows looks for a library in the host program's folder, in its own folders, in the current folder and in PATH,
 *      and not beside lyt64.dll. A description may name it with its full path, in quotes.
 */
#ifndef LYTDATA_H
#define LYTDATA_H

#define LYT_DATA_SIZE 256

/* NOLINTBEGIN(modernize-use-using): these serve partners in C, too. */

/* Begins a list. It returns nothing: a list that cannot be opened simply has no first item. */
typedef void lytDataStart(const char* parameter);

/* Delivers one item: the text to show, and the value of the control when the item is chosen. Returns nonzero with an
 * item, and 0 after the last. A list ends after 1,000,000 items, even if the function has more. The buffers are empty at
 * the first call and are not cleared between calls: a buffer that is left alone repeats the item before it. */
typedef int lytDataNext(char* display, int size, char* value, int valueSize);

/* Delivers one text. The buffer is empty when the function is called; the returned number is ignored. When it is the
 * function of an action, its text is scanned into the dialog only after a tree browser was confirmed. */
typedef int lytDataText(const char* parameter, char* text, int size);

/* NOLINTEND(modernize-use-using) */

#endif
