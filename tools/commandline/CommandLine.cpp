#include "commandline/CommandLine.h"

#include <algorithm>
#include <cctype>
#include <numeric>

namespace commandline
{

namespace
{

constexpr size_t helpColumn = 28;

template <class Form>
const Form* Find(const std::vector<Form>& forms, const std::string& word)
{
    const auto found = std::ranges::find_if(forms, [&](const Form& form) { return word == form.word; });
    return found != forms.end() ? &*found : nullptr;
}

template <class Form>
void AddWords(const std::vector<Form>& forms, std::vector<std::string>& words)
{
    for (const Form& form : forms)
        words.emplace_back(form.word);
}

bool IsNumber(const std::string& text)
{
    const size_t sign = !text.empty() && text.front() == '-' ? 1 : 0;
    return text.size() > sign && text.size() < 10 &&
           std::all_of(text.begin() + static_cast<std::ptrdiff_t>(sign), text.end(),
                       [](unsigned char ch) { return std::isdigit(ch) != 0; });
}

const CommandForm& CommandOf(const ProgramForm& program, const std::string& word)
{
    if (const CommandForm* form = Find(program.commands, word))
        return *form;
    std::vector<std::string> known;
    AddWords(program.commands, known);
    throw UsageError("there is no command \"" + word + "\"; " + Suggestion(word, known));
}

// Options may come before the command, so until it is known the options of all commands are allowed.
const OptionForm& OptionOf(const ProgramForm& program, const std::string& command, const std::string& word)
{
    if (const OptionForm* form = Find(program.options, word))
        return *form;
    std::vector<std::string> known;
    AddWords(program.options, known);
    for (const CommandForm& candidate : program.commands)
    {
        if (!command.empty() && command != candidate.word)
            continue;
        if (const OptionForm* form = Find(candidate.options, word))
            return *form;
        AddWords(candidate.options, known);
    }
    throw UsageError("there is no option " + word + "; " + Suggestion(word, known));
}

std::string Padded(std::string text)
{
    text.append(text.size() < helpColumn ? helpColumn - text.size() : 1, ' ');
    return text;
}

std::string HelpLine(const CommandForm& form)
{
    return "  " + Padded(std::string(form.word) + " " + form.operands) + form.meaning + "\n";
}

std::string HelpLines(const std::vector<OptionForm>& forms)
{
    std::string text;
    for (const OptionForm& form : forms)
    {
        const std::string value = form.value != nullptr ? std::string(" ") + form.value : "";
        text += "  " + Padded(form.word + value) + form.meaning + "\n";
    }
    return text;
}

// The words of a command line, one after the other.
class Reader
{
public:
    Reader(const ProgramForm& form, const std::vector<std::string>& commandWords)
        : m_program(form), m_words(commandWords)
    {
    }

    Request Read()
    {
        while (m_next < m_words.size())
        {
            const std::string& word = m_words[m_next++];
            if (!m_optionsEnded && word == "--")
                m_optionsEnded = true;
            else if (!m_optionsEnded && IsOption(word))
                TakeOption(word);
            else if (m_request.command.empty())
                m_request.command = word;
            else
                m_request.operands.push_back(word);
        }
        if (m_request.Has(versionOption.word))
            return VersionRequest();
        if (m_request.command.empty() || m_request.Has("--help"))
            return HelpRequest();
        CheckOptions();
        CheckOperands();
        return std::move(m_request);
    }

private:
    // An option of one letter is one only where the table has it: an operand may begin with a hyphen.
    bool IsOption(const std::string& word) const
    {
        return word.starts_with("--") || Find(m_program.options, word) != nullptr ||
               std::ranges::any_of(m_program.commands,
                                   [&](const CommandForm& form) { return Find(form.options, word) != nullptr; });
    }

    void TakeOption(const std::string& word)
    {
        const OptionForm& form = OptionOf(m_program, m_request.command, word);
        if (form.value != nullptr && m_next == m_words.size())
            throw UsageError("option " + word + " needs " + form.value + " after it");
        const std::string value = form.value != nullptr ? m_words[m_next++] : "";
        if (form.number && !IsNumber(value))
            throw UsageError("option " + word + " needs a number and not \"" + value + "\"");
        m_request.Add(word, value);
        m_taken.push_back(word);
    }

    Request HelpRequest() const
    {
        Request help;
        help.command = "help";
        if (!m_request.command.empty() && m_request.command != help.command)
            help.operands.push_back(m_request.command);
        return help;
    }

    static Request VersionRequest()
    {
        Request version;
        version.command = "version";
        return version;
    }

    void CheckOptions() const
    {
        for (const std::string& word : m_taken)
            OptionOf(m_program, m_request.command, word);
    }

