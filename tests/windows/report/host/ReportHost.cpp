// A separate host for the library: writes the report to a file, as a program that knows Windows 10 or under a name that
// the report looks at.
#include "lyt64.h"

#include <windows.h>

#include <cstdio>
#include <memory>

namespace
{

template <class Function>
Function* Exported(const char* name)
{
    static const HMODULE library = LoadLibraryA("lyt64.dll");
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
}

struct CloseFile
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};

} // namespace

int main(int count, char** arguments)
{
    if (count != 2)
        return 1;
    const std::unique_ptr<std::FILE, CloseFile> file(std::fopen(arguments[1], "wb"));
    if (file == nullptr)
        return 2;

    Exported<decltype(lytSystemInfoInit)>("lytSystemInfoInit")("");
    auto* const readLine = Exported<decltype(lytSystemInfoRead)>("lytSystemInfoRead");
    char line[4096];
    for (int index = 0; readLine(index, line, sizeof line) == 1; ++index)
        std::fprintf(file.get(), "%s\n", line);
    return 0;
}
