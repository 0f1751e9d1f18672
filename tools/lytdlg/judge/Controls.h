// The controls of a layout: what they are, and which belong together.
#pragma once

#include "lytdlg/judge/Names.h"

namespace lytdlg
{

Kind KindOf(const ClytControlStatement& control);
// The group that an option stands in; null without one.
const ClytControlStatement* GroupOf(const Description& description, const ClytControlStatement& option);
// The option buttons of a group, in their order.
const std::vector<const ClytControlStatement*>& OptionButtonsOf(const Description& description,
                                                                const std::string& group);

} // namespace lytdlg
