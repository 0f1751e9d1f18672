#include "lytcall/Options.h"

#include "lytcall/Words.h"

#include <algorithm>
#include <cctype>

namespace lytcall
{

namespace
{

template <class Form>
const Form* Find(const std::vector<Form>& forms, const std::string& word)
{
    const auto found = std::ranges::find_if(forms, [&](const Form& form) { return word == form.word; });
    return found != forms.end() ? &*found : nullptr;
}

template <class Form>
std::vector<std::string> WordsOf(const std::vector<Form>& forms)
{
    std::vector<std::string> words;
    for (const Form& form : forms)
        words.emplace_back(form.word);
    return words;
}

bool IsNumber(const std::string& text)
{
    const size_t sign = !text.empty() && text.front() == '-' ? 1 : 0;
    return text.size() > sign && text.size() < 10 &&
           std::all_of(text.begin() + static_cast<std::ptrdiff_t>(sign), text.end(),
                       [](unsigned char ch) { return std::isdigit(ch) != 0; });
}

const OptionForm& OptionOf(const std::string& word)
{
    const OptionForm* form = Find(OptionForms(), word);
    if (form == nullptr)
        throw UsageError("there is no option " + word + "; " + Suggestion(word, WordsOf(OptionForms())));
    return *form;
}

const CommandForm& CommandOf(const std::string& word)
{
    const CommandForm* form = Find(CommandForms(), word);
    if (form == nullptr)
        throw UsageError("there is no command \"" + word + "\"; " + Suggestion(word, WordsOf(CommandForms())));
    return *form;
}

void CheckOperands(const Request& request)
{
    const CommandForm& form = CommandOf(request.command);
    const std::string shape = std::string("write: lytcall ") + form.word + " " + form.operands;
    if (request.operands.size() < form.least)
        throw UsageError("something is missing behind \"" + request.command + "\"; " + shape);
    if (request.operands.size() > form.most)
        throw UsageError("\"" + request.operands[form.most] + "\" is one word too many; " + shape);
}

std::string Padded(std::string text, size_t width)
{
    text.append(text.size() < width ? width - text.size() : 1, ' ');
    return text;
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

std::string Request::Operand(size_t index, const std::string& otherwise) const
{
    return index < operands.size() ? operands[index] : otherwise;
}

Request ReadCommandLine(const std::vector<std::string>& words)
{
    Request request;
    bool optionsEnded = false;
    for (size_t index = 0; index < words.size(); ++index)
    {
        const std::string& word = words[index];
        if (!optionsEnded && word == "--")
            optionsEnded = true;
        else if (!optionsEnded && word.starts_with("--"))
        {
            const OptionForm& form = OptionOf(word);
            if (form.value != nullptr && index + 1 == words.size())
                throw UsageError("option " + word + " needs " + form.value + " behind it");
            const std::string value = form.value != nullptr ? words[++index] : "";
            if (form.number && !IsNumber(value))
                throw UsageError("option " + word + " needs a number and not \"" + value + "\"");
            request.Add(word, value);
        }
        else if (request.command.empty())
            request.command = word;
        else
            request.operands.push_back(word);
    }
    if (request.command.empty() || request.Has("--help"))
    {
        request.command = "help";
        return request;
    }
    CheckOperands(request);
    return request;
}

std::string HelpText()
{
    std::string text = "lytcall calls any function of lyt64.dll from a command line.\n\n"
                       "usage: lytcall COMMAND [OPERANDS] [OPTIONS]\n\ncommands:\n";
    for (const CommandForm& form : CommandForms())
        text += "  " + Padded(std::string(form.word) + " " + form.operands, 28) + form.meaning + "\n";
    text += "\noptions:\n";
    for (const OptionForm& form : OptionForms())
    {
        const std::string value = form.value != nullptr ? std::string(" ") + form.value : "";
        text += "  " + Padded(form.word + value, 28) + form.meaning + "\n";
    }
    text +=
        "\nResults are printed one a line, as \"name = value\", so that they can be compared. The program ends with 0\n"
        "when the call was made and its result is not 0, with 1 when it failed or answered 0 or when a step of the\n"
        "script failed, and with 2 when the command line or the script cannot be understood.\n\n"
        "`lytcall help script` lists the steps of a script.\n";
    return text;
}

} // namespace lytcall
