#include "environment/LogFile.h"

#include "base/Words.h"
#include "environment/ClytEnvironment.h"
#include "environment/ClytException.h"
#include "environment/LocalTime.h"

namespace
{

constexpr UINT logFlags =
    CFile::modeCreate | CFile::modeNoTruncate | CFile::modeWrite | CFile::shareDenyWrite | CFile::typeText;
static_assert(logFlags == 0x7021);

CString Rule()
{
    return CString('-', 77) + "\n";
}

CString Formatted(const char* format, const std::tm& time)
{
    char text[128] = "";
    const size_t length = std::strftime(text, sizeof text, format, &time);
    return {text, static_cast<int>(length)};
}

// Runs a step on the file. What it raises is raised again under the number, and the file is closed by then.
template <class Step>
void Guarded(CStdioFile& file, const char* number, const CString& logName, Step step)
{
    try
    {
        step();
    }
    catch (CException* e)
    {
        ClytCaught failure(e);
        file.Abort();
        lytRaiseInstead(std::move(failure), number, logName);
    }
}

CString Block(const char* message)
{
    const std::time_t now = std::time(nullptr);
    return "\n" + Rule() + lytLogBannerLine("START...  ", now) + Rule() + "\n" + message + "\n" + Rule() +
           lytLogBannerLine("END...    ", now) + "\n";
}

} // namespace

CString lytLogNameOf(const CString& docName)
{
    return docName.Left(docName.Find('.')) + ".log";
}

CString lytLogBannerLine(const char* word, std::time_t time)
{
    std::tm local = {};
    if (!lytLocalTimeOf(time, local))
        AfxThrowInvalidArgException();
    return word + CString("Date ") + Formatted("%x", local) + "           Time " + Formatted("%X", local) + "\n";
}

void lytWriteToLog(const char* message, int messageLevel)
{
    const int level = lytNumberOf(lytEnvironment.GetLogLevel());
    if (level == 0 || messageLevel > level)
        return;
    const CString logName = lytLogNameOf(lytEnvironment.GetDocName());
    CStdioFile file;
    CFileException error;
    if (!file.Open(logName, logFlags, &error))
        lytRaise(lytError("OpeningFailed"), lytMessageOf(error), logName);
    const CString block = Block(message);
    Guarded(file, lytError("WritingFailed"), logName,
            [&]
            {
                file.SeekToEnd();
                file.WriteString(block);
            });
    Guarded(file, lytError("ClosingFailed"), logName, [&] { file.Close(); });
}
