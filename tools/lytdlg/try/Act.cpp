#include "lytdlg/try/Act.h"

#include "commandline/Suggestion.h"
#include "commandline/Text.h"

#include <algorithm>

namespace lytdlg
{

using commandline::UsageError;

namespace
{

// What stands after an act's word.
enum class Shape
{
    Alone,
    Name,
    NameAndValue
};

struct ActForm
{
    const char* word;
    ActKind kind;
    Shape shape;
    const char* meaning;
};

constexpr ActForm forms[] = {
    {"set", ActKind::Set, Shape::NameAndValue, "type, choose or mark: field, list, combo, check box, option group"},
    {"press", ActKind::Press, Shape::Name, "press a button"},
    {"doubleclick", ActKind::DoubleClick, Shape::Name, "double-click the chosen item of a list"},
    {"mark", ActKind::Mark, Shape::NameAndValue, "mark the item of a check list that has this value"},
    {"unmark", ActKind::Unmark, Shape::NameAndValue, "take the mark off again"},
    {"ok", ActKind::Ok, Shape::Alone, "press OK of the dialog on top"},
    {"cancel", ActKind::Cancel, Shape::Alone, "press Cancel of the dialog on top"},
};

const ActForm* FormOf(const std::string& word)
{
    const auto* form = std::ranges::find_if(forms, [&](const ActForm& one) { return word == one.word; });
    return form != std::end(forms) ? form : nullptr;
}

Act ActOf(const ActForm& form, const std::string& text)
{
    Act act{form.kind};
    const size_t sign = text.find('=');
    if (form.shape == Shape::NameAndValue && sign == std::string::npos)
        throw UsageError(std::string("option --") + form.word + " needs NAME=VALUE after it and not \"" + text + "\"");
    act.name = AnsiOf(form.shape == Shape::NameAndValue ? text.substr(0, sign) : text);
    act.value = form.shape == Shape::NameAndValue ? AnsiOf(text.substr(sign + 1)) : "";
    return act;
}

Act ReadScriptLine(LineReader& line)
{
    const std::string word = line.Word("an act");
    if (std::optional<Act> act = ReadAct(word, line))
        return *std::move(act);
    line.Fail("there is no act \"" + word + "\"; " + commandline::Suggestion(word, ActWords()));
}

std::vector<Act> ActsOfScript(const std::string& file)
{
    std::vector<Act> acts;
    int number = 0;
    for (const std::string& text : LinesOf(ReadUtf8File(file)))
    {
        LineReader line({file, ++number}, text);
        if (!line.IsAtEnd())
            acts.push_back(ReadScriptLine(line));
    }
    return acts;
}

} // namespace

std::string Describe(const Act& act)
{
    const auto* form = std::ranges::find(forms, act.kind, &ActForm::kind);
    std::string text = form->word;
    if (form->shape != Shape::Alone)
        text += " " + commandline::ToUtf8(act.name);
    if (form->shape == Shape::NameAndValue)
        text += " = " + commandline::Quoted(commandline::ToUtf8(act.value));
    return text;
}

const std::vector<commandline::OptionForm>& ActOptions()
{
    static const std::vector<commandline::OptionForm> options = []
    {
        static const std::vector<std::string> words = []
        {
            std::vector<std::string> made;
            for (const ActForm& form : forms)
                made.push_back(std::string("--") + form.word);
            return made;
        }();
        std::vector<commandline::OptionForm> made;
        for (size_t index = 0; index < words.size(); ++index)
        {
            const ActForm& form = forms[index];
            const char* value = form.shape == Shape::Alone  ? nullptr
                                : form.shape == Shape::Name ? "NAME"
                                                            : "NAME=VALUE";
            made.push_back({words[index].c_str(), value, false, form.meaning});
        }
        made.push_back({"--script", "FILE", false, "the acts of a file, one a line: set NAME = VALUE, press NAME, ok"});
        return made;
    }();
    return options;
}

std::vector<Act> ActsOf(const commandline::Request& request)
{
    std::vector<Act> acts;
    for (const auto& [option, value] : request.InOrder())
    {
        if (option == "--script")
            std::ranges::move(ActsOfScript(value), std::back_inserter(acts));
        else if (const ActForm* form = FormOf(option.substr(2)))
            acts.push_back(ActOf(*form, value));
    }
    return acts;
}

const std::vector<std::string>& ActWords()
{
    static const std::vector<std::string> words = []
    {
        std::vector<std::string> made;
        for (const ActForm& form : forms)
            made.emplace_back(form.word);
        return made;
    }();
    return words;
}

std::optional<Act> ReadAct(const std::string& word, LineReader& line)
{
    const ActForm* form = FormOf(word);
    if (form == nullptr)
        return {};
    Act act{form->kind};
    act.place = line.PlaceOfWord();
    if (form->shape != Shape::Alone)
        act.name = AnsiOf(line.Word("the name of a control"));
    if (form->shape == Shape::NameAndValue)
    {
        line.Expect('=', std::string("write: ") + word + " NAME = VALUE");
        act.value = AnsiOf(line.Text());
    }
    line.ExpectEnd();
    return act;
}

} // namespace lytdlg
