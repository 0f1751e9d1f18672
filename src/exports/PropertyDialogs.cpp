// The exports that show the dialog of a placeholder: a key goes in, and comes out as the user has changed it.
#include "lyt64.h"

#include "dialog/ClytDialog.h"
#include "environment/ClytEnvironment.h"
#include "environment/ClytException.h"
#include "environment/ProcessState.h"
#include "exports/ExportFrame.h"
#include "exports/NamedDialogs.h"

#include <algorithm>

namespace
{

enum Outcome
{
    nothing = 0,
    changed = 1,
    unchanged = 2
};

// The input key is empty afterwards, even if a dialog inside this one has left something in it.
std::optional<CString> ShowOver(ClytNamed which, const CString& key)
{
    std::optional<CString> result = ClytDialog::Show(lytNamed(which).description, key);
    lytInputKey.Empty();
    return result;
}

int EditPlaceholder(ClytNamed which, const CString& key, char* buffer, int size)
{
    const std::optional<CString> result = ShowOver(which, key);
    if (!result)
        return nothing;
    if (!result->IsEmpty())
        CopyTextMarkingEnd(buffer, size, *result);
    return TextIn(buffer, size) == key ? unchanged : changed;
}

// One key of a group. The part before the bracket belongs to the document and is kept from the dialog.
class GroupKey
{
public:
    GroupKey(int groupKind, CString text)
        : m_kind(groupKind), m_key(std::move(text)), m_input(m_key), m_isSplit(IsToBeSplit(groupKind, m_key))
    {
        const int bracket = m_isSplit ? m_key.Find('(') : -1;
        if (bracket < 0)
            return;
        m_head = m_key.Left(bracket);
        m_input = m_key.Mid(bracket);
    }

    // What the dialog is to scan.
    const CString& Input() const { return m_input; }
    // Writes the result of a confirmed dialog into the buffers.
    Outcome HandOut(const CString& result, char* first, int firstSize, char* second, int secondSize) const;

private:
    static bool IsToBeSplit(int groupKind, const CString& text)
    {
        return (groupKind == 1 && !text.IsEmpty()) || text.Find("BNG") >= 0;
    }
    bool IsUnchanged(const CString& tail) const
    {
        return m_isSplit && (m_input == tail || (m_kind == 0 && m_input.Find(tail) >= 0));
    }

    int m_kind;
    CString m_key;
    CString m_input;
    CString m_head;
    bool m_isSplit;
};

// Writes both parts of a result; false, after the message, when the first does not fit.
bool WriteParts(const CString& result, char* first, int firstSize, char* second, int secondSize)
{
    const int mark = result.Find(lytGroupMark);
    const CString left = mark >= 0 ? result.Left(mark + 1) : CString();
    CopyText(first, firstSize, left);
    if (left.GetLength() > firstSize)
    {
        CString room;
        room.Format("%d", firstSize);
        lytReport(lytError("TextTooLong"), CString(), room);
        return false;
    }
    if (IsUsable(second, secondSize))
        CopyTextMarkingEnd(second, secondSize, mark >= 0 ? result.Mid(mark + 2) : CString());
    return true;
}

// The tail is read back from the first buffer after both were written: a caller may pass one buffer as both.
Outcome GroupKey::HandOut(const CString& result, char* first, int firstSize, char* second, int secondSize) const
{
    if (!result.IsEmpty() && !WriteParts(result, first, firstSize, second, secondSize))
        return nothing;
    const CString text = TextIn(first, firstSize);
    const int bracket = text.Find('(');
    const CString tail = bracket >= 0 ? text.Mid(bracket) : CString();
    if (IsUnchanged(tail))
        return unchanged;
    if (m_key.IsEmpty() || !m_isSplit)
        return changed;
    // A changed key gets back the part that was kept from the dialog.
    CopyText(first, firstSize, m_head + tail);
    if (IsUsable(second, secondSize) && secondSize >= lytKeptLettersEnd && m_key.GetLength() >= lytKeptLettersEnd)
        std::copy(m_key.GetString() + lytKeptLettersBegin, m_key.GetString() + lytKeptLettersEnd,
                  second + lytKeptLettersBegin);
    return changed;
}

} // namespace

int __stdcall lytSymbolPropertyDialog(const char* key, char* result, int size)
{
    LYT_EXPORT_FRAME(nothing);
    return IsUsable(result, size) ? EditPlaceholder(ClytNamed::Symbol, key, result, size) : nothing;
}

int __stdcall lytPhrasePropertyDialog(const char* key, char* result, int size)
{
    LYT_EXPORT_FRAME(nothing);
    return IsUsable(result, size) ? EditPlaceholder(ClytNamed::Phrase, key, result, size) : nothing;
}

int __stdcall lytGroupPropertyDialog(int kind, const char* key, char* first, int firstSize, char* second,
                                     int secondSize)
{
    LYT_EXPORT_FRAME(nothing);
    if (!IsUsable(first, firstSize))
        return nothing;
    const GroupKey groupKey(kind, key);
    // With an empty key the dialog scans what an earlier one has left.
    const std::optional<CString> result = ShowOver(kind == 0 ? ClytNamed::Condition : ClytNamed::Repetition,
                                                   groupKey.Input().IsEmpty() ? lytInputKey : groupKey.Input());
    return result ? groupKey.HandOut(*result, first, firstSize, second, secondSize) : nothing;
}
