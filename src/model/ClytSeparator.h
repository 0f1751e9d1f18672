// A text that ends a piece of the input, and the statement that goes on after it.
#pragma once

#include "base/ClytSpan.h"

#include <afx.h>

class ClytSeparator : public CObject
{
public:
    ClytSeparator(CString separatorText, CString statementName, const ClytSpan& place)
        : text(std::move(separatorText)), target(std::move(statementName)), span(place)
    {
    }

    const CString text;
    const CString target;
    const ClytSpan span; // of the text
};
