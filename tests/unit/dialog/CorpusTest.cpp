// What the fuzzers begin with and what they have found, over real windows: each must come to its end. Natively fuzz-replay
// does the same for all fuzzers.
#include "fuzz/frame/Fuzzer.h"
#include "support/RecordedMessages.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>

namespace
{

namespace fs = std::filesystem;

class Corpus : public testing::TestWithParam<const Fuzzer*>
{
protected:
    static void Replay(const std::string& input)
    {
        GetParam()->run(input);
        TakeMessages();
    }
};

} // namespace

TEST_P(Corpus, ComesToItsEnd)
{
    const std::vector<std::string> seeds = GetParam()->seeds();
    EXPECT_FALSE(seeds.empty());
    for (const std::string& seed : seeds)
        Replay(seed);
    const fs::path folder = fs::path(LYT_SOURCE_FOLDER "/fuzz/corpus") / GetParam()->name;
    ASSERT_TRUE(fs::is_directory(folder)) << folder;
    for (const auto& entry : fs::directory_iterator(folder))
    {
        SCOPED_TRACE(entry.path().string());
        std::ifstream file(entry.path(), std::ios::binary);
        ASSERT_TRUE(file);
        Replay({std::istreambuf_iterator<char>(file), {}});
    }
}

INSTANTIATE_TEST_SUITE_P(OfFuzzers, Corpus,
                         testing::Values(&descriptionFuzzer, &formatFuzzer, &groupsFuzzer, &scanFuzzer),
                         [](const auto& test) { return std::string(test.param->name); });
