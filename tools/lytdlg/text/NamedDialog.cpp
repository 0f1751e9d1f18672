#include "lytdlg/text/NamedDialog.h"

#include "lytdlg/text/LanguageFiles.h"

#include <algorithm>

namespace lytdlg
{

const ClytNamedDialog* NamedDialogOf(const std::string& path)
{
    const std::string file = path.substr(path.find_last_of("\\/") + 1);
    const auto* named = std::ranges::find_if(lytNamedDialogs, [&](const ClytNamedDialog& each)
                                             { return IsSameName(each.description, file); });
    return named != std::end(lytNamedDialogs) ? named : nullptr;
}

} // namespace lytdlg
