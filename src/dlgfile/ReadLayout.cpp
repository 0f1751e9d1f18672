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

#include "environment/ClytException.h"
#include "environment/Words.h"

namespace
{

constexpr DelimiterSet headerDelimiters(" ,\t\n();:");
constexpr DelimiterSet dialogDelimiters(" ,\t\n();");
constexpr DelimiterSet controlDelimiters(" ,\t\n;");

constexpr int dialogWords = 7;

bool IsName(const CString& operand)
{
    return !operand.IsEmpty() && operand[0] == '.';
}

} // namespace

int ClytDialogFile::ReadVersionHeader(CString& version)
{
    bool isVersionSeen = false;
    while (true)
    {
        char line[lineSize + 1];
        if (!ReadLine(line))
            lytRaise("214");
        // Free text may stand above the header, so a quote without its partner counts on the header lines only.
        const bool isWhole = CutTokens(line, headerDelimiters);
        if (tokens.IsEmpty())
            continue;
        const CString word = tokens.GetHead().GetText();
        const bool isVersion = lytSameWord(word, "$VERSION");
        if (!isVersion && !lytSameWord(word, "$LAYOUT"))
            continue;
        if (!isWhole)
            lytRaise("210");
        if (isVersion)
        {
            if (tokens.GetCount() != 2)
                FailStatement();
            version = tokens.GetTail().GetText();
            isVersionSeen = true;
        }
        if (!lytSameWord(isVersion ? version : word, "$LAYOUT"))
            continue;
        if (!isVersionSeen)
            lytRaise("213");
        return 1;
    }
}

int ClytDialogFile::ReadDialogHeader(int& width, int& height, CString& title, CString& lastText)
{
    do
    {
        if (!ReadTokens(dialogDelimiters))
            lytRaise("215");
    } while (tokens.IsEmpty());

    POSITION token = tokens.GetHeadPosition();
    if (!lytSameWord(Next(token).GetText(), "Begin"))
        lytRaise("215");
    if (tokens.GetCount() != dialogWords)
        FailStatement();
    if (!lytSameWord(Next(token).GetText(), "Dialog"))
        return 0;
    Next(token);
    width = lytNumberOf(Next(token).GetText());
    height = lytNumberOf(Next(token).GetText());
    title = Next(token).GetText();
    lastText = Next(token).GetText();
    return 1;
}

int ClytDialogFile::ReadControlStatement(ClytControlStatement& statement)
{
    statement.type.Empty();
    statement.x = statement.y = statement.width = statement.height = 0;
    statement.text.Empty();
    statement.name.Empty();
    if (!ReadTokens(controlDelimiters))
        lytRaise("216");
    POSITION token = tokens.GetHeadPosition();
    if (token == nullptr)
        return 1;
    const CString& word = Next(token).GetText();
    if (word.IsEmpty())
        return 1;
    if (lytSameWord(word, "End"))
    {
        Next(token);
        return 1;
    }
    if (lytSameWord(word, "$VALUES"))
        return 0;
    statement.type = word;
    ReadControlOperands(token, statement);
    return 1;
}

void ClytDialogFile::ReadControlOperands(POSITION token, ClytControlStatement& statement) const
{
    const CString& first = NextOrFail(token).GetText();
    if (IsName(first))
    {
        statement.name = TakeName(first);
        return;
    }
    statement.x = lytNumberOf(first);
    for (int* number : {&statement.y, &statement.width, &statement.height})
    {
        const CString& operand = NextOrFail(token).GetText();
        if (IsName(operand))
            FailStatement();
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

// The first character goes without being looked at, so a name in the last place that lacks its point is cut.
CString ClytDialogFile::TakeName(const CString& operand) const
{
    if (operand == ".")
        FailStatement();
    return operand.Mid(1);
}
