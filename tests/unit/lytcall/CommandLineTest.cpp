#include "lytcall/Commands.h"
#include "support/Cases.h"

#include <sstream>

using lytcall::Request;

namespace
{

// The words of the line are separated by blanks.
Request RequestOf(const std::string& line)
{
    std::istringstream words(line);
    return ReadCommandLine(lytcall::TheProgram(), {std::istream_iterator<std::string>(words), {}});
}

// The command, its operands in brackets and its options in their order; or what is wrong.
std::string ReadLine(const std::string& line)
{
    try
    {
        const Request request = RequestOf(line);
        std::string text = request.command;
        for (const std::string& operand : request.operands)
            text += " [" + operand + "]";
        for (const auto& [option, value] : request.InOrder())
            text += " " + option + "=" + value;
        return text;
    }
    catch (const commandline::UsageError& error)
    {
        return error.what();
    }
}

} // namespace

TEST(CommandLine, IsACommandWithOperandsAndOptions)
{
    ExpectEach(ReadLine, {
                             {"group --kind 0 a(b) --define X", "group [a(b)] --kind=0 --define=X"},
                             {"--define X group --kind 0 --define Y", "group --define=X --kind=0 --define=Y"},
                             {"find -- --key", "find [--key]"},
                             {"", "help"},
                             {"--help", "help"},
                             {"group a b --help", "help [group]"},
                             {"--version", "version"},
                             {"--version --help", "version"},
                             {"symbl", "there is no command \"symbl\"; did you mean \"symbol\"?"},
                             {"doc --scrpt x", "there is no option --scrpt; did you mean \"--script\"?"},
                             {"doc --script", "option --script needs FILE after it"},
                             {"doc --size big", "option --size needs a number and not \"big\""},
                             {"find", "something is missing after \"find\"; write: lytcall find KEY"},
                             {"find a b", "\"b\" is one word too many; write: lytcall find KEY"},
                         });
}

TEST(CommandLine, GivesTheValuesOfItsOptions)
{
    const Request request = RequestOf("doc --size 1 --size -2 --define X --define Y");
    EXPECT_EQ(request.Number("--size", 0), -2) << "the last counts";
    EXPECT_EQ(request.Number("--kind", 7), 7);
    EXPECT_EQ(request.Text("--script", "none"), "none");
    EXPECT_EQ(request.Texts("--define"), (std::vector<std::string>{"X", "Y"}));
}

TEST(CommandLine, IsExplainedByVersionAndHelp)
{
    EXPECT_EQ(commandline::VersionText(lytcall::TheProgram()), std::string("lytcall ") + LYT_VERSION + "\n");
    const std::string help = commandline::HelpText(lytcall::TheProgram());
    for (const commandline::CommandForm& form : lytcall::TheProgram().commands)
        EXPECT_NE(help.find(form.word), std::string::npos) << form.word;
    for (const commandline::OptionForm& form : lytcall::TheProgram().options)
        EXPECT_NE(help.find(form.word), std::string::npos) << form.word;
}
