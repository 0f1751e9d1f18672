// How a statement cuts its piece off the front of the input: by a fixed length or by separators.
#pragma once

#include "base/ClytOwnedList.h"
#include "base/DelimiterSet.h"
#include "model/ClytSeparator.h"

class ClytScan : public CObject
{
public:
    // 1 when there is anything to scan by.
    int HasScan() const { return !target.name.IsEmpty() || !separators.IsEmpty() ? 1 : 0; }
    // The first character that may end the piece or is counted; the text before it belongs to the piece.
    const char* FindStop(const char* rest) const { return stops.FindIn(rest); }
    // The separator at the start of the rest, the first in file order that fits, or null.
    const ClytSeparator* FindSeparator(const char* rest) const;
    // The statement after the first separator of that text, or empty.
    const ClytTarget& TargetOf(const char* separatorText) const;

    // Lets `bind` find the statements of all targets.
    template <class BIND>
    void BindTargets(BIND bind)
    {
        bind(target);
        for (ClytSeparator& separator : separators)
            bind(separator.target);
    }

    // The later of the two kinds of entry decides: a separator wipes an earlier fixed length.
    void SetFixedLength(int pieceLength, const CString& statementName, const ClytSpan& place = {});
    void AddSeparator(const CString& separatorText, const CString& statementName, const ClytSpan& place = {});

    int GetLength() const { return length; }
    const ClytTarget& GetTarget() const { return target; }
    // Of the fixed length; a separator has its own.
    const ClytSpan& GetLengthSpan() const { return lengthSpan; }
    const ClytOwnedList<ClytSeparator>& GetSeparators() const { return separators; }

private:
    int length = 0; // 0 when the scan works by separators
    ClytSpan lengthSpan;
    ClytTarget target; // the next statement after a piece of fixed length
    ClytOwnedList<ClytSeparator> separators;
    DelimiterSet stops{"({[)}]\""}; // and the first characters of the separators; every one when a separator is empty
};
