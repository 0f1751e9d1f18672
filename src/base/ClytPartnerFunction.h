// A function of a partner library, and the one way to call it.
#pragma once

#include "base/PartnerLibrary.h"

#include <type_traits>
#include <utility>

// Raises what a partner's function raises, of any tool chain, as a std::runtime_error that names both. A failure of this
// library, which the partner has called back, passes as it is.
class ClytPartnerCall
{
protected:
    ClytPartnerCall(CString libraryName, CString functionName)
        : library(std::move(libraryName)), name(std::move(functionName))
    {
    }

    // The step itself must need no destructors.
    template <class STEP>
    void Guard(STEP step) const
    {
        Run([](void* given) { (*static_cast<STEP*>(given))(); }, &step);
    }

private:
    void Run(void (*run)(void* step), void* step) const;
    [[noreturn]] void Fail(const char* reason) const;

    CString library;
    CString name;
};

template <class FUNCTION>
class ClytPartnerFunction;

// Under the type that the partner's header gives it.
template <class RESULT, class... ARGUMENTS>
class ClytPartnerFunction<RESULT(ARGUMENTS...)> : ClytPartnerCall
{
public:
    using Function = RESULT(ARGUMENTS...);

    // NOLINTNEXTLINE(google-explicit-constructor): a function of the program itself may take a partner's place.
    ClytPartnerFunction(Function* found = nullptr, CString libraryName = {}, CString functionName = {})
        : ClytPartnerCall(std::move(libraryName), std::move(functionName)), function(found)
    {
    }
    ClytPartnerFunction(HMODULE module, const CString& libraryName, const CString& functionName)
        : ClytPartnerFunction(lytFindFunction<Function>(module, functionName), libraryName, functionName)
    {
    }

    // False when the library has no function of that name.
    explicit operator bool() const { return function != nullptr; }
    RESULT operator()(ARGUMENTS... arguments) const
    {
        if constexpr (std::is_void_v<RESULT>)
            Guard([&] { function(arguments...); });
        else
        {
            RESULT answer{};
            Guard([&] { answer = function(arguments...); });
            return answer;
        }
    }

private:
    Function* function;
};
