// Logs messages through the library, and may stop at any operation on the log.
//
//     log-writer FOLDER COUNT LETTER LENGTH [stop|pause|refuse N]
//
// The document is doc.rtf in the folder, in which lyt.ini is; each message is the letter, repeated. `stop` ends the
// process before the N-th operation of the C runtime on a file; `pause` sets the event lyt-log-paused there and waits for
// lyt-log-go; `refuse` answers the N-th closing of a file with a failure. Every exception that leaves a call is printed.
#include "lyt64.h"

#include "commandline/Program.h"
#include "environment/ClytException.h"
#include "support/ImportHook.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>

namespace
{

constexpr UINT stopped = 99;

enum class At
{
    nothing,
    stop,
    pause,
    refuse
};

At at = At::nothing;
int operationsLeft = 0;

HANDLE OpenEventOf(const char* name)
{
    return CreateEventA(nullptr, TRUE, FALSE, name);
}

void Pause()
{
    constexpr DWORD limit = 60000;
    SetEvent(OpenEventOf("lyt-log-paused"));
    WaitForSingleObject(OpenEventOf("lyt-log-go"), commandline::Patience(limit));
}

// Called before every operation.
void Reach()
{
    if (at == At::refuse || --operationsLeft != 0)
        return;
    if (at == At::stop)
        TerminateProcess(GetCurrentProcess(), stopped);
    else if (at == At::pause)
        Pause();
}

HANDLE WINAPI Create(LPCWSTR name, DWORD access, DWORD sharing, SECURITY_ATTRIBUTES* security, DWORD creation,
                     DWORD flags, HANDLE pattern)
{
    Reach();
    return CreateFileW(name, access, sharing, security, creation, flags, pattern);
}

BOOL WINAPI Write(HANDLE file, LPCVOID bytes, DWORD count, DWORD* written, OVERLAPPED* overlapped)
{
    Reach();
    return WriteFile(file, bytes, count, written, overlapped);
}

DWORD WINAPI Seek(HANDLE file, LONG low, LONG* high, DWORD from)
{
    Reach();
    return SetFilePointer(file, low, high, from);
}

BOOL WINAPI Close(HANDLE handle)
{
    Reach();
    return CloseHandle(handle);
}

int RefuseToClose(std::FILE* file)
{
    const int result = std::fclose(file);
    if (at != At::refuse || --operationsLeft != 0)
        return result;
    errno = ENOSPC;
    return EOF;
}

template <class Function>
Function* Get(HMODULE library, const char* name)
{
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

void Log(decltype(lytWriteToLogFile)* write, const std::string& message)
{
    try
    {
        write(message.c_str(), 1);
    }
    catch (ClytException* e)
    {
        char text[300] = "";
        e->GetErrorMessage(text, sizeof text);
        e->Delete();
        std::printf("%s\n", text);
    }
}

At WordOf(const char* word)
{
    return std::strcmp(word, "stop") == 0 ? At::stop : std::strcmp(word, "pause") == 0 ? At::pause : At::refuse;
}

} // namespace

int main(int count, char** words)
{
    const std::string folder = words[1];
    HMODULE library = LoadLibraryA("lyt64.dll");
    Get<decltype(lytInitialiseEnvironment)>(library, "lytInitialiseEnvironment")((folder + "\\doc.rtf").c_str(),
                                                                                 folder.c_str(), folder.c_str());
    HMODULE runtime = GetModuleHandleA("msvcrt.dll");
    const ImportHook create(runtime, "CreateFileW", Create);
    const ImportHook write(runtime, "WriteFile", Write);
    const ImportHook seek(runtime, "SetFilePointer", Seek);
    const ImportHook close(runtime, "CloseHandle", Close);
    const ImportHook closeStream(library, "fclose", RefuseToClose);
    if (count > 6)
    {
        operationsLeft = std::atoi(words[6]);
        at = WordOf(words[5]);
    }
    const std::string message(static_cast<size_t>(std::atoi(words[4])), *words[3]);
    auto* const writeToLog = Get<decltype(lytWriteToLogFile)>(library, "lytWriteToLogFile");
    for (int left = std::atoi(words[2]); left > 0; --left)
        Log(writeToLog, message);
    return 0;
}
