// Another program that runs beside the test, with its output kept in a file of a folder of the test.
#pragma once

#include "support/TestFolder.h"

#include <windows.h>

#include <string>

struct ChildEnd
{
    DWORD code = 0;
    std::string output;
};

class ChildProcess
{
public:
    // A command line of a program beside the test.
    explicit ChildProcess(std::string command);
    ChildProcess(const ChildProcess&) = delete;
    ChildProcess& operator=(const ChildProcess&) = delete;
    ~ChildProcess();

    // Waits for its end; the test fails when that takes longer than a minute.
    ChildEnd Wait() const;

private:
    TestFolder m_folder;
    HANDLE m_output;
    PROCESS_INFORMATION m_process = {};
};
