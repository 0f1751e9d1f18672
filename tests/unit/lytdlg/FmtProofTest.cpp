// Formatting changes nothing that is read of any description.
#include "FormattingProof.h"
#include "fuzz/frame/Samples.h"
#include "lytdlg/text/TextFile.h"
#include "support/Mutations.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace
{

namespace fs = std::filesystem;

std::vector<fs::path> FilesOf(const char* folder)
{
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(fs::path(LYT_SOURCE_FOLDER) / folder))
    {
        if (entry.is_regular_file())
            files.push_back(entry.path());
    }
    std::ranges::sort(files);
    return files;
}

} // namespace

TEST(Formatting, ChangesNothingThatIsReadOfTheSamples)
{
    const std::vector<std::string> seeds = SampleDescriptions();
    EXPECT_GE(seeds.size(), 9U);
    for (const std::string& seed : seeds)
        EXPECT_EQ(BreachOfFormatting(seed), "") << seed;
}

TEST(Formatting, ChangesNothingThatIsReadOfChangedSamples)
{
    const Mutations mutations(SampleDescriptions());
    for (unsigned number = 0; number < 2400; number += LYT_FMT_STEP)
    {
        const std::string text = mutations.Changed(number);
        ASSERT_EQ(BreachOfFormatting(text), "") << number << ":\n" << text;
    }
}

TEST(Formatting, ChangesNothingThatIsReadOfRandomStatements)
{
    for (unsigned number = 0; number < 800; number += LYT_FMT_STEP)
    {
        const std::string text = Mutations::Generated(number);
        ASSERT_EQ(BreachOfFormatting(text), "") << number << ":\n" << text;
    }
}

TEST(Formatting, ChangesNothingThatIsReadOfWhatTheFuzzerGathered)
{
    const std::vector<fs::path> files = FilesOf("fuzz/corpus/fmt");
    EXPECT_FALSE(files.empty());
    for (const fs::path& file : files)
        EXPECT_EQ(BreachOfFormatting(lytdlg::ReadWholeFile(file).value()), "") << file;
}
