#include "lytdlg/text/LibraryTexts.h"

#include "controls/TypeWords.h"
#include "environment/ClytException.h"

namespace lytdlg
{

const std::vector<LibraryText>& LibraryTexts()
{
    static const std::vector<LibraryText> texts = []
    {
        std::vector<LibraryText> all;
        for (const ClytKind button : {ClytKind::Ok, ClytKind::Cancel})
            all.push_back({lytButtonSection, lytTypeOf(button).captionKey});
        all.push_back({"Label", "TreeDlgLabel"});
        for (const ClytErrorRow& error : lytErrors)
            all.push_back({lytErrorSection, error.number});
        return all;
    }();
    return texts;
}

} // namespace lytdlg
