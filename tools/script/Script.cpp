#include "script/Script.h"

#include "commandline/CommandLine.h"
#include "commandline/Text.h"

#include <algorithm>
#include <cctype>

namespace script
{

namespace
{

const std::vector<std::string> typeWords = {"edit",  "text",  "button", "check", "option", "list",
                                            "combo", "group", "tree",   "ok",    "cancel"};
const std::vector<std::string> stateWords = {"enabled", "disabled", "visible",   "shown",
                                             "hidden",  "checked",  "unchecked", "focused"};

bool IsNumber(const std::string& text)
{
    return !text.empty() && text.size() < 7 &&
           std::ranges::all_of(text, [](unsigned char ch) { return std::isdigit(ch) != 0; });
}

void CheckWord(const LineReader& line, const std::string& word, const std::string& what,
               const std::vector<std::string>& known)
{
    if (std::ranges::find(known, word) == known.end())
        line.Fail("there is no " + what + " \"" + word + "\"; " + commandline::Suggestion(word, known));
}

Target ReadTarget(LineReader& line, Player player)
{
    if (line.IsAtQuote())
        return {TargetKind::Caption, line.Word("a control")};
    const std::string word = line.IsAtEnd() ? line.PlainWord() : line.Word("a control");
    if (word == "focus")
        return {};

    const size_t digits = word.find_last_not_of("0123456789") + 1;
    const std::string name = word.substr(0, digits);
    const std::string number = word.substr(digits);
    const bool isType = name == "#" ? !number.empty() : std::ranges::find(typeWords, name) != typeWords.end();
    const bool isCounted = number.empty() || (IsNumber(number) && std::stoul(number) != 0);
    if (player == Player::OfDescriptions && !(isType && isCounted))
        return {TargetKind::Name, word};
    if (!isCounted)
        line.Fail("controls are counted from 1; write " + name + "1 for the first");
    if (name == "#" && isType)
        return {TargetKind::Number, "", std::stoul(number)};
    CheckWord(line, name, "type of control", typeWords);
    return {TargetKind::Type, name, number.empty() ? 1 : std::stoul(number)};
}

std::string Written(const StepForm& form)
{
    return std::string(form.word) + " " + form.arguments;
}

// In quotes, or after a '=' with or without them.
std::string ReadText(const StepForm& form, LineReader& line)
{
    if (line.Takes('='))
        return line.Text();
    if (line.IsAtQuote())
        return line.Word("a text");
    if (std::string_view(form.arguments).find('=') != std::string_view::npos)
        line.Expect('=', "write: " + Written(form));
    const std::string word = line.PlainWord();
    line.Fail("the text " + word + " has no quotes; write \"" + word + "\"");
}

// A text as well, unless it is a word without quotes.
std::string ReadState(const StepForm& form, LineReader& line, bool& isState)
{
    isState = !line.IsAtQuote() && !line.Takes('=');
    if (!isState)
        return line.IsAtQuote() ? ReadText(form, line) : line.Text();
    const std::string word = line.PlainWord();
    CheckWord(line, word, "state", stateWords);
    return word;
}

std::string ReadArgument(char shape, LineReader& line)
{
    const std::string word = line.PlainWord();
    if (shape == 'n' && !IsNumber(word))
        line.Fail("a number is due here and not \"" + word + "\"; write digits only");
    if (shape == 'k' && !(word.size() == 5 && word.starts_with("alt+")))
        CheckWord(line, word, "key", KeyWords());
    if (shape == 'b')
        CheckWord(line, word, "button of a message", ButtonWords());
    return word;
}

} // namespace

std::string Target::Written() const
{
    switch (kind)
    {
    case TargetKind::Number: return "#" + std::to_string(number);
    case TargetKind::Type: return number == 1 ? name : name + std::to_string(number);
    case TargetKind::Focus: return "focus";
    case TargetKind::Caption:
    case TargetKind::Name: break;
    }
    return name;
}

std::string Describe(const Step& step)
{
    std::string text = step.word;
    const StepForm& form = FormOf(step);
    if (form.shape[0] == 'c')
        text += " " + step.target.Written();
    for (const std::string& argument : step.arguments)
        text += (form.shape[0] == 'c' ? " = " : " ") + commandline::Quoted(argument);
    return text;
}

const StepForm& FormOf(const Step& step)
{
    return *FindForm(step.word, Player::OfWindows);
}

const std::vector<std::string>& ActWords()
{
    static const std::vector<std::string> words = []
    {
        std::vector<std::string> made;
        for (const StepForm& form : StepForms())
        {
            if (form.isAct)
                made.emplace_back(form.word);
        }
        return made;
    }();
    return words;
}

const StepForm* FindForm(const std::string& word, Player player)
{
    const auto found = std::ranges::find_if(StepForms(), [&](const StepForm& form) { return word == form.word; });
    return found != StepForms().end() && (found->isAct || player == Player::OfWindows) ? &*found : nullptr;
}

Step ReadStep(const StepForm& form, LineReader& line, Player player)
{
    Step step{line.Place(), form.word};
    bool isOptional = false;
    for (const char* shape = form.shape; *shape != '\0'; ++shape)
    {
        if (*shape == '?')
        {
            isOptional = true;
            continue;
        }
        if (*shape == 'c' ? line.IsAtEndOrControl() : line.IsAtEnd())
        {
            if (isOptional)
                break;
            line.FailAt(line.EndColumn(), "the step ends too soon; write it as: " + Written(form));
        }
        if (*shape == 'c')
            step.target = ReadTarget(line, player);
        else if (*shape == 't')
            step.arguments.push_back(ReadText(form, line));
        else if (*shape == 's')
            step.arguments.push_back(ReadState(form, line, step.isState));
        else
            step.arguments.push_back(ReadArgument(*shape, line));
    }
    if (!line.IsAtEnd())
        line.FailAt(line.NextColumn(), "nothing may follow here; write the step as: " + Written(form));
    return step;
}

std::vector<Step> ReadScript(const std::string& fileName, const std::string& content, Player player)
{
    std::vector<Step> steps;
    int number = 0;
    for (const std::string& text : commandline::LinesOf(ScriptText(content)))
    {
        LineReader line(fileName, ++number, text);
        if (line.IsAtEnd())
            continue;
        const std::string word = line.Word("a step");
        if (const StepForm* form = FindForm(word, player))
        {
            steps.push_back(ReadStep(*form, line, player));
            continue;
        }
        if (FindForm(word, Player::OfWindows) != nullptr)
            line.Fail("`" + word +
                      "` looks at the windows of a call, which only lytcall makes; write acts alone, such as " +
                      "`set` and `press`");
        std::vector<std::string> known = ActWords();
        if (player == Player::OfWindows)
            std::ranges::transform(StepForms(), std::back_inserter(known), &StepForm::word);
        line.Fail(std::string("there is no ") + (player == Player::OfWindows ? "step" : "act") + " \"" + word + "\"; " +
                  commandline::Suggestion(word, known));
    }
    return steps;
}

std::string Help()
{
    constexpr size_t width = 34;
    std::string text = "A script takes one step a line; '#' begins a comment.\n\nsteps:\n";
    for (const StepForm& form : StepForms())
    {
        std::string left = "  " + Written(form);
        left.append(left.size() < width ? width - left.size() : 1, ' ');
        text += left + form.meaning + "\n";
    }
    text += "\nA CONTROL is one of\n"
            "  \"CAPTION\"   the button with that caption, or the field after the label with it\n"
            "  edit2       the second edit field; so with";
    for (const std::string& word : typeWords)
        text += " " + word;
    return text + "\n  #5          the fifth control of the window, counted as the description lists them\n"
                  "  focus       the control with the focus\n"
                  "  Digits      its name in the description, for lytdlg alone\n\n"
                  "Texts are in quotes, or after a '=' in quotes or without; \\\" \\\\ \\n \\t mean a quote, a "
                  "backslash, a\n"
                  "line feed and a tab, and \\x1B the character of that number.\n";
}

} // namespace script
