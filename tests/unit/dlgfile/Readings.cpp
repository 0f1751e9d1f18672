#include "Readings.h"

#include <fstream>

namespace
{

std::string Unescaped(const std::string& text)
{
    static const std::string letters = "ntvfr\\";
    static const std::string characters = "\n\t\v\f\r\\";
    std::string unescaped;
    for (size_t place = 0; place < text.size(); ++place)
        unescaped += text[place] == '\\' ? characters.at(letters.find(text[++place])) : text[place];
    return unescaped;
}

} // namespace

std::vector<TextCase> ReadingsOf(const std::string& function)
{
    static const std::string arrow = " => ";
    std::ifstream file(LYT_READINGS);
    std::vector<TextCase> cases;
    std::string section;
    size_t complete = 0;
    for (std::string line; std::getline(file, line);)
    {
        if (line.starts_with('['))
            section = line.substr(1, line.size() - 2);
        if (section != function || line.empty() || line.starts_with('[') || line.starts_with('#'))
            continue;
        const size_t end = line.find(arrow);
        cases.push_back({Unescaped(line.substr(0, end)), ""});
        if (end == std::string::npos)
            continue;
        for (; complete < cases.size(); ++complete)
            cases[complete].made = Unescaped(line.substr(end + arrow.size()));
    }
    return cases;
}
