// How a statement cuts its piece off the front of the input: by a fixed length or by separators.
#pragma once

#include "base/ClytOwnedList.h"
#include "model/ClytSeparator.h"

class ClytScan : public CObject
{
public:
    // 1 when there is anything to scan by.
    int HasScan() const { return !target.IsEmpty() || !separators.IsEmpty() ? 1 : 0; }
    // 1 when a separator stands at the start of the rest, with its length; the first in file order wins. An empty rest
    // counts as a separator of length 0 as long as the list has an entry.
    int FindSeparator(const char* rest, int& found) const;
    // The statement after the first separator of that text; empty when there is none.
    CString TargetOf(const CString& separatorText) const;

    // The later of the two kinds of entry decides: a separator wipes an earlier fixed length.
    void SetFixedLength(int pieceLength, const CString& statementName, const ClytSpan& place = {});
    void AddSeparator(const CString& separatorText, const CString& statementName, const ClytSpan& place = {});

    int GetLength() const { return length; }
    const CString& GetTarget() const { return target; }
    // Of the fixed length; a separator has its own.
    const ClytSpan& GetLengthSpan() const { return lengthSpan; }
    const ClytOwnedList<ClytSeparator>& GetSeparators() const { return separators; }

private:
    int length = 0; // 0 when the scan works by separators
    ClytSpan lengthSpan;
    CString target; // the next statement after a piece of fixed length
    ClytOwnedList<ClytSeparator> separators;
};
