// The lines of a description that the defines leave in, each with its numbers.
#pragma once

#include "base/ClytSpan.h"

#include <afxcoll.h>

class ClytLineSource : public CStdioFile
{
public:
    // The define list is a text of names joined by commas; null means none.
    explicit ClytLineSource(const char* defineList);

    // Delivers the next line that the defines leave in, at most `count` characters and a NUL; null at the end of the
    // file. A longer line arrives in pieces, each a separate line.
    char* ReadString(char* buffer, UINT count) override;

    // The number of the present line that messages tell: lines that are switched off do not count, pieces do.
    int GetLineNumber() const { return lineNumber; }
    // The place of the present line in the file, and of a part of it that begins at a column of the line as delivered.
    const ClytSpan& GetLinePlace() const { return linePlace; }
    // What a line that begins with `<` tells: the define that it names, and whether `<!` turns it round.
    static CString DefineOf(const char* line);
    static bool IsInverted(const char* line) { return line[1] == '!'; }
    ClytSpan PlaceInLine(int column, int length) const { return {linePlace.line, linePlace.column + column, length}; }

protected:
    // Takes the next line or piece of one, switched off or not, at most `count` characters and a NUL, and turns the place
    // of the line before into its own. False at the end. Here the text is the file.
    virtual bool TakeLine(char* buffer, UINT count, ClytSpan& place);

private:
    CMapStringToPtr defines;
    bool lineActive = true;
    int lineNumber = 0;
    ClytSpan linePlace;
    int nextColumn = 0; // where the next read begins; beyond 0 when the last one ended inside a line
};
