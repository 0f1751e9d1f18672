// Replays what the fuzzers have found, without libFuzzer: each input must come to its end.
#include "fuzz/frame/Fuzzer.h"
#include "fuzz/frame/Partners.h"
#include "fuzz/frame/Words.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>

namespace
{

namespace fs = std::filesystem;

constexpr const char* usage =
    "usage: fuzz-replay NAME [FILE...]       replays the seeds and the corpus, or the files\n"
    "       fuzz-replay --list               names the fuzzers, and says what their inputs are\n"
    "       fuzz-replay --seeds NAME FOLDER  writes the seeds into a folder\n"
    "       fuzz-replay --words FILE         writes the dictionary\n";

std::string ReadFile(const fs::path& name)
{
    std::ifstream file(name, std::ios::binary);
    if (!fs::is_regular_file(name) || !file)
        throw std::runtime_error(name.string() + " cannot be read");
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<fs::path> FilesIn(const fs::path& folder)
{
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(folder))
        files.push_back(entry.path());
    std::ranges::sort(files);
    return files;
}

// The name is in the output before what a sanitizer prints of the input.
void ReplayFile(const Fuzzer& fuzzer, const fs::path& file)
{
    std::printf("%s\n", file.string().c_str());
    std::fflush(stdout);
    fuzzer.run(ReadFile(file));
}

int Replay(const Fuzzer& fuzzer, const std::vector<std::string>& names)
{
    InstallPartners();
    for (const std::string& name : names)
        ReplayFile(fuzzer, name);
    if (!names.empty())
        return 0;

    const std::vector<std::string> seeds = fuzzer.seeds();
    for (size_t index = 0; index < seeds.size(); ++index)
    {
        std::printf("seed %zu\n", index);
        std::fflush(stdout);
        fuzzer.run(seeds[index]);
    }
    for (const fs::path& file : FilesIn(fs::path(LYT_SOURCE_FOLDER "/fuzz/corpus") / fuzzer.name))
        ReplayFile(fuzzer, file);
    return seeds.empty() ? 1 : 0;
}

int WriteSeeds(const Fuzzer& fuzzer, const fs::path& folder)
{
    fs::create_directories(folder);
    const std::vector<std::string> seeds = fuzzer.seeds();
    for (size_t index = 0; index < seeds.size(); ++index)
        std::ofstream(folder / ("seed-" + std::to_string(index)), std::ios::binary) << seeds[index];
    return 0;
}

int List()
{
    for (const Fuzzer* fuzzer : Fuzzers())
        std::printf("%-12s %s\n", fuzzer->name, fuzzer->input);
    return 0;
}

int Refuse(const std::string& why)
{
    std::fprintf(stderr, "fuzz-replay: %s\n%s", why.c_str(), usage);
    return 2;
}

int Run(const std::vector<std::string>& words)
{
    if (words == std::vector<std::string>{"--help"})
        return std::fputs(usage, stdout) < 0 ? 1 : 0;
    if (words == std::vector<std::string>{"--list"})
        return List();
    if (words.size() == 2 && words[0] == "--words")
        return std::ofstream(words[1], std::ios::binary) << Dictionary() ? 0 : 1;
    const bool areSeeds = words.size() == 3 && words[0] == "--seeds";
    const std::string name = areSeeds ? words[1] : words.empty() ? "" : words[0];
    const Fuzzer* fuzzer = FindFuzzer(name);
    if (fuzzer == nullptr)
        return Refuse("there is no fuzzer \"" + name + "\"");
    return areSeeds ? WriteSeeds(*fuzzer, words[2]) : Replay(*fuzzer, {words.begin() + 1, words.end()});
}

} // namespace

int main(int count, char** words)
{
    try
    {
        return Run({words + 1, words + count});
    }
    catch (const std::exception& error)
    {
        return Refuse(error.what());
    }
}
