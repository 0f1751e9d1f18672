// A run of a command inside the test: its exit code and what it prints.
#pragma once

#include "lytdlg/Commands.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <ostream>

struct CommandRun
{
    explicit CommandRun(const std::vector<std::string>& words)
    {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        code = lytdlg::Run(words);
        errors = testing::internal::GetCapturedStderr();
        output = testing::internal::GetCapturedStdout();
    }
    explicit CommandRun(int expectedCode, std::string expectedOutput = "", std::string expectedErrors = "")
        : code(expectedCode), output(std::move(expectedOutput)), errors(std::move(expectedErrors))
    {
    }

    bool operator==(const CommandRun&) const = default;

    int code = 0;
    std::string output;
    std::string errors;
};

inline std::ostream& operator<<(std::ostream& out, const CommandRun& run)
{
    return out << "exit code " << run.code << "\noutput:\n" << run.output << "errors:\n" << run.errors;
}
