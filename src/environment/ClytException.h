// The program's own failure: a section and a key of the language texts, so that its message speaks the user's language.
//
// Raised, it ends an operation: `lytRaise(lytError("LineForm"), "", lineNumber)`. Reported, it shows its message and
// the operation continues: `lytReport(lytError("LibraryNotNamed"), "", controlName)`.
#pragma once

#include "environment/ErrorTable.h"

#include <afx.h>

#include <memory>

// What comes above a message, with a line feed between them: a text, or the text of a key of the numbered errors, which
// is looked up when the message is worded.
class ClytPrefix
{
public:
    ClytPrefix() = default;
    ClytPrefix(CString words) : text(std::move(words)) {}
    ClytPrefix(const char* words) : text(words) {}
    static ClytPrefix OfKey(const char* key);

    CString Worded() const;
    bool IsKey() const { return isKey; }
    // The text or the key.
    const CString& Get() const { return text; }

private:
    CString text;
    bool isKey = false;
};

class ClytException : public CException
{
public:
    // The section is "Dialog_Error" for numbered errors and "MsgBox" for the messages of evaluation rules.
    ClytException(CString textSection, CString textKey, ClytPrefix messagePrefix, CString textArgument);

    const CString& GetNumber() const { return number; }
    const ClytPrefix& GetPrefix() const { return prefix; }
    const CString& GetArgument() const { return argument; }

    // The text of the key with the argument after its first apostrophe, below the prefix and a line feed when there is
    // a prefix; cut to size - 1 characters.
    BOOL GetErrorMessage(char* buffer, UINT size, UINT* helpContext = nullptr) const override;
    // Shows the first 74 characters of the message in a plain message box.
    int ReportError(UINT type = 0, UINT help = 0) override;

private:
    CString section;
    CString number;
    ClytPrefix prefix;
    CString argument;
};

// A caught failure; deleted in any case.
struct ClytDeleteFailure
{
    void operator()(CException* e) const { e->Delete(); }
};
using ClytCaught = std::unique_ptr<CException, ClytDeleteFailure>;

// Raises a numbered error.
[[noreturn]] void lytRaise(const char* number, const ClytPrefix& prefix = {}, const CString& argument = CString());
// Raises a numbered error in place of a caught failure, whose message becomes the prefix.
[[noreturn]] void lytRaiseInstead(ClytCaught failure, const char* number, const CString& argument = CString());
// Shows a numbered error; the operation continues.
void lytReport(const char* number, const ClytPrefix& prefix = {}, const CString& argument = CString());
// The message of an exception, at most 74 characters.
CString lytMessageOf(const CException& e);
