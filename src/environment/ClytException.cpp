#include "environment/ClytException.h"

#include "environment/ClytEnvironment.h"

namespace
{

constexpr UINT messageSize = 75;

}

ClytPrefix ClytPrefix::OfKey(const char* key)
{
    ClytPrefix prefix(key);
    prefix.isKey = true;
    return prefix;
}

CString ClytPrefix::Worded() const
{
    return isKey ? lytEnvironment.GetText(lytErrorSection, text) : text;
}

ClytException::ClytException(CString textSection, CString textKey, ClytPrefix messagePrefix, CString textArgument)
    : section(std::move(textSection)),
      number(std::move(textKey)),
      prefix(std::move(messagePrefix)),
      argument(std::move(textArgument))
{
}

BOOL ClytException::GetErrorMessage(char* buffer, UINT size, UINT* /*helpContext*/) const
{
    CString message = lytEnvironment.GetText(section, number, argument);
    if (const CString above = prefix.Worded(); !above.IsEmpty())
        message = above + "\n" + message;
    return CopyMessage(message, buffer, size);
}

int ClytException::ReportError(UINT /*type*/, UINT /*help*/)
{
    return AfxMessageBox(lytMessageOf(*this));
}

void lytRaise(const char* number, const ClytPrefix& prefix, const CString& argument)
{
    throw new ClytException(lytErrorSection, number, prefix, argument);
}

void lytRaiseInstead(ClytCaught failure, const char* number, const CString& argument)
{
    lytRaise(number, lytMessageOf(*failure), argument);
}

void lytReport(const char* number, const ClytPrefix& prefix, const CString& argument)
{
    ClytException(lytErrorSection, number, prefix, argument).ReportError();
}

CString lytMessageOf(const CException& e)
{
    char message[messageSize] = "";
    e.GetErrorMessage(message, messageSize);
    return message;
}
