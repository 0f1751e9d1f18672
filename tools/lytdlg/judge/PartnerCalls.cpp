#include "lytdlg/judge/PartnerCalls.h"

#include "lytdlg/judge/Names.h"
#include "lytdlg/text/LanguageFiles.h"

#include <algorithm>
#include <sstream>

namespace lytdlg
{

std::vector<PartnerCall> PartnerCallsOf(const Description& description)
{
    std::vector<PartnerCall> calls;
    for (const ValueStatement& statement : description.values)
    {
        const ClytControlStatement* control = description.FindControl(statement.name);
        if (control == nullptr || statement.values.size() < 2)
            continue;
        const Kind kind = KindOf(*control);
        const bool isFilled = lytMeaningOf<ClytKeyword>(statement.keyword.c_str()) == ClytKeyword::FilledBy;
        const bool isAction =
            kind == Kind::Button && lytMeaningOf<ClytAction>(statement.keyword.c_str()) == ClytAction::Action;
        if (!isAction && !(isFilled && lytTypeOf(kind).isFilled))
            continue;
        PartnerCall call = {&statement, kind, statement.values[0], {statement.values[1]}, isAction};
        // The second function gives the next item; for a field it means nothing.
        if (lytTypeOf(kind).hasItems && statement.values.size() > 2)
            call.functions.push_back(statement.values[2]);
        calls.push_back(std::move(call));
    }
    return calls;
}

ClytSpan PlaceOf(const Description& description, const PartnerCall& call, const std::string& word)
{
    const ClytSpan& span = call.statement->span;
    const auto after = span.column + static_cast<int>(call.statement->name.size());
    return description.PlaceOf(span.line, word, after);
}

std::string LibraryFileName(const std::string& name)
{
    const std::string file = name.substr(name.find_last_of("\\/") + 1);
    return file.find('.') == std::string::npos ? file + ".dll" : file;
}

std::string HintForFunction(const std::string& function, const std::vector<std::string>& known,
                            const std::string& otherwise)
{
    // As the compilers of C++ decorate the name.
    const std::string gnu = "_Z" + std::to_string(function.size()) + function;
    const std::string microsoft = "?" + function + "@";
    const auto decorated = std::ranges::find_if(known, [&](const std::string& name)
                                                { return name.starts_with(gnu) || name.starts_with(microsoft); });
    if (decorated != known.end())
        return InQuotes(*decorated) + " is that function of C++; declare it extern \"C\"";
    return MeantOr(function, known, otherwise);
}

bool IsOwnLibrary(const std::string& fileName)
{
    return IsSameName(fileName, "lyt64.dll");
}

const std::vector<std::string>& OwnFunctions()
{
    static const std::vector<std::string> functions = []
    {
        std::vector<std::string> own;
        std::istringstream names(LYT_EXPORTED_NAMES);
        for (std::string name; std::getline(names, name, ',');)
            own.push_back(name);
        return own;
    }();
    return functions;
}

} // namespace lytdlg
