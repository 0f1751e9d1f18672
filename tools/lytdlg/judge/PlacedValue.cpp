#include "lytdlg/judge/PlacedValue.h"

#include "lytdlg/judge/StatementText.h"

#include <algorithm>

namespace lytdlg
{

PlacedValue::PlacedValue(const Case& whole, const ValueStatement& statement)
    : judged(whole),
      value(statement),
      kind(KindOfControl(whole.description, statement.name)),
      role(RoleOf(kind, statement))
{
}

// The second word is a keyword when a third one follows it.
ClytSpan PlacedValue::PlaceOfValue(size_t index) const
{
    const bool hasKeyword = !value.keyword.empty() || value.values.size() > 1;
    return PlaceOfWord(index + (hasKeyword ? 2 : 1));
}

ClytSpan PlacedValue::PlaceOfWord(size_t index) const
{
    const std::vector<LineToken> words = TokensOf(judged.description.text.Line(value.span.line).text, Section::Values);
    if (index >= words.size())
        return judged.description.PlaceOf(value.span.line);
    return {value.span.line, words[index].column, std::max(1, static_cast<int>(words[index].text.size()))};
}

} // namespace lytdlg
