#include "lytdlg/judge/ConditionText.h"

#include "model/ClytWords.h"

#include <algorithm>

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

bool ExcludeEachOther(const ClytCtrlValList& left, const ClytCtrlValList& right)
{
    if (left.GetName() != right.GetName() || left.GetValues().IsEmpty() || right.GetValues().IsEmpty())
        return false;
    const std::vector<std::string> leftValues = ValuesAskedBy(left);
    const std::vector<std::string> rightValues = ValuesAskedBy(right);
    const bool isLeftOpen = AsksForContent(left);
    const bool isRightOpen = AsksForContent(right);
    if (isLeftOpen || isRightOpen)
    {
        const std::vector<std::string>& closed = isLeftOpen ? rightValues : leftValues;
        return isLeftOpen != isRightOpen && std::ranges::all_of(closed, &std::string::empty);
    }
    return std::ranges::none_of(leftValues, [&](const std::string& value)
                                { return std::ranges::find(rightValues, value) != rightValues.end(); });
}

} // namespace lytdlg
