// A statement that a control keeps: its keyword and its values, such as a push button's action.
#pragma once

#include <afxcoll.h>

class ClytControlVal : public CObject
{
public:
    // Replaces keyword and values by copies.
    void Set(const CString& keyword, const CStringList& statementValues);

    const CString& GetKeyword() const { return secondName; }
    const CStringList& GetValues() const { return values; }

private:
    CString firstName;
    CString secondName;
    CStringList values;
};
