// The command line of a tool: a table of commands and options that reading and help both follow from.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace commandline
{

// A command line that cannot be understood; the text tells the way out.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

struct OptionForm
{
    const char* word;
    const char* value; // what follows it; null for a switch
    bool number;
    const char* meaning;
};

struct CommandForm
{
    const char* word;
    const char* operands; // as help shows them; those in brackets may be left out
    size_t least;         // how many must be there
    size_t most;
    const char* meaning;
    std::vector<OptionForm> options = {}; // of this command alone
};

struct ProgramForm
{
    const char* name;
    const char* purpose; // a sentence
    std::vector<CommandForm> commands;
    std::vector<OptionForm> options; // those that every command takes
    const char* remarks;             // what help ends with
};

// A command line that was understood.
class Request
{
public:
    std::string command;
    std::vector<std::string> operands;

    bool Has(const std::string& option) const { return m_options.contains(option); }
    // The value of an option that was given last, or the other text without one.
    std::string Text(const std::string& option, const std::string& otherwise) const;
    int Number(const std::string& option, int otherwise) const;
    // Every value of an option that may be given more than once, in order.
    std::vector<std::string> Texts(const std::string& option) const;
    std::string Operand(size_t index, const std::string& otherwise) const;
    // Every option with its value as given, in the order of the command line.
    struct Given
    {
        std::string option;
        std::string value;
    };
    const std::vector<Given>& InOrder() const { return m_inOrder; }
    void Add(const std::string& option, const std::string& value);

private:
    std::map<std::string, std::vector<std::string>> m_options;
    std::vector<Given> m_inOrder;
};

// Reads a command line without the program's name. An empty one, `help` and `--help` give the command "help"; after a
// command, `--help` gives it with that command as its operand. `--version` gives the command "version".
Request ReadCommandLine(const ProgramForm& program, const std::vector<std::string>& words);
// Whether a command line asks for JSON of `doctor`, also one that cannot be understood.
bool AsksDoctorForJson(const std::vector<std::string>& words);
// What help prints: for the program, or for the command of that name.
std::string HelpText(const ProgramForm& program);
std::string HelpText(const ProgramForm& program, const std::string& command);
// The version of the project, such as 1.0.0.
extern const char* const projectVersion;
// What `--version` prints, for every program that has this option: its name and the version of the project.
extern const OptionForm versionOption;
std::string VersionText(const ProgramForm& program);

// Whether a few letters changed, added, dropped or swapped make one word of the other.
bool IsClose(const std::string& word, const std::string& known);
// The known word that is close, or an empty text.
std::string Nearest(const std::string& word, const std::vector<std::string>& known);
// "did you mean ...?" when one of the known words is close, else a list of them all.
std::string Suggestion(const std::string& word, const std::vector<std::string>& known);

} // namespace commandline
