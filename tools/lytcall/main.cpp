// lytcall: calls any function of lyt64.dll from a command line, for trying descriptions out and for unattended checks.
#include "commandline/Program.h"
#include "commandline/Text.h"
#include "lytcall/Commands.h"
#include "lytcall/ReportText.h"
#include "lytcall/Session.h"
#include "script/Script.h"

#include <cstdio>
#include <exception>

namespace
{

enum ExitCode
{
    done = 0,
    callFailed = 1,
    notUnderstood = 2
};

constexpr const char* scriptRemarks =
    "A step waits until it can be taken, at most as long as --limit says; one that cannot ends the call with a\n"
    "message that tells file, line and column, the reason and the way out.\n";

int Tell(const std::exception& error, ExitCode code)
{
    std::fflush(stdout);
    std::fprintf(stderr, "lytcall: %s\n", commandline::Printable(error.what()).c_str());
    return code;
}

// Nothing was judged. Programs that have asked for JSON get that as JSON.
void TellRefusal(const std::vector<std::string>& words, const std::exception& error)
{
    if (commandline::AsksDoctorForJson(words))
        std::printf("%s", lytcall::JsonOfRefusal(error.what()).c_str());
}

int JudgeDeployment(const std::vector<std::string>& words)
{
    try
    {
        return lytcall::RunDoctor(words);
    }
    catch (const lytcall::CallError& error)
    {
        TellRefusal(words, error);
        return Tell(error, notUnderstood);
    }
}

int Run(const std::vector<std::string>& words)
{
    const lytcall::Request request = commandline::ReadCommandLine(lytcall::TheProgram(), words);
    if (request.command == "help")
    {
        std::printf("%s", (request.Operand(0, "") == "script" ? script::Help() + scriptRemarks
                                                              : commandline::HelpText(lytcall::TheProgram()))
                              .c_str());
        return done;
    }
    if (request.command == "version")
    {
        std::printf("%s", commandline::VersionText(lytcall::TheProgram()).c_str());
        return done;
    }
    if (request.command == "report" && request.Has("--diff"))
        return lytcall::CompareSavedReports(request) ? done : callFailed;
    if (request.command == "report" && request.Has("--redact") && lytcall::RedactSavedReport(request))
        return done;
    if (request.command == "doctor")
        return JudgeDeployment(words);
    const lytcall::Session session(request);
    return lytcall::RunCommand(session) != 0 ? done : callFailed;
}

// What is raised becomes an error line and an exit code.
int RunOrTell(const std::vector<std::string>& words)
{
    try
    {
        return Run(words);
    }
    catch (const script::FileError& error)
    {
        return Tell(error, notUnderstood);
    }
    catch (const commandline::UsageError& error)
    {
        TellRefusal(words, error);
        Tell(error, notUnderstood);
        std::fprintf(stderr, "`lytcall --help` lists commands and options.\n");
        return notUnderstood;
    }
    catch (const std::exception& error)
    {
        return Tell(error, callFailed);
    }
    catch (...)
    {
        // The log and the text lookup raise the library's own kind of exception, which no other module knows.
        std::fflush(stdout);
        std::fprintf(stderr, "lytcall: the library raised an exception; is the folder of the document writable?\n");
        return callFailed;
    }
}

} // namespace

int main(int count, char** words)
{
    SetConsoleOutputCP(CP_UTF8);
    return commandline::Finish("lytcall", RunOrTell({words + 1, words + count}));
}
