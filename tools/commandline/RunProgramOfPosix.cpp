#include "commandline/Program.h"

#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace commandline
{

int RunProgram(const std::vector<std::string>& words)
{
    std::vector<std::string> kept = words;
    std::vector<char*> arguments;
    for (std::string& word : kept)
        arguments.push_back(word.data());
    arguments.push_back(nullptr);
    pid_t program = 0;
    int status = 0;
    if (posix_spawnp(&program, arguments.front(), nullptr, nullptr, arguments.data(), environ) != 0 ||
        waitpid(program, &status, 0) != program)
        return -1;
    constexpr int notStarted = 127;
    const int code = WIFEXITED(status) ? WEXITSTATUS(status) : 1;
    return code != notStarted ? code : -1;
}

std::string WordOfMain(const std::string& word)
{
    return word;
}

} // namespace commandline
