#include "support/ChildProcess.h"

#include "commandline/Program.h"

#include <gtest/gtest.h>

ChildProcess::ChildProcess(std::string command)
{
    SECURITY_ATTRIBUTES inherited = {sizeof inherited, nullptr, TRUE};
    const std::string file = m_folder.File("output");
    m_output = CreateFileA(file.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited, CREATE_ALWAYS, 0, nullptr);
    STARTUPINFOA startup = {};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES;
    startup.hStdOutput = m_output;
    EXPECT_TRUE(
        CreateProcessA(nullptr, command.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &startup, &m_process))
        << command;
}

ChildProcess::~ChildProcess()
{
    for (HANDLE handle : {m_process.hThread, m_process.hProcess, m_output})
        CloseHandle(handle);
}

ChildEnd ChildProcess::Wait() const
{
    constexpr DWORD limit = 60000;
    EXPECT_EQ(WaitForSingleObject(m_process.hProcess, commandline::Patience(limit)), WAIT_OBJECT_0);
    ChildEnd end;
    GetExitCodeProcess(m_process.hProcess, &end.code);
    end.output = m_folder.Read("output");
    return end;
}
