#include "BadArguments.h"
#include "Limit.h"
#include "LimitsPage.h"
#include "Scene.h"
#include "support/Image.h"

#include <cstdlib>
#include <fstream>
#include <set>
#include <sstream>

// GoogleTest prints it where a test fails.
void PrintTo(const Limit& limit, std::ostream* stream)
{
    *stream << limit.subject << ": " << limit.breach;
}

void PrintTo(const Export& function, std::ostream* stream)
{
    *stream << function.name;
}

namespace
{

const std::vector<const LimitTable*> tables = {&momentLimits, &answerLimits, &partnerLimits, &fileLimits};

std::vector<Limit> AllLimits()
{
    std::vector<Limit> all;
    for (const LimitTable* table : tables)
        all.insert(all.end(), table->limits.begin(), table->limits.end());
    return all;
}

class EachLimit : public testing::TestWithParam<Limit>
{
};

class EachExport : public testing::TestWithParam<Export>
{
};

INSTANTIATE_TEST_SUITE_P(, EachExport, testing::ValuesIn(Exports()),
                         [](const auto& function) { return std::string(function.param.name); });
INSTANTIATE_TEST_SUITE_P(, EachLimit, testing::ValuesIn(AllLimits()));

} // namespace

TEST_P(EachExport, TakesBadArgumentsAsThePageTells)
{
    Scene scene;
    ProveBadArguments(scene, GetParam());
}

TEST_P(EachLimit, ComesOutAsThePageTells)
{
    Scene scene;
    GetParam().prove(scene);
}

TEST(EveryExport, IsListed)
{
    const Scene scene;
    std::set<std::string> listed;
    for (const Export& function : Exports())
        listed.insert(function.name);
    EXPECT_EQ(listed, Image(GetModuleHandleA("lyt64.dll")).ExportedNames());
}

TEST(LimitsPage, ListsEveryLimit)
{
    const std::string page = PageOf(BadArgumentsTable(), tables);
    if (std::getenv("LYT_UPDATE") != nullptr)
        std::ofstream(LYT_LIMITS_PAGE, std::ios::binary) << page;
    std::ostringstream written;
    written << std::ifstream(LYT_LIMITS_PAGE, std::ios::binary).rdbuf();
    EXPECT_EQ(written.str(), page) << "LYT_UPDATE=1 ctest --preset windows -R limits-tests writes it again";
}
