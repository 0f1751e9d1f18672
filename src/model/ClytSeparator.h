// A text that ends a piece of the input, and the statement that continues after it.
#pragma once

#include "base/ClytSpan.h"
#include "model/ClytTarget.h"

class ClytSeparator : public CObject
{
public:
    ClytSeparator(CString separatorText, const CString& statementName, const ClytSpan& place)
        : text(std::move(separatorText)), target{statementName}, span(place)
    {
    }

    const CString text;
    ClytTarget target;
    const ClytSpan span; // of the text
};
