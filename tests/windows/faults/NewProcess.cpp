#include "NewProcess.h"

#include <gtest/gtest.h>

#include <array>
#include <sys/wait.h>
#include <unistd.h>

namespace
{

[[noreturn]] void Work(const std::function<std::string()>& work, int target)
{
    const std::string text = work();
    const bool isWritten = write(target, text.data(), text.size()) == static_cast<ssize_t>(text.size());
    _exit(isWritten ? 0 : 1);
}

std::string ReadAll(int source)
{
    std::string text;
    std::array<char, 4096> block{};
    for (ssize_t count = 0; (count = read(source, block.data(), block.size())) > 0;)
        text.append(block.data(), static_cast<size_t>(count));
    return text;
}

} // namespace

std::string InNewProcess(const std::function<std::string()>& work)
{
    int ends[2] = {};
    EXPECT_EQ(pipe(ends), 0);
    const pid_t process = fork();
    if (process == 0)
        Work(work, ends[1]);
    close(ends[1]);
    std::string text = ReadAll(ends[0]);
    close(ends[0]);
    int status = 0;
    waitpid(process, &status, 0);
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "status " << status;
    return text;
}
