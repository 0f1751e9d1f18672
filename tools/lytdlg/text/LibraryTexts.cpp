#include "lytdlg/text/LibraryTexts.h"

#include "environment/ClytException.h"

namespace lytdlg
{

const std::vector<LibraryText>& LibraryTexts()
{
    static const std::vector<LibraryText> texts = []
    {
        std::vector<LibraryText> all = {{"Buttons", "001"}, {"Buttons", "002"}, {"Label", "TreeDlgLabel"}};
        for (const ClytErrorRow& error : lytErrors)
            all.push_back({lytErrorSection, error.number});
        return all;
    }();
    return texts;
}

} // namespace lytdlg
