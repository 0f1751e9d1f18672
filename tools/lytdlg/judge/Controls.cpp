#include "lytdlg/judge/Controls.h"

namespace lytdlg
{

Kind KindOf(const ClytControlStatement& control)
{
    return KindOf(std::string(control.type.GetString()));
}

const ClytControlStatement* GroupOf(const Description& description, const ClytControlStatement& option)
{
    const ClytControlStatement* group = nullptr;
    for (const ClytControlStatement& control : description.controls)
    {
        if (&control == &option)
            break;
        if (KindOf(control) == Kind::OptionGroup)
            group = &control;
    }
    return group;
}

std::vector<const ClytControlStatement*> OptionButtonsOf(const Description& description, const std::string& group)
{
    std::vector<const ClytControlStatement*> options;
    bool isInGroup = false;
    for (const ClytControlStatement& control : description.controls)
    {
        const Kind kind = KindOf(control);
        if (kind == Kind::OptionGroup)
            isInGroup = control.name == group.c_str();
        else if (kind == Kind::Option && isInGroup)
            options.push_back(&control);
    }
    return options;
}

} // namespace lytdlg
