// One process that runs for long: after a thousand times of each thing it holds no more than it did
// when everything was warm.
//
// The tests are in the order in which they have to run: the catalogue's take the library away after each.
#include "cases/CaseRun.h"
#include "report/ReportTest.h"
#include "support/Holdings.h"
#include "support/Leaks.h"
#include "tree/TreeFixture.h"

#include <algorithm>
#include <cstdlib>
#include <iostream>

namespace
{

// What is done in the ordinary run is a twentieth.
int RoundsOf(int all)
{
    return std::getenv("LYT_LONG_RUN") != nullptr ? all : std::max(all / 20, 3);
}

void RunLong(int rounds, const std::function<void()>& once)
{
    rounds = RoundsOf(rounds);
    ExpectNoGrowth(once, rounds);
    std::cout << "after " << rounds << " rounds: " << Holdings().Text() << std::endl;
}

// A site with its buildings, in each of which there are groups of symbols.
Records Catalogue(int size)
{
    Records records;
    const std::tuple<int, int, int> levels[] = {
        {500, 0, LYT_TREE_HEADING}, {50, 1, LYT_TREE_HEADING}, {10, 2, LYT_TREE_GROUP}, {1, 3, LYT_TREE_SYMBOL}};
    for (int number = 0; number < size; ++number)
    {
        const auto& [every, level, type] =
            *std::ranges::find_if(levels, [&](const auto& each) { return number % std::get<0>(each) == 0; });
        records.push_back(Entry(level, type, "Entry " + std::to_string(number), "key" + std::to_string(number)));
    }
    return records;
}

class LongRunOfReports : public ReportTest
{
};

class LongRunOfForms : public CaseRun
{
protected:
    static Case CaseOf(const std::string& name)
    {
        const std::vector<Case> cases = ReadCases(LYT_WHOLE_FORM);
        return *std::ranges::find(cases, name, &Case::name);
    }
};

class LongRunOfCatalogues : public TreeTest
{
protected:
    LongRunOfCatalogues()
    {
        UseSource();
        Serve('S', Catalogue(5000));
        WriteDialog("lytWzGrp", {});
    }
};

} // namespace

TEST_F(LongRunOfForms, WithEveryControlHoldsNothingMore)
{
    RunLong(1000, [&, one = CaseOf("RoundsTakeNothingWithThem")] { Run(one); });
}

TEST_F(LongRunOfForms, OneInsideTheOtherHoldsNothingMore)
{
    RunLong(200, [&, one = CaseOf("WorksAsAWhole")] { Run(one); });
}

TEST_F(LongRunOfReports, HoldsNothingMore)
{
    RunLong(50, [&] { EXPECT_GT(Report().size(), 20U); });
}

TEST_F(LongRunOfCatalogues, InTheBrowserHoldsNothingMore)
{
    Configure("TreeWidth=300\nTreeHeight=400\nTreeLevels=3\n");
    RunLong(200,
            [&]
            {
                Get<decltype(FreeGlobalObject)>("FreeGlobalObject")();
                EXPECT_EQ(Pick("S", "Entry 4321").text, "key4321");
            });
}

TEST_F(LongRunOfCatalogues, InTheWizardHoldsNothingMore)
{
    RunLong(200,
            [&]
            {
                EXPECT_EQ(AskWizard("Entry 10", "Group", "head/LIST{a|b"), "1 head/LIST{");
                EXPECT_EQ(CallWizard(), "1 a|");
                EXPECT_EQ(CallWizard(), "0 b");
            });
}
