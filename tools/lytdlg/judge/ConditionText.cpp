#include "lytdlg/judge/ConditionText.h"

#include "model/ClytWords.h"

namespace lytdlg
{

bool AsksForContent(const ClytCtrlValList& condition)
{
    return !condition.GetValues().IsEmpty() && lytMeans<ClytValueWord::NotNull>(condition.GetValues().GetTail());
}

std::vector<std::string> ValuesAskedBy(const ClytCtrlValList& condition)
{
    std::vector<std::string> values;
    for (POSITION place = condition.GetValues().GetHeadPosition(); place != nullptr;)
    {
        const CString& value = condition.GetValues().GetNext(place);
        values.emplace_back(lytMeans<ClytValueWord::Null>(value) ? "" : value.GetString());
    }
    if (AsksForContent(condition))
        values.pop_back();
    return values;
}

} // namespace lytdlg
