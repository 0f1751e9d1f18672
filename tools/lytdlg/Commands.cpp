#include "lytdlg/Commands.h"

#include "commandline/Text.h"
#include "lytdlg/doctor/Diagnosis.h"

#include <afx.h>

#include <algorithm>
#include <cstdio>

namespace lytdlg
{

namespace
{

ExitCode Help(const Request& request)
{
    const std::string command = request.Operand(0, "");
    const std::string text = command.empty() ? HelpText(TheProgram()) : HelpText(TheProgram(), command);
    std::fputs(text.c_str(), stdout);
    return good;
}

Command HelpCommand()
{
    return {{"help", "[COMMAND]", 0, 1, "this text, or the options of a command"}, Help};
}

int Tell(const char* text, ExitCode code)
{
    TellError(text);
    return code;
}

} // namespace

const std::vector<Command>& Commands()
{
    static const std::vector<Command> commands = {
        CheckCommand(),   RunCommand(),   ScanCommand(),   ComposeCommand(), RoundtripCommand(),
        WhyCommand(),     TestCommand(),  FmtCommand(),    TextsCommand(),   NewCommand(),
        PreviewCommand(), GraphCommand(), DoctorCommand(), LspCommand(),     HelpCommand(),
    };
    return commands;
}

const commandline::ProgramForm& TheProgram()
{
    static const commandline::ProgramForm form = []
    {
        commandline::ProgramForm made = {
            "lytdlg",
            "lytdlg checks, runs, tests and draws dialogs without a word processor.",
            {},
            {{"--help", nullptr, false, "print this text, or after a command its options"}, commandline::versionOption},
            "The program ends with 0 when all is well, with 1 when there is something to look at (findings,\n"
            "differences, a dialog that was refused), and with 2 when the command line cannot be understood.\n"};
        for (const Command& command : Commands())
            made.commands.push_back(command.form);
        return made;
    }();
    return form;
}

void TellError(const std::string& text)
{
    std::fflush(stdout);
    std::fprintf(stderr, "lytdlg: %s\n", commandline::Printable(text).c_str());
}

int Run(const std::vector<std::string>& words)
{
    try
    {
        const Request request = ReadCommandLine(TheProgram(), words);
        if (request.command == "version")
        {
            std::fputs(VersionText(TheProgram()).c_str(), stdout);
            return good;
        }
        const auto command = std::ranges::find_if(Commands(), [&](const Command& candidate)
                                                  { return request.command == candidate.form.word; });
        return command->run(request);
    }
    catch (const commandline::UsageError& error)
    {
        if (commandline::AsksDoctorForJson(words))
            PrintRefusalAsJson(error.what());
        Tell(error.what(), notUnderstood);
        std::fprintf(stderr, "`lytdlg --help` lists commands and options.\n");
        return notUnderstood;
    }
    catch (const std::exception& error)
    {
        return Tell(error.what(), found);
    }
    catch (CException* e)
    {
        CString message;
        e->GetErrorMessage(message.GetBuffer(1024), 1024);
        message.ReleaseBuffer();
        e->Delete();
        return Tell(message.GetString(), found);
    }
}

} // namespace lytdlg
