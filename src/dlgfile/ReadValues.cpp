// Statements of the values section:
//
//     name = value
//     name = keyword, value, ...
//
// `=`, `:`, commas and round brackets all separate alike.
#include "dlgfile/ClytDialogFile.h"

int ClytDialogFile::ReadValueStatement(CString& name, CString& keyword, CStringList& values)
{
    name.Empty();
    keyword.Empty();
    values.RemoveAll();

    return ReadStatement(
        [&]
        {
            POSITION token = nullptr;
            if (ReadSectionLine(token, ClytLineKind::Values) == 0)
                return 0;
            if (token == nullptr)
                return 1;
            Expect(tokens.GetCount() != 1, ClytDue::Value);

            name = Next(token).GetText();
            if (tokens.GetCount() > 2)
                keyword = Next(token).GetText();
            while (token != nullptr)
                values.AddTail(Next(token).GetText());
            return 1;
        });
}
