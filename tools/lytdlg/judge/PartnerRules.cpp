#include "lytdlg/judge/Families.h"

#include "lytdlg/judge/Names.h"
#include "lytdlg/judge/PartnerCalls.h"
#include "lytdlg/judge/PartnerLibraries.h"

#include <algorithm>
#include <map>

namespace lytdlg
{

namespace
{

void JudgeFunctions(const Case& judged, const PartnerCall& call, const ExportTable& table)
{
    for (const std::string& name : call.functions)
    {
        if (std::ranges::find(table.names, name) != table.names.end())
            continue;
        Finding& finding = judged.findings.Add("partner-function", PlaceOf(judged.description, call, name),
                                               LibraryFileName(call.library) + " has no function " + InQuotes(name),
                                               HintForFunction(name, table.names, "name one of its functions"));
        finding.number = call.isAction ? lytError("FunctionMissing") : "";
        FixWord(judged, finding, {name, table.names, ""});
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
                .Add("partner-library", PlaceOf(judged.description, call, call.library),
                     file + " is in none of the folders for libraries",
                     "check its name, or give its folder with --partners")
                .number = call.isAction ? lytError("LibraryMissing") : "";
    }
    else if (partner->table.form != LibraryForm::Library)
        judged.findings
            .Add("partner-form", PlaceOf(judged.description, call, call.library),
                 partner->table.form == LibraryForm::OtherBits ? file + " is no 64-bit library"
                                                               : file + " is no library, or is damaged",
                 "build it for 64 bits")
            .number = call.isAction ? lytError("LibraryMissing") : "";
    else if (partner->failure)
        judged.findings
            .Add("partner-form", PlaceOf(judged.description, call, call.library),
                 file + " cannot be loaded: " + partner->failure->reason, partner->failure->hint)
            .number = call.isAction ? lytError("LibraryMissing") : "";
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
            judged.findings.Add("partner-shared", PlaceOf(judged.description, call, call.library),
                                InQuotes(before->statement->name) + " in line " +
                                    std::to_string(before->statement->span.line) + " names " +
                                    LibraryFileName(before->library) + ", and controls of one type share a library",
                                "put the functions into one library");
    }
}

} // namespace

void ApplyPartnerRules(const Case& judged)
{
    const std::vector<PartnerCall> calls = PartnerCallsOf(judged.description);
    for (const PartnerCall& call : calls)
        JudgeCall(judged, call, *judged.surroundings.partners);
    JudgeShared(judged, calls);
}

} // namespace lytdlg
