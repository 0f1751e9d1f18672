#include "fuzz/frame/Samples.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace fs = std::filesystem;

namespace
{

std::vector<std::string> ContentsOf(const std::string& folder, const std::string& extension)
{
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(fs::path(LYT_SOURCE_FOLDER) / folder))
    {
        if (entry.path().extension() == extension)
            files.push_back(entry.path());
    }
    std::ranges::sort(files);
    std::vector<std::string> contents;
    for (const fs::path& file : files)
        contents.push_back(SourceFile(fs::relative(file, LYT_SOURCE_FOLDER).string()));
    return contents;
}

// What a test of a whole dialog holds between the lines "description" and ".".
std::string DescriptionIn(const std::string& test)
{
    const std::string begin = "\ndescription\n";
    const size_t start = test.find(begin);
    if (start == std::string::npos)
        return {};
    const size_t first = start + begin.size();
    return test.substr(first, test.find("\n.\n", first) + 1 - first);
}

} // namespace

std::string SourceFile(const std::string& name)
{
    std::ifstream file(fs::path(LYT_SOURCE_FOLDER) / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> SampleDescriptions()
{
    std::vector<std::string> descriptions = ContentsOf("samples/dialogs", ".dlg");
    for (const std::string& test : ContentsOf("tests/unit/dialog/dialogs", ".txt"))
        descriptions.push_back(DescriptionIn(test));
    std::erase(descriptions, "");
    return descriptions;
}

std::vector<std::string> SampleDescriptionsAfter(const std::string& lines)
{
    std::vector<std::string> inputs = SampleDescriptions();
    for (std::string& input : inputs)
        input = lines + input;
    return inputs;
}
