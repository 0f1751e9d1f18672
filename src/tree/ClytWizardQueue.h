// The texts of a group wizard that wait to be fetched, one by each call.
#pragma once

#include <afx.h>

#include <optional>

// The list of texts begins at the brace after this mark.
inline constexpr const char* lytListMark = "/LIST";
inline constexpr char lytListBegin = '{';
inline constexpr char lytListSeparator = '|';

class ClytWizardQueue
{
public:
    // Whether texts are being delivered.
    bool IsPending() const { return pending; }

    // Takes a group dialog's result apart: what follows "/LIST" and the next "{" goes into the queue; what comes
    // before it, brace included, is the first text, which is returned. Without "/LIST" the brace is sought in the whole
    // result, and without a brace the queue gets all that was searched.
    CString Begin(const CString& result);

    // Delivers the next text. The delivery ends with the last one; there is no last one when the queue ends in "|": the
    // text before that mark is lost.
    std::optional<CString> Deliver();

private:
    CString queue; // undelivered texts, each but the last ended by "|"
    bool pending = false;
};

extern ClytWizardQueue lytWizardQueue;
