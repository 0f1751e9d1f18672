#include "lytdlg/text/LibraryTexts.h"

#include "environment/ClytException.h"

#include <array>

namespace lytdlg
{

namespace
{

// The numbers that messages of the library have, and those that stand above another message.
constexpr std::array messageNumbers = {"200", "201", "202", "204", "205", "206", "207", "208", "209", "210", "212",
                                       "213", "214", "215", "216", "217", "222", "232", "233", "234", "235", "236",
                                       "238", "240", "241", "242", "245", "246", "247", "248", "250", "251", "254"};

} // namespace

const std::vector<LibraryText>& LibraryTexts()
{
    static const std::vector<LibraryText> texts = []
    {
        std::vector<LibraryText> all = {{"Buttons", "001"}, {"Buttons", "002"}, {"Label", "TreeDlgLabel"}};
        for (const char* number : messageNumbers)
            all.push_back({lytErrorSection, number});
        return all;
    }();
    return texts;
}

} // namespace lytdlg
