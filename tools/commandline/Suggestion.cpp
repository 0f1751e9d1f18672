#include "commandline/Suggestion.h"

#include <algorithm>
#include <numeric>

namespace commandline
{

namespace
{

// The number of letters to change, add, drop or swap with their neighbour.
size_t Distance(const std::string& left, const std::string& right)
{
    std::vector<std::vector<size_t>> cost(left.size() + 1, std::vector<size_t>(right.size() + 1));
    for (size_t row = 0; row <= left.size(); ++row)
        cost[row][0] = row;
    std::iota(cost[0].begin(), cost[0].end(), size_t{0});
    for (size_t row = 1; row <= left.size(); ++row)
    {
        for (size_t column = 1; column <= right.size(); ++column)
        {
            const size_t change = left[row - 1] == right[column - 1] ? 0 : 1;
            size_t best =
                std::min({cost[row - 1][column] + 1, cost[row][column - 1] + 1, cost[row - 1][column - 1] + change});
            if (row > 1 && column > 1 && left[row - 1] == right[column - 2] && left[row - 2] == right[column - 1])
                best = std::min(best, cost[row - 2][column - 2] + 1);
            cost[row][column] = best;
        }
    }
    return cost[left.size()][right.size()];
}

} // namespace

bool IsClose(const std::string& word, const std::string& known)
{
    return Distance(word, known) <= std::max<size_t>(1, word.size() / 3);
}

std::string Nearest(const std::string& word, const std::vector<std::string>& known)
{
    const auto nearest =
        std::ranges::min_element(known, {}, [&](const std::string& candidate) { return Distance(word, candidate); });
    return nearest != known.end() && IsClose(word, *nearest) ? *nearest : "";
}

std::string Suggestion(const std::string& word, const std::vector<std::string>& known)
{
    const std::string nearest = Nearest(word, known);
    if (!nearest.empty())
        return "did you mean \"" + nearest + "\"?";

    std::string list;
    for (const std::string& candidate : known)
        list += (list.empty() ? "" : ", ") + candidate;
    return "use one of: " + list;
}

} // namespace commandline
