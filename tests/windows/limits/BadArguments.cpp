#include "BadArguments.h"

#include "Observation.h"

#include <limits>
#include <utility>

namespace
{

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

// The columns of the page.
constexpr const char* columns[] = {"null", "0", "negative", "2,147,483,647", "a million bytes"};
enum Column
{
    null,
    zero,
    negative,
    largest,
    longText,
};

const std::string& LongText()
{
    static const std::string text(1'000'000, 'x');
    return text;
}

// A call as its preparation leaves it, and the place of the argument that is bad in it.
struct BadCall
{
    Scene& scene;
    const Export& function;
    size_t argument;

    ObservedCall Good() const { return {scene, function}; }
    Observation WithValue(Value value) const { return Good().With(argument, value).Run(); }
    Observation WithText(const char* text) const { return WithValue(reinterpret_cast<Value>(text)); }
};

Observation LikeEmptyText(const BadCall& call)
{
    return call.WithText("");
}

// A long text is an ordinary one: it may be no name of anything, but nothing is cut off unseen.
Observation LikeLongText(const BadCall& call)
{
    return call.WithText(std::string(100'000, 'x').c_str());
}

Observation Refused(const BadCall& call)
{
    Observation nothing;
    for (const Argument& argument : call.function.arguments)
    {
        if (argument.kind == Kind::buffer || argument.kind == Kind::spare)
            nothing.buffers.emplace_back("untouched");
    }
    return nothing;
}

Observation WithoutSpare(const BadCall& call)
{
    Observation seen = call.Good().Run();
    seen.buffers.back() = "untouched";
    return seen;
}

Observation LikeAnySize(const BadCall& call)
{
    return call.Good().Run();
}

Observation LikeTheNegative(const BadCall& call)
{
    return call.WithValue(call.function.arguments[call.argument].negative.same);
}

Observation LikeTheLargest(const BadCall& call)
{
    return call.WithValue(call.function.arguments[call.argument].huge.same);
}

// A bad value of a kind, and with what its call is compared. Numbers have separate wordings.
struct BadValue
{
    Kind kind;
    Column column;
    Value value;
    Observation (*expected)(const BadCall& call);
    const char* wording;
};

const std::vector<BadValue>& BadValues()
{
    static const std::vector<BadValue> values = {
        {Kind::text, null, 0, LikeEmptyText, "as an empty text"},
        {Kind::text, longText, reinterpret_cast<Value>(LongText().c_str()), LikeLongText, "as any text"},
        {Kind::buffer, null, 0, Refused, "refused"},
        {Kind::spare, null, 0, WithoutSpare, "is not written"},
        {Kind::size, zero, 0, Refused, "refused"},
        {Kind::size, negative, -1, Refused, "refused"},
        {Kind::size, negative, lowest, Refused, "refused"},
        {Kind::size, largest, highest, LikeAnySize, "as any size"},
        {Kind::spareSize, zero, 0, WithoutSpare, "is not written"},
        {Kind::spareSize, negative, -1, WithoutSpare, "is not written"},
        {Kind::spareSize, negative, lowest, WithoutSpare, "is not written"},
        {Kind::spareSize, largest, highest, LikeAnySize, "as any size"},
        {Kind::number, negative, -1, LikeTheNegative, nullptr},
        {Kind::number, negative, lowest, LikeTheNegative, nullptr},
        {Kind::number, largest, highest, LikeTheLargest, nullptr},
    };
    return values;
}

std::string CellOf(const Argument& argument, Column column)
{
    for (const BadValue& bad : BadValues())
    {
        if (bad.kind != argument.kind || bad.column != column)
            continue;
        if (bad.wording != nullptr)
            return bad.wording;
        return column == negative ? argument.negative.wording : argument.huge.wording;
    }
    return "";
}

std::string RowOf(const std::string& name, const Argument& argument)
{
    std::string row = "| " + name + " |";
    for (const Column column : {null, zero, negative, largest, longText})
        row += " " + CellOf(argument, column) + " |";
    return row + "\n";
}

} // namespace

void ProveBadArguments(Scene& scene, const Export& function)
{
    // Otherwise there was no good call to compare with.
    EXPECT_EQ(ObservedCall(scene, function).Run().result != 0, function.hasResult);
    for (size_t index = 0; index < function.arguments.size(); ++index)
    {
        for (const BadValue& bad : BadValues())
        {
            if (bad.kind != function.arguments[index].kind)
                continue;
            SCOPED_TRACE("argument " + std::to_string(index + 1) + " of " + function.name + ": " + columns[bad.column]);
            const BadCall call = {scene, function, index};
            EXPECT_EQ(call.WithValue(bad.value), bad.expected(call));
        }
    }
}

std::string BadArgumentsTable()
{
    std::string text = "| argument |";
    std::string rule = "|---|";
    for (const char* column : columns)
    {
        text += std::string(" ") + column + " |";
        rule += "---|";
    }
    text += "\n" + rule + "\n";
    static constexpr std::pair<const char*, Kind> kinds[] = {
        {"a text", Kind::text},
        {"a buffer", Kind::buffer},
        {"a buffer's size", Kind::size},
        {"`second` of `lytGroupPropertyDialog`", Kind::spare},
        {"`secondSize` of `lytGroupPropertyDialog`", Kind::spareSize},
    };
    for (const auto& [name, kind] : kinds)
        text += RowOf(name, {.kind = kind});
    for (const Export& function : Exports())
    {
        for (const Argument& argument : function.arguments)
        {
            if (argument.kind == Kind::number)
                text += RowOf(std::string("`") + argument.name + "` of `" + function.name + "`", argument);
        }
    }
    return text;
}
