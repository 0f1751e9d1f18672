// The head of a description and its layout section:
//
//     anything
//     $VERSION word
//     $LAYOUT [text section, ...]
//     Begin Dialog word width, height, title, word
//     type .name
//     type x, y, width, height [, text] [, .name]
//     End Dialog
//
// It is not the `End` line that ends the controls but the header of the next section.
#include "dlgfile/ClytDialogFile.h"

#include "base/Words.h"

namespace
{

constexpr int dialogWords = 7;
constexpr const char* versionWord = lytWordOf(ClytSection::Head);
constexpr const char* layoutWord = lytWordOf(ClytSection::Layout);

bool IsName(const CString& operand)
{
    return !operand.IsEmpty() && operand[0] == '.';
}

} // namespace

int ClytDialogFile::ReadVersionHeader(CString& version)
{
    bool isVersionSeen = false;
    while (ReadStatement([&] { return ReadHeaderStatement(version, isVersionSeen); }) != 0)
        continue;
    return tokens.IsEmpty() ? 0 : 1;
}

// 0 at the layout line, and with no tokens at the end of the file.
int ClytDialogFile::ReadHeaderStatement(CString& version, bool& isVersionSeen)
{
    if (!ReadHeaderLine())
    {
        Tell(lytError("LayoutMissing"), EndOfLine());
        return 0;
    }
    const CString& word = tokens.GetHead().GetText();
    const bool isVersion = lytSameWord(word, versionWord);
    if (isVersion)
    {
        isVersionSeen = true;
        if (tokens.GetCount() != 2)
            FailStatement(GetLinePlace(), tokens.GetCount() == 1 ? ClytDue::VersionWord : ClytDue::EndOfHeader);
        version = tokens.GetTail().GetText();
    }
    if (!lytSameWord(isVersion ? version : word, layoutWord))
        return 1;
    if (!isVersionSeen)
        Tell(lytError("VersionMissing"), GetLinePlace());
    return 0;
}

// Reads up to a line that begins with a header's word; false at the end of the file. Free text may be above the
// headers, so a quote without its partner counts on their own lines only.
bool ClytDialogFile::ReadHeaderLine()
{
    SetKind(ClytLineKind::Header);
    char line[lineSize + 1];
    while (ReadString(line, lineSize) != nullptr)
    {
        const char* openQuote = lytTokenize(line, lineDelimiters, tokens);
        if (tokens.IsEmpty())
            continue;
        const CString& word = tokens.GetHead().GetText();
        if (!lytSameWord(word, versionWord) && !lytSameWord(word, layoutWord))
            continue;
        if (openQuote != nullptr)
            FailQuote(line, openQuote);
        return true;
    }
    tokens.RemoveAll();
    return false;
}

int ClytDialogFile::ReadDialogHeader(int& width, int& height, CString& title, CString& lastText)
{
    return ReadStatement(
        [&]
        {
            do
            {
                if (!ReadTokens(ClytLineKind::Dialog))
                {
                    Tell(lytError("DialogMissing"), EndOfLine());
                    return 0;
                }
            } while (tokens.IsEmpty());

            POSITION token = tokens.GetHeadPosition();
            if (!lytSameWord(Next(token).GetText(), "Begin"))
            {
                Tell(lytError("DialogMissing"), GetLinePlace());
                return 0;
            }
            if (tokens.GetCount() != dialogWords)
                FailStatement(GetLinePlace(), ClytDue::Token);
            if (!lytSameWord(Next(token).GetText(), "Dialog"))
                return 0;
            Next(token);
            width = lytNumberOf(Next(token).GetText());
            height = lytNumberOf(Next(token).GetText());
            title = Next(token).GetText();
            lastText = Next(token).GetText();
            return 1;
        });
}

int ClytDialogFile::ReadControlStatement(ClytControlStatement& statement)
{
    statement = {};
    return ReadStatement(
        [&]
        {
            if (!ReadTokens(ClytLineKind::Controls))
            {
                Tell(lytError("ControlsOpen"), EndOfLine());
                return 0;
            }
            POSITION token = tokens.GetHeadPosition();
            if (token == nullptr)
                return 1;
            const CString& word = Next(token).GetText();
            if (lytSameWord(word, lytWordOf(ClytSection::Values)))
                return 0;
            if (lytSameWord(word, "End"))
                Next(token, ClytDue::DialogWord);
            else if (!word.IsEmpty())
                ReadControl(word, token, statement);
            return 1;
        });
}

// The type word comes last: a statement that fails makes no control.
void ClytDialogFile::ReadControl(const CString& type, POSITION token, ClytControlStatement& statement)
{
    statement.span = GetStatementPlace();
    ReadControlOperands(token, statement);
    statement.type = type;
}

void ClytDialogFile::ReadControlOperands(POSITION token, ClytControlStatement& statement)
{
    const CString& first = NextOrFail(token, ClytDue::Operands).GetText();
    if (IsName(first))
    {
        statement.name = TakeName(first);
        return;
    }
    statement.x = lytNumberOf(first);
    for (int* number : {&statement.y, &statement.width, &statement.height})
    {
        const CString& operand = NextOrFail(token, ClytDue::Number).GetText();
        Expect(!IsName(operand), ClytDue::Number);
        *number = lytNumberOf(operand);
    }
    if (token == nullptr)
        return;
    const CString& fifth = Next(token).GetText();
    if (IsName(fifth))
    {
        statement.name = TakeName(fifth);
        return;
    }
    statement.text = fifth;
    if (token != nullptr)
        statement.name = TakeName(Next(token).GetText());
}

// The first character is removed unchecked, so a name in the last place that lacks its point is cut.
CString ClytDialogFile::TakeName(const CString& operand)
{
    Expect(operand != ".", ClytDue::Name);
    return operand.Mid(1);
}
