#include "support/TestFolder.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

namespace fs = std::filesystem;

TestFolder::TestFolder()
{
    std::random_device random;
    fs::path path;
    do
        path = fs::temp_directory_path() / ("lyt64-" + std::to_string(random()));
    while (!fs::create_directories(path));
    m_path = path.string();
}

TestFolder::~TestFolder()
{
    std::error_code ignored;
    fs::remove_all(m_path, ignored);
}

std::string TestFolder::File(const std::string& name) const
{
    const fs::path path = PathOf(name);
    fs::create_directories(path.parent_path());
    return path.string();
}

std::string TestFolder::Write(const std::string& name, const std::string& content) const
{
    std::string path = File(name);
    std::ofstream(path, std::ios::binary) << content;
    return path;
}

std::string TestFolder::Read(const std::string& name) const
{
    std::ifstream file(File(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

bool TestFolder::Has(const std::string& name) const
{
    return fs::exists(PathOf(name));
}

// A name of a file in a folder may be written with `\` on any machine.
std::filesystem::path TestFolder::PathOf(std::string name) const
{
    std::ranges::replace(name, '\\', '/');
    return (fs::path(m_path) / name).make_preferred();
}
