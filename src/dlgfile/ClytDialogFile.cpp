#include "dlgfile/ClytDialogFile.h"

#include "base/Words.h"

ClytDialogFile::ClytDialogFile(const char* defineList, ErrorSink& errorSink)
    : ClytLineSource(defineList), errors(errorSink)
{
}

void ClytDialogFile::Tokenize(const char* line, const DelimiterSet& delimiters)
{
    lastTaken = nullptr;
    const char* openQuote = lytTokenize(line, delimiters, tokens);
    if (openQuote != nullptr)
        FailQuote(line, openQuote);
}

ClytSpan ClytDialogFile::PlaceOf(const ClytToken& token) const
{
    return PlaceInLine(token.GetColumn(), token.GetText().GetLength());
}

ClytSpan ClytDialogFile::GetStatementPlace() const
{
    const int column = tokens.IsEmpty() ? 0 : tokens.GetHead().GetColumn();
    return PlaceInLine(column, GetLinePlace().length - column);
}

ClytSpan ClytDialogFile::EndOfLine() const
{
    return PlaceInLine(GetLinePlace().length, 0);
}

int ClytDialogFile::TakeTokens(CStringList& texts)
{
    if (tokens.IsEmpty())
        return 0;
    for (POSITION token = tokens.GetHeadPosition(); token != nullptr;)
        texts.AddTail(tokens.GetNext(token).GetText());
    tokens.RemoveAll();
    return 1;
}

// The set is made once for a run of lines: sets ready for all kinds would be as large as a reader's code.
void ClytDialogFile::SetKind(ClytLineKind kind)
{
    const ClytLineForm* next = &lytFormOf(kind);
    if (next == lineForm)
        return;
    lineForm = next;
    lineDelimiters = DelimiterSet(lineForm->delimiters);
}

bool ClytDialogFile::ReadTokens(ClytLineKind kind)
{
    SetKind(kind);
    char line[lineSize + 1];
    if (ReadString(line, lineSize) == nullptr)
        return false;
    Tokenize(line, lineDelimiters);
    return true;
}

int ClytDialogFile::ReadSectionLine(POSITION& token, ClytLineKind kind)
{
    token = nullptr;
    const bool isRead = ReadTokens(kind);
    const char* const terminator = lytWordOf(lineForm->end);
    if (!isRead)
    {
        tokens.RemoveAll();
        Tell(lytError("EndTooSoon"), EndOfLine(), terminator);
        return 0;
    }
    token = tokens.GetHeadPosition();
    if (token == nullptr || !lytSameWord(tokens.GetHead().GetText(), terminator))
        return 1;
    Next(token);
    return 0;
}

const ClytToken& ClytDialogFile::Next(POSITION& token, ClytDue due)
{
    if (token == nullptr)
    {
        errors.TellShortLine(EndOfLine(), due);
        throw Abandoned();
    }
    lastTaken = &tokens.GetNext(token);
    return *lastTaken;
}

const ClytToken& ClytDialogFile::NextOrFail(POSITION& token, ClytDue due)
{
    if (token == nullptr)
        FailStatement(EndOfLine(), due);
    return Next(token);
}

void ClytDialogFile::Tell(const char* number, const ClytSpan& place, const CString& argument, ClytDue due)
{
    errors.Tell(std::make_unique<ClytException>(lytErrorSection, number, CString(), argument), place, due);
}

void ClytDialogFile::Expect(bool isThere, ClytDue due)
{
    if (!isThere)
        FailStatement(lastTaken != nullptr ? PlaceOf(*lastTaken) : GetLinePlace(), due);
}

void ClytDialogFile::FailStatement(const ClytSpan& place, ClytDue due)
{
    CString number;
    number.Format("%d", GetLineNumber());
    Tell(lytError("LineForm"), place, number, due);
    throw Abandoned();
}

// The values of a condition whose `(` has been taken, up to the `)`. A line that ends inside the list is the class
// library's failure.
void ClytDialogFile::ReadValueList(POSITION& token, CStringList& values)
{
    char end = ',';
    while (end != ')')
    {
        Expect(end == ',', ClytDue::ListSeparator);
        const ClytToken& value = Next(token, ClytDue::ListSeparator);
        values.AddTail(value.GetText());
        end = value.GetDelimiter();
    }
}

// From the quote to the end of the line.
void ClytDialogFile::FailQuote(const char* line, const char* openQuote)
{
    const auto column = static_cast<int>(openQuote - line);
    Tell(lytError("QuoteOpen"), PlaceInLine(column, GetLinePlace().length - column));
    throw Abandoned();
}
