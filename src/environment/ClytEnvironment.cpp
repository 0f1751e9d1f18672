#include "environment/ClytEnvironment.h"

#include "environment/ClytException.h"
#include "environment/ProfileFile.h"

namespace
{

constexpr int textSize = 75;
constexpr int valueSize = 1024;

// A read that fails inside the class library is reported as an error of this program.
template <class Read>
CString Guarded(Read read)
{
    try
    {
        return read();
    }
    catch (CException* e)
    {
        lytRaiseInstead(ClytCaught(e), lytError("ReadingFailed"));
    }
}

} // namespace

void ClytEnvironment::AddDialogDefine(const CString& define)
{
    if (!dialogDefine.IsEmpty())
        dialogDefine += ',';
    dialogDefine += define;
}

CString ClytEnvironment::GetIniFileName() const
{
    const bool hasSeparator = !initPath.IsEmpty() && initPath[initPath.GetLength() - 1] == '\\';
    return initPath + (hasSeparator ? "lyt.ini" : "\\lyt.ini");
}

CString ClytEnvironment::GetLanguage() const
{
    return Guarded(
        [&] { return lytReadProfileText("global", "Current Language", lytNoValue, textSize, GetIniFileName()); });
}

CString ClytEnvironment::GetLanguageFileName() const
{
    return dialogPath + "\\lang\\" + GetLanguage() + ".nls";
}

CString ClytEnvironment::GetLogLevel() const
{
    return Guarded([&] { return lytReadProfileText("LogLevel", "level", "0", textSize, GetIniFileName()); });
}

CString ClytEnvironment::GetText(const char* section, const char* key, const CString& argument) const
{
    CString text =
        Guarded([&] { return lytReadProfileText(section, key, lytNoValue, textSize, GetLanguageFileName()); });
    const int mark = text.Find('\'');
    if (argument.IsEmpty() || mark < 0)
        return text;
    return text.Left(mark + 1) + argument + text.Mid(mark + 1);
}

CString ClytEnvironment::GetIniValue(const char* section, const char* key) const
{
    return lytReadProfileText(section, key, lytNoEntry, valueSize, GetIniFileName());
}

void ClytEnvironment::Reset()
{
    initPath.Empty();
    dialogPath.Empty();
    docName.Empty();
    lytWordVersions.Empty();
    lytOfficeRelease.Empty();
    lytOfficeVersion.Empty();
    lytReportLines.RemoveAll();
}
