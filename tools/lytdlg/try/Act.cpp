#include "lytdlg/try/Act.h"

#include "commandline/Text.h"
#include "lytdlg/try/TrialEnvironment.h"

#include <algorithm>
#include <cstring>

namespace lytdlg
{

using script::Step;

namespace
{

constexpr const char* nameAndValue = "NAME=VALUE";
constexpr const char* scriptOption = "--script";

Step ActOf(const commandline::OptionForm& option, const std::string& given)
{
    const std::string text = commandline::AsUtf8(given);
    Step act{"", option.word + std::strlen("--")};
    const size_t sign = option.value == nameAndValue ? text.find('=') : text.size();
    if (sign == std::string::npos)
        throw commandline::UsageError(std::string("option ") + option.word + " needs NAME=VALUE after it and not \"" +
                                      given + "\"");
    if (option.value != nullptr)
        act.target = {script::TargetKind::Name, text.substr(0, sign)};
    if (option.value == nameAndValue)
        act.arguments.push_back(text.substr(sign + 1));
    return act;
}

} // namespace

const std::vector<commandline::OptionForm>& ActOptions()
{
    static const std::vector<commandline::OptionForm> options = {
        {"--set", nameAndValue, false,
         "type, choose or mark: field, list, combo, check box, option group; a value or a shown text"},
        {"--press", "NAME", false, "press a button"},
        {"--doubleclick", "NAME", false, "double-click the chosen item of a list"},
        {"--mark", nameAndValue, false, "mark the item of a check list that has this value"},
        {"--unmark", nameAndValue, false, "take the mark off again"},
        {"--ok", nullptr, false, "press OK of the dialog on top"},
        {"--cancel", nullptr, false, "press Cancel of the dialog on top"},
        {scriptOption, "FILE", false, "acts from a file, one on each line: set NAME = VALUE, press NAME, ok"},
    };
    return options;
}

std::vector<Step> ActsOf(const commandline::Request& request)
{
    std::vector<Step> acts;
    for (const auto& [word, value] : request.InOrder())
    {
        const auto option = std::ranges::find(ActOptions(), word, &commandline::OptionForm::word);
        if (word == scriptOption)
            std::ranges::move(ReadScript(value, ReadUtf8File(value), script::Player::OfDescriptions),
                              std::back_inserter(acts));
        else if (option != ActOptions().end())
            acts.push_back(ActOf(*option, value));
    }
    return acts;
}

} // namespace lytdlg