    void CheckOperands() const
    {
        const CommandForm& form = CommandOf(m_program, m_request.command);
        const std::string shape = std::string("write: ") + m_program.name + " " + form.word + " " + form.operands;
        if (m_request.operands.size() < form.least)
            throw UsageError("something is missing after \"" + m_request.command + "\"; " + shape);
        if (m_request.operands.size() > form.most)
            throw UsageError("\"" + m_request.operands[form.most] + "\" is one word too many; " + shape);
    }

    const ProgramForm& m_program;
    const std::vector<std::string>& m_words;
    size_t m_next = 0;
    bool m_optionsEnded = false;
    Request m_request;
    std::vector<std::string> m_taken;
};

// The number of letters to change, add, drop or swap with their neighbour.
size_t Distance(const std::string& left, const std::string& right)
{
    std::vector<std::vector<size_t>> cost(left.size() + 1, std::vector<size_t>(right.size() + 1));
    for (size_t row = 0; row <= left.size(); ++row)
        cost[row][0] = row;
    std::iota(cost[0].begin(), cost[0].end(), size_t{0});
    for (size_t row = 1; row <= left.size(); ++row)
    {
        for (size_t column = 1; column <= right.size(); ++column)
        {
            const size_t change = left[row - 1] == right[column - 1] ? 0 : 1;
            size_t best =
                std::min({cost[row - 1][column] + 1, cost[row][column - 1] + 1, cost[row - 1][column - 1] + change});
            if (row > 1 && column > 1 && left[row - 1] == right[column - 2] && left[row - 2] == right[column - 1])
                best = std::min(best, cost[row - 2][column - 2] + 1);
            cost[row][column] = best;
        }
    }
    return cost[left.size()][right.size()];
}

} // namespace

std::string Request::Text(const std::string& option, const std::string& otherwise) const
{
    const auto found = m_options.find(option);
    return found != m_options.end() ? found->second.back() : otherwise;
}

int Request::Number(const std::string& option, int otherwise) const
{
    return Has(option) ? std::stoi(Text(option, "")) : otherwise;
}

std::vector<std::string> Request::Texts(const std::string& option) const
{
    const auto found = m_options.find(option);
    return found != m_options.end() ? found->second : std::vector<std::string>();
}

void Request::Add(const std::string& option, const std::string& value)
{
    m_options[option].push_back(value);
    m_inOrder.push_back({option, value});
}

std::string Request::Operand(size_t index, const std::string& otherwise) const
{
    return index < operands.size() ? operands[index] : otherwise;
}

Request ReadCommandLine(const ProgramForm& program, const std::vector<std::string>& words)
{
    return Reader(program, words).Read();
}

bool AsksDoctorForJson(const std::vector<std::string>& words)
{
    const std::vector<std::string> asked = {"--format", "json"};
    return !words.empty() && words.front() == "doctor" &&
           std::search(words.begin(), words.end(), std::begin(asked), std::end(asked)) != words.end();
}

const OptionForm versionOption = {"--version", nullptr, false, "print the version"};

const char* const projectVersion = LYT_VERSION;

std::string VersionText(const ProgramForm& program)
{
    return std::string(program.name) + " " + projectVersion + "\n";
}

std::string HelpText(const ProgramForm& program)
{
    std::string text =
        std::string(program.purpose) + "\n\nusage: " + program.name + " COMMAND [OPERANDS] [OPTIONS]\n\ncommands:\n";
    for (const CommandForm& form : program.commands)
        text += HelpLine(form);
    return text + "\noptions:\n" + HelpLines(program.options) + "\n" + program.remarks;
}

std::string HelpText(const ProgramForm& program, const std::string& command)
{
    const CommandForm& form = CommandOf(program, command);
    const std::string operands = *form.operands != '\0' ? std::string(" ") + form.operands : "";
    const std::string text =
        std::string("usage: ") + program.name + " " + form.word + operands + "\n\n" + form.meaning + "\n\noptions:\n";
    return text + HelpLines(form.options) + HelpLines(program.options);
}

bool IsClose(const std::string& word, const std::string& known)
{
    return Distance(word, known) <= std::max<size_t>(1, word.size() / 3);
}

std::string Nearest(const std::string& word, const std::vector<std::string>& known)
{
    const auto nearest =
        std::ranges::min_element(known, {}, [&](const std::string& candidate) { return Distance(word, candidate); });
    return nearest != known.end() && IsClose(word, *nearest) ? *nearest : "";
}

std::string Suggestion(const std::string& word, const std::vector<std::string>& known)
{
    const std::string nearest = Nearest(word, known);
    if (!nearest.empty())
        return "did you mean \"" + nearest + "\"?";

    std::string list;
    for (const std::string& candidate : known)
        list += (list.empty() ? "" : ", ") + candidate;
    return "use one of: " + list;
}

} // namespace commandline
