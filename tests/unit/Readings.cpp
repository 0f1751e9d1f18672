#include "Readings.h"

#include <algorithm>
#include <fstream>

namespace
{

std::string Unescaped(const std::string& text)
{
    static const std::string letters = "ntvfr\\";
    static const std::string characters = "\n\t\v\f\r\\";
    std::string unescaped;
    for (size_t place = 0; place < text.size(); ++place)
    {
        if (text[place] != '\\')
            unescaped += text[place];
        else if (text.at(++place) != 'x')
            unescaped += characters.at(letters.find(text[place]));
        else
        {
            unescaped += static_cast<char>(std::stoi(text.substr(place + 1, 2), nullptr, 16));
            place += 2;
        }
    }
    return unescaped;
}

} // namespace

std::vector<TextCase> ReadingsOf(const std::string& file, const std::string& function)
{
    static const std::string arrow = " =>";
    std::ifstream stream(LYT_READINGS_FOLDER "/" + file);
    std::vector<TextCase> cases;
    bool isMeant = false;
    size_t complete = 0;
    for (std::string line; std::getline(stream, line);)
    {
        if (line.starts_with('[') && line.ends_with(']'))
            isMeant = line == "[" + function + "]";
        else if (isMeant && !line.empty() && !line.starts_with('#'))
        {
            const size_t end = line.find(arrow);
            cases.push_back({Unescaped(line.substr(0, end)), ""});
            if (end == std::string::npos)
                continue;
            for (; complete < cases.size(); ++complete)
                cases[complete].made = Unescaped(line.substr(std::min(line.size(), end + arrow.size() + 1)));
        }
    }
    return cases;
}

std::vector<std::string> ColumnsOf(const std::string& text)
{
    static const std::string mark = " ~ ";
    std::vector<std::string> columns;
    size_t start = 0;
    for (size_t end = text.find(mark); end != std::string::npos; end = text.find(mark, start))
    {
        columns.push_back(text.substr(start, end - start));
        start = end + mark.size();
    }
    columns.push_back(text.substr(start));
    return columns;
}
