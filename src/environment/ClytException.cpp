#include "environment/ClytException.h"

#include "environment/ClytEnvironment.h"

namespace
{

constexpr UINT messageSize = 75;

}

ClytException::ClytException(CString textSection, CString textKey, CString messagePrefix, CString textArgument)
    : section(std::move(textSection)),
      number(std::move(textKey)),
      prefix(std::move(messagePrefix)),
      argument(std::move(textArgument))
{
}

BOOL ClytException::GetErrorMessage(char* buffer, UINT size, UINT* /*helpContext*/) const
{
    CString message = lytEnvironment.GetText(section, number, argument);
    if (!prefix.IsEmpty())
        message = prefix + "\n" + message;
    return CopyMessage(message, buffer, size);
}

int ClytException::ReportError(UINT /*type*/, UINT /*help*/)
{
    return AfxMessageBox(lytMessageOf(*this));
}

void lytRaise(const char* number, const CString& prefix, const CString& argument)
{
    throw new ClytException(lytErrorSection, number, prefix, argument);
}

void lytRaiseInstead(ClytCaught failure, const char* number, const CString& argument)
{
    lytRaise(number, lytMessageOf(*failure), argument);
}

void lytReport(const char* number, const CString& prefix, const CString& argument)
{
    ClytException(lytErrorSection, number, prefix, argument).ReportError();
}

CString lytErrorText(const char* key)
{
    return lytEnvironment.GetText(lytErrorSection, key);
}

CString lytMessageOf(const CException& e)
{
    char message[messageSize] = "";
    e.GetErrorMessage(message, messageSize);
    return message;
}
