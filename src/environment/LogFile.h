// Writes messages of the macros into a text file named after the document. For each message the file is opened, one block
// is written in one go, and the file is closed. So a process that ends at any moment leaves whole blocks:
//
//     -----------------------------------------------------------------------------
//     START...  Date 11/20/26           Time 09:15:00
//     -----------------------------------------------------------------------------
//
//     the message
//     -----------------------------------------------------------------------------
//     END...    Date 11/20/26           Time 09:15:00
//
#pragma once

#include <afx.h>

#include <ctime>

// Writes a message as it is, if its level is at most that of `lyt.ini`; a level of 0 there means no log.
// Errors 207 (opening), 208 (writing) and 209 (closing) are raised with the cause as prefix and the log's name as
// argument. The file is closed by then.
void lytWriteToLog(const char* message, int messageLevel);

// The log of a document: its name up to the first dot of the whole path, even one in a folder's name, and nothing of a name
// without a dot.
CString lytLogNameOf(const CString& docName);

// A banner's line for a time, "START...  " or "END...    " in front. A time that is not a date raises the
// invalid-argument exception; a date or time that cannot be formatted is left out.
CString lytLogBannerLine(const char* word, std::time_t time);
