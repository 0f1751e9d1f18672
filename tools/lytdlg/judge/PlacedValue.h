// A statement of $VALUES with what its control makes of it and the places of its words.
#pragma once

#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/Judge.h"

namespace lytdlg
{

struct PlacedValue
{
    // Both outlive it.
    PlacedValue(const Case& whole, const ValueStatement& statement);

    ClytSpan PlaceOfName() const { return PlaceOfWord(0); }
    ClytSpan PlaceOfKeyword() const { return PlaceOfWord(1); }
    // Of a value, from 0.
    ClytSpan PlaceOfValue(size_t index = 0) const;
    std::string Name() const { return InQuotes(value.name); }

    const Case& judged;
    const ValueStatement& value;
    const Kind kind;
    const Role role;

private:
    ClytSpan PlaceOfWord(size_t index) const;
};

} // namespace lytdlg
