// Each variant is a choice among the functions of one source that is part of the program.
#include "TestSource.h"
#include "TestSources.h"

#include "native/PartnerLibraries.h"

HMODULE LoadTestSource(const std::string& variant)
{
    const auto add = [&](const char* name, auto* function, const char* variantWithout = "")
    {
        if (variant != variantWithout)
            platform::AddFunction("lytsrc", name, function);
    };
    add("TestSourceInterrupt", TestSourceInterrupt);
    add("TestSourceNexts", TestSourceNexts);
    add("TestSourceServe", TestSourceServe);
    add("TestSourceStarts", TestSourceStarts);
    add("lytParaTreeNext", lytParaTreeNext, "without-para-next");
    add("lytParaTreeStart", lytParaTreeStart, "without-para-start");
    add("lytTreeNext", lytTreeNext, "without-next");
    add("lytTreeStart", lytTreeStart, "without-start");
    return LoadLibraryA("lytsrc");
}

// The library under test stays: it is part of the program, and goes with the process.
void TakeLibrariesAway()
{
    platform::RemoveLibrary("lytsrc");
}
