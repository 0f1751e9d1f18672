// Input parts, each a header with an optional name and its statements:
//
//     $INPUT, part
//     name : ( scan list = fill rule, ...                   cut a piece off and put it into controls
//     name : control (value, ...), ... = target, target     continue by what the controls hold
//     name : word = target                                  continue there; the word is ignored
//
// A reader finds its line in the token list and leaves the next one there.
#include "dlgfile/ClytDialogFile.h"

#include "base/Words.h"
#include "environment/ClytException.h"
#include "model/ClytInputPart.h"

namespace
{

constexpr const char* terminator = lytWordOf(ClytSection::Output);

// Failures of the class library while a part is read are reported as the program's own.
template <class Read>
void ReadGuarded(Read read)
{
    try
    {
        read();
    }
    catch (const ClytException*)
    {
        throw;
    }
    catch (CException* e)
    {
        lytRaiseInstead(ClytCaught(e), lytError("ReadingFailed"));
    }
}

} // namespace

int ClytDialogFile::ReadInputHeader(CString& name)
{
    name.Empty();
    // Empty only once the file has ended.
    if (tokens.IsEmpty())
        return 0;
    partPlace = GetStatementPlace();
    POSITION token = tokens.GetHeadPosition();
    const bool isLast = lytSameWord(Next(token).GetText(), terminator);
    if (token != nullptr)
        name = Next(token).GetText();
    if (isLast)
        return 0;
    return ReadStatement(
        [&]
        {
            ReadSectionLine(token, ClytLineKind::FirstInput);
            return 1;
        });
}

// A statement without a name is not kept, and what was read of it joins the next one.
void ClytDialogFile::ReadInputPart(ClytInputPart& part)
{
    part.span = partPlace;
    ReadGuarded(
        [&]
        {
            auto statement = std::make_unique<ClytDialogInput>();
            int goesOn = 1;
            while (goesOn != 0)
            {
                goesOn = ReadInputStatement(*statement);
                if (statement->name.IsEmpty())
                    continue;
                part.Add(std::move(statement));
                statement = std::make_unique<ClytDialogInput>();
            }
        });
}

int ClytDialogFile::ReadInputStatement(ClytDialogInput& statement)
{
    return ReadStatement(
        [&]
        {
            POSITION token = tokens.GetHeadPosition();
            if (token == nullptr)
                return ReadInputLine();
            const CString& word = tokens.GetHead().GetText();
            if (lytSameWord(word, lytWordOf(ClytSection::Input)) || lytSameWord(word, terminator))
                return 0;
            ReadInput(token, statement);
            return ReadInputLine();
        });
}

void ClytDialogFile::ReadInput(POSITION token, ClytDialogInput& statement)
{
    const ClytToken& name = Next(token);
    Expect(name.GetDelimiter() == ':', ClytDue::StatementSign);
    statement.name = name.GetText();
    statement.span = GetStatementPlace();
    POSITION form = token;
    const ClytToken& first = NextOrFail(form, ClytDue::InputStatement);
    if (first.IsBare('('))
        ReadScanRule(form, statement.scanRule);
    else if (first.GetDelimiter() == '=')
        ReadTargets(token, statement, ClytDue::Target);
    else
        ReadInputConditions(token, statement);
}

int ClytDialogFile::ReadInputLine()
{
    POSITION token = nullptr;
    return ReadSectionLine(token, ClytLineKind::Input);
}

void ClytDialogFile::ReadInputConditions(POSITION token, ClytDialogInput& statement)
{
    char end = '\0';
    while (end != '=')
    {
        const ClytToken& control = NextOrFail(token, ClytDue::TargetsSign);
        if (control.GetText().IsEmpty())
            continue;
        ClytCtrlValList& condition =
            statement.conditions.AddTail(std::make_unique<ClytCtrlValList>(control.GetText(), PlaceOf(control)));
        end = control.GetDelimiter();
        const ClytDue due = end == '(' ? ClytDue::ListSeparator : ClytDue::TargetsSign;
        while (end != ')')
        {
            const ClytToken& value = NextOrFail(token, due);
            condition.GetValues().AddTail(value.GetText());
            end = value.GetDelimiter();
        }
        end = NextOrFail(token, ClytDue::TargetsSign).GetDelimiter();
    }
    ReadTargets(token, statement, ClytDue::Targets);
}

void ClytDialogFile::ReadTargets(POSITION token, ClytDialogInput& statement, ClytDue due)
{
    statement.trueTarget.name = NextOrFail(token, due).GetText();
    statement.falseTarget.name = NextOrFail(token, due).GetText();
}
