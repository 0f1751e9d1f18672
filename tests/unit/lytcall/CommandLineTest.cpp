#include "lytcall/Commands.h"

#include <gtest/gtest.h>

using lytcall::Request;

namespace
{

Request ReadCommandLine(const std::vector<std::string>& words)
{
    return commandline::ReadCommandLine(lytcall::TheProgram(), words);
}

std::string Mistake(const std::vector<std::string>& words)
{
    try
    {
        ReadCommandLine(words);
    }
    catch (const commandline::UsageError& error)
    {
        return error.what();
    }
    return "read without complaint";
}

} // namespace

TEST(CommandLine, TellsCommandOperandsAndOptionsApart)
{
    const Request request = ReadCommandLine({"group", "--kind", "0", "a(b)", "--define", "X", "--define", "Y"});
    EXPECT_EQ(request.command, "group");
    EXPECT_EQ(request.operands, std::vector<std::string>{"a(b)"});
    EXPECT_EQ(request.Number("--kind", 1), 0);
    EXPECT_EQ(request.Texts("--define"), (std::vector<std::string>{"X", "Y"}));
    EXPECT_EQ(request.Text("--script", "none"), "none");
    EXPECT_EQ(request.Number("--size", 7), 7);
}

TEST(CommandLine, KeepsTheOrderOfOptions)
{
    std::string order;
    const Request request = ReadCommandLine({"--define", "X", "group", "--kind", "0", "--define", "Y"});
    for (const auto& [option, value] : request.InOrder())
        order += option + " " + value + ";";
    EXPECT_EQ(order, "--define X;--kind 0;--define Y;");
}

TEST(CommandLine, TheLastOfTwoValuesCounts)
{
    EXPECT_EQ(ReadCommandLine({"doc", "--size", "1", "--size", "-2"}).Number("--size", 0), -2);
}

TEST(CommandLine, OptionsEndAtTwoHyphens)
{
    const Request request = ReadCommandLine({"find", "--", "--key"});
    EXPECT_EQ(request.operands, std::vector<std::string>{"--key"});
}

TEST(CommandLine, NothingAndHelpAskForHelp)
{
    EXPECT_EQ(ReadCommandLine({}).command, "help");
    EXPECT_EQ(ReadCommandLine({"--help"}).command, "help");
    EXPECT_EQ(ReadCommandLine({"group", "a", "b", "--help"}).command, "help");
}

TEST(CommandLine, VersionIsAskedForAlone)
{
    EXPECT_EQ(ReadCommandLine({"--version"}).command, "version");
    EXPECT_EQ(ReadCommandLine({"--version", "--help"}).command, "version");
    EXPECT_EQ(commandline::VersionText(lytcall::TheProgram()), std::string("lytcall ") + LYT_VERSION + "\n");
}

TEST(CommandLine, MistakesTellTheWayOut)
{
    EXPECT_EQ(Mistake({"symbl"}), "there is no command \"symbl\"; did you mean \"symbol\"?");
    EXPECT_EQ(Mistake({"doc", "--scrpt", "x"}), "there is no option --scrpt; did you mean \"--script\"?");
    EXPECT_EQ(Mistake({"doc", "--script"}), "option --script needs FILE after it");
    EXPECT_EQ(Mistake({"doc", "--size", "big"}), "option --size needs a number and not \"big\"");
    EXPECT_EQ(Mistake({"find"}), "something is missing after \"find\"; write: lytcall find KEY");
    EXPECT_EQ(Mistake({"find", "a", "b"}), "\"b\" is one word too many; write: lytcall find KEY");
}

TEST(CommandLine, HelpNamesEveryCommandAndOption)
{
    const std::string help = commandline::HelpText(lytcall::TheProgram());
    for (const commandline::CommandForm& form : lytcall::TheProgram().commands)
        EXPECT_NE(help.find(form.word), std::string::npos) << form.word;
    for (const commandline::OptionForm& form : lytcall::TheProgram().options)
        EXPECT_NE(help.find(form.word), std::string::npos) << form.word;
}
