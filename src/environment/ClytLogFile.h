// Writes what the macros want logged into a text file named after the document. The file is opened, written and closed
// for each message, which thus has a block of its own in it. A block is written at once, so that a process that ends at any
// moment leaves whole blocks:
//
//     -----------------------------------------------------------------------------
//     START...  Date 11/20/26           Time 09:15:00
//     -----------------------------------------------------------------------------
//
//     the message
//     -----------------------------------------------------------------------------
//     END...    Date 11/20/26           Time 09:15:00
//
// Errors 207 (opening), 208 (writing) and 209 (closing) are raised with the cause as prefix and the log's name as
// argument. The file is closed by then.
#pragma once

#include <afx.h>

#include <ctime>

class ClytLogFile : public CStdioFile
{
public:
    // The level that `lyt.ini` holds at this moment.
    static int CurrentLevel();

    // Names the log after the document, takes the level and, unless it is 0, opens the file and begins a block with the
    // START banner.
    void Open() { Open(CurrentLevel()); }
    // The same for a caller that has just read the level: a read costs as much as the writing.
    void Open(int currentLevel);
    // Adds the text as it stands to the block when its level is within the one taken by Open.
    void Write(const char* text, int messageLevel);
    // Ends the block with the END banner, writes it and closes the file, if Open opened it.
    void Close() override;
    void Reset();

private:
    using CStdioFile::Open;

    CString BannerLine(const char* word);
    void Add(const char* text);

    CString logName;
    CString block; // as far as it goes
    int level = 0;
};

// The log of a document. The first dot of the whole path counts, even one in a folder's name; without a dot nothing of the
// name stays.
CString lytLogNameOf(const CString& docName);

// A banner's line for a time, "START...  " or "END...    " in front. A time that is no date raises the
// invalid-argument exception; a date or time that cannot be formatted is left out.
CString lytLogBannerLine(const char* word, std::time_t time);

extern ClytLogFile lytLog;
