// A statement that a control keeps: its keyword and its values, such as a push button's action.
#pragma once

#include "base/ClytSpan.h"

#include <afxcoll.h>

class ClytControlVal : public CObject
{
public:
    // Replaces keyword and values by copies.
    void Set(const CString& word, const CStringList& statementValues, const ClytSpan& place = {});

    const CString& GetKeyword() const { return keyword; }
    const CStringList& GetValues() const { return values; }
    // Of the statement.
    const ClytSpan& GetSpan() const { return span; }

private:
    CString keyword;
    CStringList values;
    ClytSpan span;
};
