#include "dlgfile/ClytDialogFile.h"

#include "environment/ClytException.h"
#include "environment/Words.h"

#include <cstring>

namespace
{

CString MarkerName(const char* line)
{
    return {line, static_cast<int>(std::strcspn(line, " \t;\n\r"))};
}

} // namespace

ClytDialogFile::ClytDialogFile(const char* defineList)
{
    if (defineList == nullptr || *defineList == '\0')
        return;
    const CString list(defineList);
    int start = 0;
    for (int comma = list.Find(','); comma >= 0; comma = list.Find(',', start))
    {
        defines.SetAt(list.Mid(start, comma - start), nullptr);
        start = comma + 1;
    }
    defines.SetAt(list.Mid(start), nullptr);
}

// A line that begins with `<` switches what follows on or off by a define (`<!` the other way round), one that begins
// with `>` switches it on. They do not nest, and they count in stretches that are switched off, too.
char* ClytDialogFile::ReadString(char* buffer, UINT count)
{
    while (CStdioFile::ReadString(buffer, count) != nullptr)
    {
        if (*buffer == '<')
        {
            const bool isInverted = buffer[1] == '!';
            void* unused = nullptr;
            const bool isDefined = defines.Lookup(MarkerName(buffer + (isInverted ? 2 : 1)), unused);
            lineActive = isDefined != isInverted;
        }
        else if (*buffer == '>')
            lineActive = true;
        else if (lineActive)
            return buffer;
    }
    return nullptr;
}

int ClytDialogFile::TakeTokens(CStringList& texts)
{
    if (tokens.IsEmpty())
        return 0;
    for (POSITION token = tokens.GetHeadPosition(); token != nullptr;)
        texts.AddTail(Next(token).GetText());
    tokens.RemoveAll();
    return 1;
}

bool ClytDialogFile::ReadLine(char* line)
{
    if (ReadString(line, lineSize) == nullptr)
        return false;
    ++lineNumber;
    return true;
}

bool ClytDialogFile::ReadTokens(const DelimiterSet& delimiters)
{
    char line[lineSize + 1];
    if (!ReadLine(line))
        return false;
    Tokenize(line, delimiters);
    return true;
}

int ClytDialogFile::ReadSectionLine(POSITION& token, const char* terminator, const DelimiterSet& delimiters)
{
    if (!ReadTokens(delimiters))
        lytRaise("217", CString(), terminator);
    token = tokens.GetHeadPosition();
    if (token == nullptr || !lytSameWord(tokens.GetHead().GetText(), terminator))
        return 1;
    Next(token);
    return 0;
}

const ClytToken& ClytDialogFile::NextOrFail(POSITION& token) const
{
    if (token == nullptr)
        FailStatement();
    return Next(token);
}

void ClytDialogFile::FailStatement() const
{
    CString number;
    number.Format("%d", lineNumber);
    lytRaise("212", CString(), number);
}

// The values of a condition whose `(` has been taken, up to the `)`. A line that ends inside the list is the class
// library's failure, any other delimiter between the values is the caller's to report.
bool ClytDialogFile::ReadValueList(POSITION& token, CStringList& values) const
{
    while (true)
    {
        const ClytToken& value = Next(token);
        values.AddTail(value.GetText());
        if (value.GetDelimiter() == ')')
            return true;
        if (value.GetDelimiter() != ',')
            return false;
    }
}
