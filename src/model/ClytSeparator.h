// A text that ends a piece of the input, and the statement that goes on behind it.
#pragma once

#include <afx.h>

class ClytSeparator : public CObject
{
public:
    ClytSeparator(CString separatorText, CString statementName)
        : text(std::move(separatorText)), target(std::move(statementName))
    {
    }

    const CString text;
    const CString target;
};
