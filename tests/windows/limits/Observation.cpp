#include "Observation.h"

#include "Attendant.h"

#include <array>
#include <cstring>

namespace
{

constexpr Value goodSize = 200;
constexpr size_t mostArguments = 6;
const char* const untouched = "untouched";

// Room for the largest size there is, and the byte beyond it, of which only the two ends are there.
class LargestBuffer
{
public:
    LargestBuffer() : m_bytes(static_cast<char*>(VirtualAlloc(nullptr, size + end, MEM_RESERVE, PAGE_NOACCESS)))
    {
        for (char* place : {m_bytes, m_bytes + size - end})
            EXPECT_NE(VirtualAlloc(place, 2 * end, MEM_COMMIT, PAGE_READWRITE), nullptr);
    }
    LargestBuffer(const LargestBuffer&) = delete;
    LargestBuffer& operator=(const LargestBuffer&) = delete;
    ~LargestBuffer() { VirtualFree(m_bytes, 0, MEM_RELEASE); }

    char* Bytes() const { return m_bytes; }

private:
    static constexpr size_t size = size_t{1} << 31;
    static constexpr size_t end = size_t{1} << 16;

    char* m_bytes;
};

char* BufferOf(size_t argument)
{
    static const std::array<LargestBuffer, mostArguments> buffers;
    return buffers[argument].Bytes();
}

bool IsBuffer(const Argument& argument)
{
    return argument.kind == Kind::buffer || argument.kind == Kind::spare;
}

Value GoodValue(const Argument& argument, size_t index)
{
    switch (argument.kind)
    {
    case Kind::text: return reinterpret_cast<Value>(argument.text);
    case Kind::number: return argument.number;
    case Kind::size:
    case Kind::spareSize: return goodSize;
    default: return reinterpret_cast<Value>(BufferOf(index));
    }
}

std::vector<Value> GoodValues(const Export& function)
{
    std::vector<Value> values;
    for (const Argument& argument : function.arguments)
        values.push_back(GoodValue(argument, values.size()));
    return values;
}

// Further arguments than a function has are not looked at.
int Invoke(const Scene& scene, const Export& function, std::vector<Value> values)
{
    using Any = Value(Value, Value, Value, Value, Value, Value);
    values.resize(mostArguments);
    auto* const call = reinterpret_cast<Any*>(scene.GetAny(function.name));
    const Value result = call(values[0], values[1], values[2], values[3], values[4], values[5]);
    return function.hasResult ? static_cast<int>(result) : 0;
}

} // namespace

void PrintTo(const Observation& observation, std::ostream* stream)
{
    *stream << observation.result << " windows: " << observation.windows << " log: " << observation.log;
    for (const std::string& text : observation.buffers)
        *stream << " buffer: " << text;
}

int CallWithGoodValues(const Scene& scene, const Export& function)
{
    return Invoke(scene, function, GoodValues(function));
}

ObservedCall::ObservedCall(Scene& scene, const Export& function)
    : m_scene(scene), m_function(function), m_values(GoodValues(function))
{
}

Observation ObservedCall::Run()
{
    m_scene.Initialise();
    const std::string log = m_scene.folder.File("doc.log");
    DeleteFileA(log.c_str());
    for (size_t index = 0; index < m_values.size(); ++index)
        std::strcpy(BufferOf(index), untouched);
    {
        const Attendant attendant;
        m_function.prepare(m_scene);
    }

    Observation seen;
    const Attendant attendant;
    seen.result = Invoke(m_scene, m_function, m_values);
    seen.windows = attendant.Seen();
    seen.log = m_scene.folder.Has("doc.log") ? "written" : "";
    for (size_t index = 0; index < m_values.size(); ++index)
    {
        if (IsBuffer(m_function.arguments[index]))
            seen.buffers.emplace_back(BufferOf(index));
    }
    return seen;
}
