// Statements of the evaluation section:
//
//     name (value, ...)
//     name (value, ...) = other (value, ...) : message key
//     name = value : message key
//     name = NULL any-delimiter message key
#include "dlgfile/ClytDialogFile.h"

#include "model/ClytCtrlValList.h"
#include "model/ClytWords.h"

int ClytDialogFile::ReadEvaluationStatement(ClytCtrlValList& own, ClytCtrlValList& other, CString& messageKey)
{
    return ReadStatement(
        [&]
        {
            POSITION token = nullptr;
            if (ReadSectionLine(token, ClytLineKind::Evaluation) == 0)
                return 0;
            if (token != nullptr)
                ReadEvaluation(token, own, other, messageKey);
            return 1;
        });
}

void ClytDialogFile::ReadEvaluation(POSITION token, ClytCtrlValList& own, ClytCtrlValList& other, CString& messageKey)
{
    const ClytToken& name = Next(token);
    own.SetName(name.GetText(), PlaceOf(name));
    switch (name.GetDelimiter())
    {
    case '(': ReadForbiddenPair(token, own, other, messageKey); break;
    case '=': ReadForbiddenValue(token, own, messageKey); break;
    default: FailStatement();
    }
}

void ClytDialogFile::ReadForbiddenPair(POSITION token, ClytCtrlValList& own, ClytCtrlValList& other,
                                       CString& messageKey)
{
    if (!ReadValueList(token, own.GetValues()))
        FailStatement();
    if (token == nullptr)
        return;
    if (Next(token).GetDelimiter() != '=')
        FailStatement();
    const ClytToken& name = NextOrFail(token);
    if (name.GetDelimiter() != '(')
        FailStatement();
    other.SetName(name.GetText(), PlaceOf(name));
    if (!ReadValueList(token, other.GetValues()))
        FailStatement();
    if (NextOrFail(token).GetDelimiter() != ':')
        FailStatement();
    messageKey = NextOrFail(token).GetText();
}

void ClytDialogFile::ReadForbiddenValue(POSITION token, ClytCtrlValList& own, CString& messageKey)
{
    const ClytToken& value = NextOrFail(token);
    if (value.GetDelimiter() != ':' && !lytMeans<ClytValueWord::Null>(value.GetText()))
        FailStatement();
    own.GetValues().AddTail(value.GetText());
    messageKey = NextOrFail(token).GetText();
}
