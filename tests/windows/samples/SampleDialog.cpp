#include "SampleDialog.h"

#include <filesystem>

void PrintTo(const Sample& sample, std::ostream* out)
{
    *out << sample.file << " in " << sample.language;
}

std::vector<Sample> Samples()
{
    std::vector<Sample> samples;
    for (const char* language : {"English", "German"})
    {
        for (const char* file : {"lytCdGrp", "lytInPhr", "lytInSym", "lytRpGrp", "lytWzPhr", "lytWzSym"})
            samples.push_back({file, language, false});
        for (const char* file : {"finding", "lytWzGrp"})
            samples.push_back({file, language, true});
    }
    return samples;
}

std::string NameOfSample(const testing::TestParamInfo<Sample>& sample)
{
    return std::filesystem::path(sample.param.file).filename().string() + "In" + sample.param.language;
}

int SampleDialog::Open()
{
    const int answer = samples.Open(GetParam().file, "");
    EXPECT_TRUE(robot.Done()) << robot.Log();
    EXPECT_TRUE(robot.Messages().empty());
    return answer;
}
