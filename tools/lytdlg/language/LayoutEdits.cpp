#include "lytdlg/language/LayoutEdits.h"

#include "controls/TypeWords.h"
#include "lytdlg/judge/StatementText.h"
#include "lytdlg/text/NewDialog.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Words.h"
#include "model/ClytScale.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace lytdlg
{

namespace
{

const ClytResolution& ResolutionOf(int pixelsPerInch)
{
    const auto known = std::ranges::find(lytResolutions, pixelsPerInch, &ClytResolution::pixelsPerInch);
    return known != std::end(lytResolutions) ? *known : lytResolutions[0];
}

const ClytControlStatement& StatementIn(const Description& description, int line)
{
    const auto statement = std::ranges::find_if(description.controls, [&](const ClytControlStatement& one)
                                                { return one.span.line == line && !one.type.IsEmpty(); });
    if (statement == description.controls.end())
        throw std::runtime_error("line " + std::to_string(line) + " has no statement of a control");
    return *statement;
}

ClytSpan SpanOf(int line, const LineToken& word)
{
    return {line, word.column, static_cast<int>(word.text.size())};
}

TextRange WholeLine(const Description& description, int line)
{
    const auto length = static_cast<int>(description.text.Line(line).text.size());
    return {{line - 1, 0}, {line - 1, length}};
}

// The line that a new statement comes after.
int LineBefore(const Description& description, int after)
{
    if (after != 0)
        return StatementIn(description, after).span.line;
    int line = description.dialogHeader.line;
    for (const ClytControlStatement& control : description.controls)
    {
        if (!lytTypeOf(control.type.GetString()).isDefault)
            line = std::max(line, control.span.line);
    }
    return line;
}

bool IsTaken(const Workspace& workspace, const std::string& path, const std::string& name)
{
    const Description& description = workspace.DescriptionAt(path);
    const auto hasKey = [&](const LanguageFile& file) { return file.Find(description.TextSection(), name) != nullptr; };
    return description.FindControl(name) != nullptr ||
           std::ranges::any_of(workspace.SurroundingsAt(path).texts.Files(), hasKey);
}

std::string FreeName(const Workspace& workspace, const std::string& path, const std::string& type)
{
    int number = 1;
    while (IsTaken(workspace, path, type + std::to_string(number)))
        ++number;
    return type + std::to_string(number);
}

std::string StatementOf(const NewControl& control, const ClytType& type, const ClytResolution& scale)
{
    if (type.kind == ClytKind::OptionGroup)
        return control.type + " ." + control.name;
    std::string statement = control.type;
    const char* between = " ";
    for (const int units :
         {UnitsFor(control.place.x.value_or(0), scale.x), UnitsFor(control.place.y.value_or(0), scale.y),
          UnitsFor(control.place.width.value_or(0), scale.x), UnitsFor(control.place.height.value_or(0), scale.y)})
    {
        statement += between + std::to_string(units);
        between = ", ";
    }
    return statement + (type.hasCaption ? ", \"" + control.name + "\"" : "") + ", ." + control.name;
}

} // namespace

int UnitsFor(int pixels, float factor)
{
    const auto guess = static_cast<int>(std::lround(static_cast<float>(pixels) / factor));
    int best = guess;
    for (const int units : {guess - 1, guess + 1})
    {
        if (std::abs(lytScaled(units, factor) - pixels) < std::abs(lytScaled(best, factor) - pixels))
            best = units;
    }
    return best;
}

std::vector<TextEdit> PlacingOf(const Description& description, const std::vector<ControlPlace>& places,
                                int pixelsPerInch)
{
    const ClytResolution& scale = ResolutionOf(pixelsPerInch);
    std::vector<TextEdit> edits;
    for (const ControlPlace& place : places)
    {
        const ClytControlStatement& statement = StatementIn(description, place.line);
        const std::vector<LineToken> words = TokensOf(description.text.Line(place.line).text, Section::Layout);
        const struct
        {
            const std::optional<int>& pixels;
            int units;
            float factor;
        } numbers[] = {{place.x, statement.x, scale.x},
                       {place.y, statement.y, scale.y},
                       {place.width, statement.width, scale.x},
                       {place.height, statement.height, scale.y}};
        // After the type.
        size_t word = 0;
        for (const auto& number : numbers)
        {
            ++word;
            const bool isWritten = word < words.size() && words[word].text == std::to_string(number.units);
            if (isWritten && number.pixels && lytScaled(number.units, number.factor) != *number.pixels)
                edits.push_back({RangeOf(SpanOf(place.line, words[word])),
                                 std::to_string(UnitsFor(*number.pixels, number.factor))});
        }
    }
    return edits;
}

std::vector<TextEdit> OrderingOf(const Description& description, const std::vector<int>& lines)
{
    std::vector<int> places = lines;
    std::ranges::sort(places);
    if (std::adjacent_find(places.begin(), places.end()) != places.end())
        throw std::runtime_error("a line is there twice");
    std::vector<TextEdit> edits;
    for (size_t index = 0; index < lines.size(); ++index)
    {
        StatementIn(description, lines[index]);
        if (lines[index] != places[index])
            edits.push_back({WholeLine(description, places[index]), description.text.Line(lines[index]).text});
    }
    return edits;
}

std::vector<TextEdit> RemovalOf(const Description& description, const std::vector<int>& lines)
{
    std::vector<TextEdit> edits;
    for (const int line : lines)
    {
        StatementIn(description, line);
        edits.push_back({{{line - 1, 0}, {line, 0}}, ""});
    }
    return edits;
}

EditsByPath AdditionOf(const Workspace& workspace, const std::string& path, NewControl control, int pixelsPerInch)
{
    const ClytType& type = lytTypeOf(control.type);
    const Description& description = workspace.DescriptionAt(path);
    if (type.kind == ClytKind::Unknown)
        throw std::runtime_error("there is no type of control \"" + control.type + "\"");
    if (!description.hasDialogHeader)
        throw std::runtime_error("the description has no line Begin Dialog");
    if (control.name.empty())
        control.name = FreeName(workspace, path, control.type);
    else if (IsTaken(workspace, path, control.name))
        throw std::runtime_error("the name \"" + control.name + "\" is there already");

    const int before = LineBefore(description, control.after);
    const std::string& model = description.text.Line(before).text;
    const std::string indent =
        before == description.dialogHeader.line ? "    " : model.substr(0, model.find_first_not_of(" \t"));
    const TextPosition end = WholeLine(description, before).end;
    EditsByPath edits = {
        {path,
         {{{end, end},
           LineEndOf(description.text.Bytes()) + indent + StatementOf(control, type, ResolutionOf(pixelsPerInch))}}}};
    if (!type.hasCaption)
        return edits;
    const std::string key = control.name + "=" + (control.text.empty() ? control.name : control.text) + "\n";
    for (const LanguageFile& file : workspace.SurroundingsAt(path).texts.Files())
    {
        const std::string name = PlainPath(file.FileName());
        const std::string content = workspace.BytesOf(name);
        edits[name] = EditsBetween(content, WithKeys(content, description.TextSection(), key));
    }
    return edits;
}

} // namespace lytdlg
