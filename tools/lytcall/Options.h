// The command line of lytcall: one table of commands, one of options; reading and help follow from them.
#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <vector>

namespace lytcall
{

// A command line that cannot be understood; the text tells the way out.
class UsageError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

struct CommandForm
{
    const char* word;
    const char* operands; // as help shows them; those in brackets may be left out
    size_t least;         // how many must be there
    size_t most;
    const char* meaning;
};

struct OptionForm
{
    const char* word;
    const char* value; // what follows it; null for a switch
    bool number;
    const char* meaning;
};

const std::vector<CommandForm>& CommandForms();
const std::vector<OptionForm>& OptionForms();

// A command line that was understood.
class Request
{
public:
    std::string command;
    std::vector<std::string> operands;

    bool Has(const std::string& option) const { return m_options.contains(option); }
    // The value of an option that was given last, or what stands for it.
    std::string Text(const std::string& option, const std::string& otherwise) const;
    int Number(const std::string& option, int otherwise) const;
    // Every value of an option that may be given more than once, in order.
    std::vector<std::string> Texts(const std::string& option) const;
    std::string Operand(size_t index, const std::string& otherwise) const;
    void Add(const std::string& option, const std::string& value) { m_options[option].push_back(value); }

private:
    std::map<std::string, std::vector<std::string>> m_options;
};

// Reads a command line without the program's name. An empty one, `help` and `--help` give the command "help".
Request ReadCommandLine(const std::vector<std::string>& words);
// What --help prints.
std::string HelpText();

} // namespace lytcall
