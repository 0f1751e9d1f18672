#include "lytdlg/doctor/WantedLibraries.h"

#include "lytdlg/judge/PartnerCalls.h"
#include "lytdlg/text/LanguageFiles.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

WantedLibrary WantedBy(const OwnPartner& partner)
{
    WantedLibrary wanted = {partner.name, "", {}, {}, partner.whenMissing, partner.consequence};
    for (const char* function : partner.needed)
        wanted.functions.push_back({function, "", {}});
    for (const char* function : partner.optional)
        wanted.functions.push_back({function, "", {}, false});
    return wanted;
}

// With the extension that the platform would add.
std::string WholeName(const std::string& library)
{
    return library.substr(0, library.find_last_of("\\/") + 1) + LibraryFileName(library);
}

void AddCall(const Description& description, const PartnerCall& call, std::vector<WantedLibrary>& wanted)
{
    const auto isNamed = [&](const WantedLibrary& each)
    { return IsSameName(WholeName(each.name), WholeName(call.library)); };
    auto library = std::ranges::find_if(wanted, isNamed);
    if (library == wanted.end())
    {
        wanted.push_back({call.library,
                          description.path,
                          PlaceOf(description, call, call.library),
                          {},
                          Verdict::Wrong,
                          call.isAction ? "the button shows a message and does nothing" : "what it fills stays empty"});
        library = wanted.end() - 1;
    }
    for (const std::string& function : call.functions)
    {
        if (std::ranges::find(library->functions, function, &WantedFunction::name) == library->functions.end())
            library->functions.push_back({function, description.path, PlaceOf(description, call, function)});
    }
}

} // namespace

const std::vector<OwnPartner>& OwnPartners()
{
    static const std::vector<OwnPartner> partners = {
        {"lytsrc",
         {"lytTreeStart", "lytTreeNext"},
         {"lytParaTreeStart", "lytParaTreeNext"},
         Verdict::Warning,
         "the catalogue stays empty"},
        {"LytRes64.dll", {}, {"getLYTVersion", "getVersion"}, Verdict::Note, "the report leaves its version out"},
    };
    return partners;
}

std::vector<WantedLibrary> WantedLibraries(const std::list<Description>& descriptions)
{
    std::vector<WantedLibrary> wanted;
    for (const OwnPartner& partner : OwnPartners())
        wanted.push_back(WantedBy(partner));
    for (const Description& description : descriptions)
    {
        for (const PartnerCall& call : PartnerCallsOf(description))
        {
            // Of a statement without a name `check` tells.
            if (!call.library.empty() && !IsOwnLibrary(LibraryFileName(call.library)))
                AddCall(description, call, wanted);
        }
    }
    return wanted;
}

} // namespace lytdlg
