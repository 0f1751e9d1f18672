// The fuzzers' inputs, gathered over time, as an ordinary test: each must come to its end.
#include "fuzz/Targets.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace
{

namespace fs = std::filesystem;

int Replay(const char* corpus, void (*target)(const uint8_t*, size_t))
{
    int count = 0;
    for (const auto& entry : fs::directory_iterator(fs::path(LYT_SOURCE_FOLDER "/fuzz/corpus") / corpus))
    {
        SCOPED_TRACE(entry.path().string());
        std::ifstream file(entry.path(), std::ios::binary);
        const std::string input{std::istreambuf_iterator<char>(file), {}};
        target(reinterpret_cast<const uint8_t*>(input.data()), input.size());
        ++count;
    }
    return count;
}

} // namespace

TEST(Corpus, OfDescriptionsComesToItsEnd)
{
    EXPECT_GT(Replay("description", FuzzDescription), 0);
}

TEST(Corpus, OfScansComesToItsEnd)
{
    EXPECT_GT(Replay("scan", FuzzScan), 0);
}

TEST(Corpus, OfFormatsComesToItsEnd)
{
    EXPECT_GT(Replay("format", FuzzFormat), 0);
}
