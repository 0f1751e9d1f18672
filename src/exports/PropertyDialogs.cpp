// The exports that show the dialog of a placeholder: a key goes in, and comes out as the user has changed it.
#include "lyt64.h"

#include "dialog/ClytDialog.h"
#include "environment/ClytEnvironment.h"
#include "environment/ClytException.h"
#include "environment/ProcessState.h"
#include "exports/ExportFrame.h"

#include <algorithm>
#include <optional>

namespace
{

enum Outcome
{
    nothing = 0,
    changed = 1,
    unchanged = 2
};

// Where the kind of a placeholder stands in its key, when the key is long enough to have one.
constexpr int kindBegin = 5;
constexpr int kindEnd = 8;

CString DescriptionFile(const char* name)
{
    return lytEnvironment.GetDialogPath() + "\\" + name;
}

int EditPlaceholder(const char* description, const CString& key, char* result, int size)
{
    ClytDialog dialog(DescriptionFile(description), lytEnvironment.GetDialogDefine());
    lytInputKey = key;
    int outcome = nothing;
    if (dialog.DoModal() == IDOK)
    {
        if (!dialog.GetResult().IsEmpty())
            CopyTextMarkingEnd(result, size, dialog.GetResult());
        outcome = TextIn(result, size) == key ? unchanged : changed;
    }
    lytInputKey.Empty();
    return outcome;
}

// What a group's dialog gives back. A buffer without a text is left as the caller gave it.
struct GroupAnswer
{
    Outcome outcome = nothing;
    bool isTooLong = false; // for the first buffer
    std::optional<CString> first;
    std::optional<CString> second;
    CString kind; // of the old key, for its place in the second buffer; may be empty
};

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
    // The answer to a confirmed dialog; `before` is what stands in the first buffer.
    GroupAnswer AnswerTo(const CString& result, const CString& before, int firstSize) const;

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

// Cuts a result into the parts for the two buffers.
void CutResult(const CString& result, GroupAnswer& answer)
{
    const int mark = result.Find(")/1");
    answer.first = mark >= 0 ? result.Left(mark + 1) : CString();
    answer.second = mark >= 0 ? result.Mid(mark + 2) : CString();
}

GroupAnswer GroupKey::AnswerTo(const CString& result, const CString& before, int firstSize) const
{
    GroupAnswer answer;
    CString text = before;
    if (!result.IsEmpty())
    {
        CutResult(result, answer);
        const int length = answer.first->GetLength();
        answer.isTooLong = length > firstSize;
        // A text as long as its buffer leaves it empty.
        text = length < firstSize ? *answer.first : CString();
    }
    if (answer.isTooLong)
        return answer;

    const int bracket = text.Find('(');
    const CString tail = bracket >= 0 ? text.Mid(bracket) : CString();
    answer.outcome = IsUnchanged(tail) ? unchanged : changed;
    if (answer.outcome == unchanged || m_key.IsEmpty() || !m_isSplit)
        return answer;
    // A changed key gets back what the dialog has not seen.
    answer.first = m_head + tail;
    if (m_key.GetLength() >= kindEnd)
        answer.kind = m_key.Mid(kindBegin, kindEnd - kindBegin);
    return answer;
}

Outcome HandOut(const GroupAnswer& answer, char* first, int firstSize, char* second, int secondSize)
{
    if (answer.first)
        CopyText(first, firstSize, *answer.first);
    if (answer.isTooLong)
    {
        CString room;
        room.Format("%d", firstSize);
        lytReport("254", CString(), room);
        return nothing;
    }
    if (!IsUsable(second, secondSize))
        return answer.outcome;
    if (answer.second)
        CopyTextMarkingEnd(second, secondSize, *answer.second);
    if (secondSize >= kindEnd)
        std::copy_n(answer.kind.GetString(), answer.kind.GetLength(), second + kindBegin);
    return answer.outcome;
}

Outcome EditGroup(const GroupKey& key, const char* description, char* first, int firstSize, char* second,
                  int secondSize)
{
    ClytDialog dialog(DescriptionFile(description), lytEnvironment.GetDialogDefine());
    if (!key.Input().IsEmpty())
        lytInputKey = key.Input();
    if (dialog.DoModal() != IDOK)
        return nothing;
    const GroupAnswer answer = key.AnswerTo(dialog.GetResult(), TextIn(first, firstSize), firstSize);
    return HandOut(answer, first, firstSize, second, secondSize);
}

} // namespace

int __stdcall lytSymbolPropertyDialog(const char* key, char* result, int size)
{
    LYT_EXPORT_FRAME(nothing);
    return IsUsable(result, size) ? EditPlaceholder("lytInSym.dlg", key, result, size) : nothing;
}

int __stdcall lytPhrasePropertyDialog(const char* key, char* result, int size)
{
    LYT_EXPORT_FRAME(nothing);
    return IsUsable(result, size) ? EditPlaceholder("lytInPhr.dlg", key, result, size) : nothing;
}

int __stdcall lytGroupPropertyDialog(int kind, const char* key, char* first, int firstSize, char* second,
                                     int secondSize)
{
    LYT_EXPORT_FRAME(nothing);
    if (!IsUsable(first, firstSize))
        return nothing;
    const char* description = kind == 0 ? "lytCdGrp.dlg" : "lytRpGrp.dlg";
    const Outcome outcome = EditGroup(GroupKey(kind, key), description, first, firstSize, second, secondSize);
    lytInputKey.Empty();
    return outcome;
}
