#include "lytdlg/judge/Controls.h"

#include "lytdlg/judge/DescriptionIndex.h"

namespace lytdlg
{

Kind KindOf(const ClytControlStatement& control)
{
    return lytTypeOf(control.type.GetString()).kind;
}

const ClytControlStatement* GroupOf(const Description& description, const ClytControlStatement& option)
{
    return description.Index().GroupOf(option);
}

const std::vector<const ClytControlStatement*>& OptionButtonsOf(const Description& description,
                                                                const std::string& group)
{
    return description.Index().FactsOf(group).optionButtons;
}

} // namespace lytdlg
