// One call of an export, and what was seen of it.
#pragma once

#include "Exports.h"
#include "Scene.h"

// An argument as it is handed over.
using Value = intptr_t;

struct Observation
{
    int result = 0;                     // 0 for a function without one
    std::string windows;                // those that came up
    std::string log;                    // "written" or nothing
    std::vector<std::string> buffers{}; // their texts; "untouched" for one that was not written

    bool operator==(const Observation&) const = default;
};

void PrintTo(const Observation& observation, std::ostream* stream);

// Calls a function with a good value for each argument, in the state that the library is in. 0 for one without a result.
int CallWithGoodValues(const Scene& scene, const Export& function);

// A call under preparation, with a good value for each argument. Its buffers have room for any size.
class ObservedCall
{
public:
    ObservedCall(Scene& scene, const Export& function);

    ObservedCall& With(size_t argument, Value value)
    {
        m_values[argument] = value;
        return *this;
    }
    // Brings the library into the state that the function needs, and calls it.
    Observation Run();

private:
    Scene& m_scene;
    const Export& m_function;
    std::vector<Value> m_values;
};
