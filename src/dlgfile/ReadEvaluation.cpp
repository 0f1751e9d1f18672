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
    const bool isPair = name.GetDelimiter() == '(';
    Expect(isPair || name.GetDelimiter() == '=', ClytDue::EvaluationSign);
    if (isPair)
        ReadForbiddenPair(token, own, other, messageKey);
    else
        ReadForbiddenValue(token, own, messageKey);
}

void ClytDialogFile::ReadForbiddenPair(POSITION token, ClytCtrlValList& own, ClytCtrlValList& other,
                                       CString& messageKey)
{
    ReadValueList(token, own.GetValues());
    if (token == nullptr)
        return;
    Expect(Next(token).GetDelimiter() == '=', ClytDue::OtherSign);
    const ClytToken& name = NextOrFail(token, ClytDue::OtherControl);
    Expect(name.GetDelimiter() == '(', ClytDue::OtherControl);
    other.SetName(name.GetText(), PlaceOf(name));
    ReadValueList(token, other.GetValues());
    Expect(NextOrFail(token, ClytDue::MessageAfterList).GetDelimiter() == ':', ClytDue::MessageAfterList);
    messageKey = NextOrFail(token, ClytDue::MessageAfterList).GetText();
}

void ClytDialogFile::ReadForbiddenValue(POSITION token, ClytCtrlValList& own, CString& messageKey)
{
    const ClytToken& value = NextOrFail(token, ClytDue::ValueAfterSign);
    Expect(value.GetDelimiter() == ':' || lytMeans<ClytValueWord::Null>(value.GetText()), ClytDue::MessageAfterValue);
    own.GetValues().AddTail(value.GetText());
    messageKey = NextOrFail(token, ClytDue::MessageAfterValue).GetText();
}
