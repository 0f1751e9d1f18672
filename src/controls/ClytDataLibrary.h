// How controls reach the partner libraries that description files name; lytdata.h says what those offer.
#pragma once

#include "base/ClytPartnerFunction.h"
#include "model/ClytObserver.h"

#include "lytdata.h"

#include <afxcoll.h>

#include <array>

// A buffer as a partner fills it. What a partner writes to the last byte is lost there, so that the text always ends.
class ClytDataText
{
public:
    static constexpr int usableSize = LYT_DATA_SIZE - 1;

    char* Buffer() { return bytes.data(); }
    void End() { bytes.back() = '\0'; }
    CString Text() const { return bytes.data(); }

private:
    std::array<char, LYT_DATA_SIZE> bytes{};
};

// Calls a partner's function for one text.
CString lytCallForText(const ClytPartnerFunction<lytDataText>& function, const CString& parameter);

// One listing that a partner's start function has opened. The texts of an item stay until the next function changes
// them: a function that leaves a buffer alone repeats the item before it.
class ClytDataListing
{
public:
    explicit ClytDataListing(ClytPartnerFunction<lytDataNext> nextFunction) : next(std::move(nextFunction)) {}

    // False at the end of the listing, and of a run that does not end.
    [[nodiscard]] bool Next();
    CString GetDisplay() const { return display.Text(); }
    CString GetValue() const { return value.Text(); }

private:
    ClytPartnerFunction<lytDataNext> next;
    int delivered = 0;
    ClytDataText display;
    ClytDataText value;
};

// The values of a "FILLEDBY" statement. Where only one field is filled there is no next function, and that value is
// ignored.
struct ClytListSource
{
    // A statement that is cut short leaves the later values as they were.
    void TakeStatement(const CStringList& values, const ClytSpan& place);

    CString library;
    CString startFunction;
    CString nextFunction;
    CString parameterRule; // the output rule that composes the parameter of the start function
    ClytSpan span;         // of the statement
};

// The library that all controls of one class share. The first that loads stays, and later names are ignored, unless
// somebody has unloaded it.
class ClytDataLibrary
{
public:
    // False when there is no library yet and this one cannot be loaded. The place is that of the statement that names it.
    [[nodiscard]] bool Load(const CString& name, const ClytSpan& place = {});
    // Reports a function that the library does not have.
    template <class FUNCTION>
    [[nodiscard]] ClytPartnerFunction<FUNCTION> Find(const CString& name, const ClytSpan& place = {}) const
    {
        ClytPartnerFunction<FUNCTION> found(module, loadedName, name);
        if (!found)
            lytTellMissing(ClytMissing::LibraryFunction, name, nullptr, place);
        return found;
    }

private:
    HMODULE module = nullptr; // never freed: the controls of any later dialog call into it
    CString loadedName;
};
