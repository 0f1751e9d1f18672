#include "lytdlg/judge/PartnerRules.h"

#include "lytdlg/judge/Names.h"
#include "lytdlg/judge/PartnerCalls.h"
#include "lytdlg/judge/PartnerLibraries.h"

#include <algorithm>
#include <map>

namespace lytdlg
{

namespace
{
namespace partner_rules
{

constexpr Rule library = {
    "partner-library",
    Level::Warning,
    "A library is in none of the folders.",
    "A list or a field that is FILLEDBY it stays empty without a message; an ACTION shows one. Give "
    "each folder that may\nhold it with --partners.",
    "",
    ""};

constexpr Rule form = {
    "partner-form",
    Level::Warning,
    "A 64-bit program cannot load a library.",
    "A 64-bit word processor loads 64-bit libraries only, and finds what they need in the same folders. On\n"
    "Windows each library is loaded, in a separate process, to see whether it can be.",
    "",
    ""};

constexpr Rule function = {
    "partner-function",
    Level::Warning,
    "A library has no function of that name.",
    "A list or a field stays empty without a message; an ACTION shows one. Names are compared letter by\n"
    "letter. The functions of libraries other than lyt64.dll are known only with --partners.",
    "$LAYOUT Example\n    PushButton 520, 12, 90, 21, \"Remove\", .More\n"
    "$VALUES\n    More: ACTION = lyt64.dll, lytOpenTreeVeiw, Out, Back\n$INPUT, Back\n    Start: (999, End = Name\n"
    "$OUTPUT, Out\n    (\"%s\", Name)",
    "$LAYOUT Example\n    PushButton 520, 12, 90, 21, \"Remove\", .More\n"
    "$VALUES\n    More: ACTION = lyt64.dll, lytOpenTreeView, Out, Back\n$INPUT, Back\n    Start: (999, End = Name\n"
    "$OUTPUT, Out\n    (\"%s\", Name)"};

constexpr Rule shared = {
    "partner-shared",
    Level::Warning,
    "Two controls of one type name different libraries.",
    "All lists of one type share the first library that any of them loaded, for the life of the process, and so do "
    "all\n"
    "fields, and all lists that drop down. Put the functions into one library.",
    "$LAYOUT Example\n    ListBox 520, 12, 100, 34, .More\n    ListBox 520, 64, 100, 34, .Most\n"
    "$VALUES\n    More = FILLEDBY, lytdata, Open, Next\n    Most = FILLEDBY, other, Open, Next",
    "$LAYOUT Example\n    ListBox 520, 12, 100, 34, .More\n    CheckListBox 520, 64, 100, 34, .Most\n"
    "$VALUES\n    More = FILLEDBY, lytdata, Open, Next\n    Most = FILLEDBY, other, Open, Next"};

void JudgeFunctions(const Case& judged, const PartnerCall& call, const ExportTable& table)
{
    for (const std::string& name : call.functions)
    {
        if (std::ranges::find(table.names, name) != table.names.end())
            continue;
        judged.findings
            .Add(function, PlaceOf(judged.description, call, name),
                 LibraryFileName(call.library) + " has no function " + InQuotes(name),
                 HintForFunction(name, table.names, "name one of its functions"))
            .number = call.isAction ? "232" : "";
    }
}

void JudgeCall(const Case& judged, const PartnerCall& call, PartnerLibraries& partners)
{
    const std::string file = LibraryFileName(call.library);
    const Partner* const partner = partners.Find(file);
    if (partner == nullptr)
    {
        if (partners.AreKnown())
            judged.findings
                .Add(library, PlaceOf(judged.description, call, call.library),
                     file + " is in none of the folders for libraries",
                     "check its name, or give its folder with --partners")
                .number = call.isAction ? "233" : "";
    }
    else if (partner->table.form != LibraryForm::Library)
        judged.findings
            .Add(form, PlaceOf(judged.description, call, call.library),
                 partner->table.form == LibraryForm::OtherBits ? file + " is no 64-bit library"
                                                               : file + " is no library, or is damaged",
                 "build it for 64 bits")
            .number = call.isAction ? "233" : "";
    else if (partner->failure)
        judged.findings
            .Add(form, PlaceOf(judged.description, call, call.library),
                 file + " cannot be loaded: " + partner->failure->reason, partner->failure->hint)
            .number = call.isAction ? "233" : "";
    else
        JudgeFunctions(judged, call, partner->table);
}

// A drop-down list and a combo box are of one type.
Kind SharedKind(Kind kind)
{
    return kind == Kind::DropList ? Kind::Combo : kind;
}

void JudgeShared(const Case& judged, const std::vector<PartnerCall>& calls)
{
    std::map<Kind, const PartnerCall*> first;
    for (const PartnerCall& call : calls)
    {
        if (call.isAction)
            continue;
        const PartnerCall* before = first.emplace(SharedKind(call.kind), &call).first->second;
        if (!IsSameName(LibraryFileName(before->library), LibraryFileName(call.library)))
            judged.findings.Add(shared, PlaceOf(judged.description, call, call.library),
                                InQuotes(before->statement->name) + " in line " +
                                    std::to_string(before->statement->span.line) + " names " +
                                    LibraryFileName(before->library) + ", and controls of one type share a library",
                                "put the functions into one library");
    }
}

} // namespace partner_rules
} // namespace

Family PartnerRules()
{
    using namespace partner_rules;
    return {{&library, &form, &function, &shared},
            [](const Case& judged)
            {
                const std::vector<PartnerCall> calls = PartnerCallsOf(judged.description);
                for (const PartnerCall& call : calls)
                    JudgeCall(judged, call, *judged.surroundings.partners);
                JudgeShared(judged, calls);
            }};
}

} // namespace lytdlg
