#include "environment/ClytLogFile.h"

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

} // namespace

CString lytLogNameOf(const CString& docName)
{
    return docName.Left(docName.Find('.')) + ".log";
}

CString lytLogBannerLine(const char* word, std::time_t time)
{
    std::tm local = {};
    if (!LocalTimeOf(time, local))
        AfxThrowInvalidArgException();
    return word + CString("Date ") + Formatted("%x", local) + "           Time " + Formatted("%X", local) + "\n";
}

int ClytLogFile::CurrentLevel()
{
    return lytNumberOf(lytEnvironment.GetLogLevel());
}

void ClytLogFile::Open(int currentLevel)
{
    logName = lytEnvironment.GetDocName();
    level = currentLevel;
    if (level == 0)
        return;

    logName = lytLogNameOf(logName);
    CFileException error;
    if (!CStdioFile::Open(logName, logFlags, &error))
        lytRaise("207", lytMessageOf(error), logName);
    block.Empty();
    Add("\n" + Rule() + BannerLine("START...  ") + Rule() + "\n");
}

void ClytLogFile::Write(const char* text, int messageLevel)
{
    if (level != 0 && messageLevel <= level)
        Add(text);
}

void ClytLogFile::Close()
{
    if (level == 0)
        return;
    Add("\n" + Rule() + BannerLine("END...    ") + "\n");
    Guarded(*this, "208", logName,
            [&]
            {
                WriteString(block);
                // A stream that holds text back writes it now.
                SeekToEnd();
            });
    Guarded(*this, "209", logName, [&] { CStdioFile::Close(); });
}

void ClytLogFile::Reset()
{
    logName.Empty();
    block.Empty();
}

CString ClytLogFile::BannerLine(const char* word)
{
    try
    {
        return lytLogBannerLine(word, std::time(nullptr));
    }
    catch (CException*)
    {
        Abort();
        throw;
    }
}

// Looks for the end of the file each time, which tells early that there is none.
void ClytLogFile::Add(const char* text)
{
    Guarded(*this, "208", logName, [&] { SeekToEnd(); });
    block += text;
}
