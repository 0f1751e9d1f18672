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

} // namespace

std::string SourceFile(const std::string& name)
{
    std::ifstream file(fs::path(LYT_SOURCE_FOLDER) / name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<std::string> SampleDescriptions()
{
    std::vector<std::string> descriptions = ContentsOf("samples/dialogs", ".dlg");
    descriptions.push_back(SourceFile("tests/windows/lytdlg/dialogs/everyForm.dlg"));
    return descriptions;
}

std::vector<std::string> SampleDescriptionsAfter(const std::string& lines)
{
    std::vector<std::string> inputs = SampleDescriptions();
    for (std::string& input : inputs)
        input = lines + input;
    return inputs;
}
