#include "Child.h"

#include "commandline/Program.h"
#include "commandline/WholeFile.h"

#include <windows.h>

#include <memory>

namespace
{

struct HandleCloser
{
    void operator()(HANDLE handle) const { CloseHandle(handle); }
};
using OwnedHandle = std::unique_ptr<void, HandleCloser>;

// Programs that are in it end with it.
OwnedHandle NewJob()
{
    OwnedHandle job(CreateJobObjectA(nullptr, nullptr));
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(job.get(), JobObjectExtendedLimitInformation, &limits, sizeof limits);
    return job;
}

// For a program that is to be started: it may inherit the handle.
OwnedHandle OpenForChild(const std::string& name, DWORD access, DWORD disposition)
{
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    return OwnedHandle(
        CreateFileA(name.c_str(), access, FILE_SHARE_READ | FILE_SHARE_WRITE, &inherited, disposition, 0, nullptr));
}

int WaitForEnd(std::string command, const std::string& folder, unsigned seconds, const std::string& outputFile)
{
    const OwnedHandle output = OpenForChild(outputFile, GENERIC_WRITE, CREATE_ALWAYS);
    const OwnedHandle input = OpenForChild("NUL", GENERIC_READ, OPEN_EXISTING);
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdInput = input.get();
    startup.hStdOutput = output.get();
    startup.hStdError = output.get();
    PROCESS_INFORMATION started = {};
    if (!CreateProcessA(nullptr, command.data(), nullptr, nullptr, TRUE, CREATE_SUSPENDED, nullptr, folder.c_str(),
                        &startup, &started))
        return -1;
    const OwnedHandle process(started.hProcess);
    const OwnedHandle thread(started.hThread);
    const OwnedHandle job = NewJob();
    AssignProcessToJobObject(job.get(), process.get());
    ResumeThread(thread.get());
    constexpr unsigned second = 1000;
    if (WaitForSingleObject(process.get(), commandline::Patience(seconds * second)) != WAIT_OBJECT_0)
    {
        TerminateProcess(process.get(), 1);
        return -1;
    }
    DWORD code = 0;
    GetExitCodeProcess(process.get(), &code);
    return static_cast<int>(code & 0x7FFFFFFFU);
}

} // namespace

ChildEnd RunChild(std::string command, const std::string& folder, unsigned seconds)
{
    const std::string outputFile = folder + "\\output";
    ChildEnd end;
    end.code = WaitForEnd(std::move(command), folder, seconds, outputFile);
    end.output = commandline::ReadWholeFile(outputFile).value_or("");
    return end;
}
