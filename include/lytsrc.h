/* lytsrc.h: what a catalogue's data source implements.
 *
 * The tree browser of lyt64 shows a catalogue: headings, groups under them, symbols under the groups. You provide it
 * in a library named lytsrc.dll, in a folder where Windows finds it by its bare name: beside the host program or in a
 * folder of PATH, for instance. Windows does not look beside lyt64.dll.
 *
 * The library exports the four functions below, as C functions with undecorated names. There are two catalogues, the
 * symbol tree and the para tree, and a pair of functions for each. A catalogue without its pair is empty.
 *
 * How a catalogue is read:
 *
 *   1. lytTreeStart("") prepares a new run of records. It returns 0 when there is nothing to read, else nonzero.
 *   2. lytTreeNext(&record) is called repeatedly. It fills the record and returns nonzero; after the last record it
 *      returns 0, and the record is ignored.
 *
 * The source is not notified when reading ends. A start call may come at any time, even in the middle of a run, and
 * begins again. All calls come from the thread that called lyt64; records and texts need not outlive a call. A
 * catalogue is read once and then kept until FreeGlobalObject. lytGetSymbolfromTree reads it each time while none is
 * kept. A run ends after 1,000,000 records, even if the source has more. A source may call lyt64 from inside a call:
 * FreeGlobalObject then drops the kept catalogue, but not the run that is being read.
 *
 * The functions must not raise exceptions. If one does, the records of the run are dropped and the catalogue stays as
 * it was before, so that the next use starts a new run. The browser shows the failure and stays empty;
 * lytGetSymbolfromTree passes the exception to its caller.
 *
 * The order of the records is the order on the screen, depth first: an entry follows the entry it belongs to, and
 * comes before the next one of that entry's level. Its parent is the nearest record before it with a smaller nLevel;
 * without one it is at the root. Levels may be any numbers, may begin anywhere and may skip numbers. When the catalogue
 * is first shown, branches are open down to the level that "TreeLevels" in lyt.ini gives, counting the root as 0.
 */
/* NOLINTBEGIN(modernize-*): this header is C. */
#ifndef LYTSRC_H
#define LYTSRC_H

#include <assert.h>
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C"
{
#endif

    /* Kinds of an entry. Any other number means the kind of the record before it, or a heading in the first record. */
    enum
    {
        LYT_TREE_HEADING = 1,
        LYT_TREE_GROUP = 2,
        LYT_TREE_SYMBOL = 3
    };

    /* Bytes of a text, with its NUL. A text without a NUL within them counts as empty. */
    enum
    {
        LYT_TREE_TEXT_SIZE = 100
    };

    /* One entry. lyt64 owns it and the source fills it. Texts are in the ANSI code page. */
    typedef struct lytTreeRecord
    {
        int32_t nLevel;                   /* the depth; a smaller number is nearer the root */
        int32_t nType;                    /* LYT_TREE_HEADING, LYT_TREE_GROUP or LYT_TREE_SYMBOL */
        char szLabel[LYT_TREE_TEXT_SIZE]; /* what is shown; each "##" shows as three blanks */
        char szKey[LYT_TREE_TEXT_SIZE];   /* what searches look for, and what a choice returns */
    } lytTreeRecord;

    static_assert(offsetof(lytTreeRecord, nLevel) == 0, "nLevel is at 0");
    static_assert(offsetof(lytTreeRecord, nType) == 4, "nType is at 4");
    static_assert(offsetof(lytTreeRecord, szLabel) == 8, "szLabel is at 8");
    static_assert(offsetof(lytTreeRecord, szKey) == 108, "szKey is at 108");
    static_assert(sizeof(lytTreeRecord) == 208, "a record has 208 bytes");

    typedef int32_t (*lytTreeStartFunction)(const char* selection);
    typedef int32_t (*lytTreeNextFunction)(lytTreeRecord* record);

    /* The symbol tree. The selection text is reserved: lyt64 passes an empty one. */
    int32_t lytTreeStart(const char* selection);
    int32_t lytTreeNext(lytTreeRecord* record);
    /* The para tree. */
    int32_t lytParaTreeStart(const char* selection);
    int32_t lytParaTreeNext(lytTreeRecord* record);

#ifdef __cplusplus
}
#endif

#endif
/* NOLINTEND(modernize-*) */
