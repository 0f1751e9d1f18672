#include "lytdlg/draw/Output.h"

#include "commandline/RunProgram.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <filesystem>
#include <stdexcept>

namespace lytdlg
{

std::string ExtensionOf(const std::string& file)
{
    std::string extension = PathOf(file).extension().string();
    std::ranges::transform(extension, extension.begin(),
                           [](unsigned char ch) { return static_cast<char>(std::tolower(ch)); });
    return extension;
}

void WriteOut(const std::string& file, const std::string& bytes)
{
    if (file.empty())
    {
        std::fwrite(bytes.data(), 1, bytes.size(), stdout);
        return;
    }
    WriteWholeFile(PathOf(file), bytes);
}

void WriteByProgram(const std::string& file, std::vector<std::string> words, const std::string& source,
                    const char* wayOut)
{
    const TemporaryFile given(source);
    const TemporaryFile made("");
    words.insert(words.end(), {"-o", made.Name().string(), given.Name().string()});
    const int code = commandline::RunProgram(words);
    if (code < 0)
        throw std::runtime_error(wayOut);
    if (code > 0)
        throw std::runtime_error(words.front() + " could not make \"" + file + "\"");
    WriteWholeFile(PathOf(file), ReadWholeFile(made.Name()).value_or(""));
}

} // namespace lytdlg
