// Each call by which a report asks the platform fails once: the report comes to its end, and takes nothing along that the
// next one would lack.
#include "LaidDownMachine.h"

#include "support/Holdings.h"
#include "support/ImportHook.h"

namespace
{

// The call that fails, counted from 1; 0 means no call.
int failing = 0;
int calls = 0;

// Takes the place of a function of the platform.
template <auto function, intptr_t failure>
struct Failing;

template <class Result, class... Arguments, Result(WINAPI* function)(Arguments...), intptr_t failure>
struct Failing<function, failure>
{
    static Result WINAPI Call(Arguments... arguments)
    {
        if (++calls != failing)
            return function(arguments...);
        SetLastError(ERROR_ACCESS_DENIED);
        // Numbers and handles alike.
        return (Result)failure;
    }
};

constexpr intptr_t none = 0;
constexpr intptr_t noFile = -1;
constexpr intptr_t refused = ERROR_ACCESS_DENIED;

struct Function
{
    const char* name;
    void* inPlace;
};

template <auto function, intptr_t failure>
Function Fails(const char* name)
{
    return {name, reinterpret_cast<void*>(&Failing<function, failure>::Call)};
}

const Function functions[] = {
    Fails<RegOpenKeyA, refused>("RegOpenKeyA"),
    Fails<RegOpenKeyExA, refused>("RegOpenKeyExA"),
    Fails<RegQueryInfoKeyA, refused>("RegQueryInfoKeyA"),
    Fails<RegQueryValueA, refused>("RegQueryValueA"),
    Fails<RegQueryValueExA, refused>("RegQueryValueExA"),
    Fails<RegEnumKeyA, refused>("RegEnumKeyA"),
    Fails<RegEnumValueA, refused>("RegEnumValueA"),
    Fails<CreateFileA, noFile>("CreateFileA"),
    Fails<FindFirstFileA, noFile>("FindFirstFileA"),
    Fails<FindNextFileA, none>("FindNextFileA"),
    Fails<GetFileTime, none>("GetFileTime"),
    Fails<GetDiskFreeSpaceExA, none>("GetDiskFreeSpaceExA"),
    Fails<GetWindowsDirectoryA, none>("GetWindowsDirectoryA"),
    Fails<GetEnvironmentVariableA, none>("GetEnvironmentVariableA"),
    Fails<GetPrivateProfileSectionA, none>("GetPrivateProfileSectionA"),
    Fails<GetLocaleInfoA, none>("GetLocaleInfoA"),
    Fails<GlobalMemoryStatusEx, none>("GlobalMemoryStatusEx"),
    Fails<LoadLibraryA, none>("LoadLibraryA"),
    Fails<GetProcAddress, none>("GetProcAddress"),
};

class FailingCalls : public LaidDownMachine
{
protected:
    // The number of calls that are made while facts are gathered.
    int GatherWithFailure(int number)
    {
        failing = number;
        calls = 0;
        EXPECT_EQ(gather(examined.c_str()), 1);
        failing = 0;
        return calls;
    }
    std::string FirstLine()
    {
        char line[100] = "";
        EXPECT_EQ(readLine(0, line, sizeof line), 1);
        return line;
    }
};

} // namespace

TEST_F(FailingCalls, LeaveTheNextReportAsItWas)
{
    const Texts undisturbed = MaskedReport();
    for (const Function& f : functions)
    {
        SCOPED_TRACE(f.name);
        const ImportHook hook(GetModuleHandleA("lyt64"), f.name, f.inPlace);
        const int count = GatherWithFailure(0);
        EXPECT_GT(count, 0) << "is not called";
        const std::string firstLine = FirstLine();
        const Holdings before;
        for (int number = 1; number <= count; ++number)
        {
            GatherWithFailure(number);
            EXPECT_EQ(FirstLine(), firstLine);
        }
        EXPECT_EQ(Holdings().GrowthSince(before, count), "");
        EXPECT_EQ(MaskedReport(), undisturbed);
    }
}
