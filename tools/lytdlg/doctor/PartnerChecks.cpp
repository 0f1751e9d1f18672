#include "lytdlg/doctor/Checks.h"
#include "lytdlg/doctor/WantedLibraries.h"

#include "commandline/Text.h"
#include "lytdlg/judge/LoadTrial.h"
#include "lytdlg/judge/Names.h"
#include "lytdlg/judge/PartnerCalls.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Words.h"

#include <algorithm>

namespace lytdlg
{

namespace fs = std::filesystem;
using commandline::ToUtf8;

namespace
{

constexpr const char* aboutPartners = "partners";
constexpr const char* otherVersion = "its version may be another one; copy the right one";

struct FoundCopy
{
    fs::path file;
    SearchFolder folder;
    std::string bytes;
};

// Paths to one file may differ.
bool Holds(const std::vector<FoundCopy>& copies, const fs::path& file)
{
    std::error_code ignored;
    return std::ranges::any_of(copies, [&](const FoundCopy& copy) { return fs::equivalent(copy.file, file, ignored); });
}

bool HasFolder(const std::string& name)
{
    return name.find_first_of("\\/") != std::string::npos;
}

// A library that is named with its whole path is nowhere else.
std::vector<FoundCopy> CopiesOf(const std::string& name, const std::vector<SearchFolder>& folders)
{
    std::vector<FoundCopy> copies;
    const auto add = [&](const fs::path& file, const SearchFolder& folder)
    {
        if (!file.empty() && !Holds(copies, file))
            copies.push_back({file, folder, ReadWholeFile(file).value_or("")});
    };
    const std::string fileName = ToUtf8(LibraryFileName(name));
    if (HasFolder(name))
    {
        std::string folder = ToUtf8(name.substr(0, name.find_last_of("\\/")));
        std::ranges::replace(folder, '\\', '/');
        add(FileIn(PathOf(folder), fileName), {PathOf(folder), "the folder that the description names"});
        return copies;
    }
    for (const SearchFolder& folder : folders)
    {
        if (!folder.isQuoted)
            add(FileIn(folder.folder, fileName), folder);
    }
    return copies;
}

// The library is loaded before any partner.
LoadSurroundings LoadSurroundingsOf(const Deployment& deployment)
{
    LoadSurroundings surroundings = {{}, deployment.library.chosen};
    for (const SearchFolder& each : deployment.search)
    {
        if (!each.isQuoted)
            surroundings.folders.push_back(each.folder);
    }
    return surroundings;
}

class PartnerJudge
{
public:
    PartnerJudge(const Deployment& deployment, const WantedLibrary& wanted, Diagnosis& diagnosis)
        : m_deployment(deployment),
          m_wanted(wanted),
          m_diagnosis(diagnosis),
          m_fileName(ToUtf8(LibraryFileName(wanted.name)))
    {
    }

    // Gives the copy that is loaded, or an empty path.
    fs::path Judge()
    {
        const std::vector<FoundCopy> copies = CopiesOf(m_wanted.name, m_deployment.search);
        if (copies.empty())
        {
            TellMissing();
            return {};
        }
        if (JudgeForm(copies.front()))
            JudgeLoaded(copies);
        return copies.front().file;
    }

private:
    void TellMissing()
    {
        const auto quoted = std::ranges::find_if(m_deployment.search, [&](const SearchFolder& each)
                                                 { return each.isQuoted && !FileIn(each.folder, m_fileName).empty(); });
        if (quoted != m_deployment.search.end() && !HasFolder(m_wanted.name))
        {
            m_diagnosis.Add(m_wanted.whenMissing, aboutPartners, FileIn(quoted->folder, m_fileName),
                            std::string("is not found by Windows, since there are quotes round ") + quoted->name +
                                "; " + m_wanted.consequence,
                            "take the quotes away there");
            return;
        }
        const auto own = std::ranges::find_if(m_deployment.libraries, [&](const fs::path& file)
                                              { return IsSameName(file.filename().string(), m_fileName); });
        const bool isHere = own != m_deployment.libraries.end();
        const std::string where = HasFolder(m_wanted.name) ? "is not in the folder that the description names"
                                                           : "is in none of the folders that Windows searches";
        m_diagnosis.Add({m_wanted.whenMissing, aboutPartners, m_wanted.path, m_wanted.place,
                         m_fileName + " " + where + (isHere ? ", but is in " + own->parent_path().string() : "") +
                             "; " + m_wanted.consequence,
                         HasFolder(m_wanted.name) ? "copy it there"
                                                  : "copy it to the folder of the word processor's program, or add its "
                                                    "folder to PATH"});
    }

    // One that is there was meant to work.
    Verdict WhenUseless() const { return m_wanted.whenMissing == Verdict::Note ? Verdict::Warning : Verdict::Wrong; }

    bool JudgeForm(const FoundCopy& loaded)
    {
        m_table = ReadExports(loaded.bytes);
        if (m_table.form == LibraryForm::Library)
            return JudgeLoading(loaded.file);
        const bool isOther = m_table.form == LibraryForm::OtherBits;
        m_diagnosis.Add(WhenUseless(), aboutPartners, loaded.file,
                        (isOther ? "is no 64-bit library; " : "is no library, or is damaged or cannot be read; ") +
                            m_wanted.consequence,
                        isOther ? "put a 64-bit one in its place" : "copy it again");
        return false;
    }

    bool JudgeLoading(const fs::path& file)
    {
        const std::optional<LoadFailure> failure = TryToLoad(file, m_table, LoadSurroundingsOf(m_deployment));
        if (failure)
            m_diagnosis.Add(WhenUseless(), aboutPartners, file,
                            "cannot be loaded: " + failure->reason + "; " + m_wanted.consequence, failure->hint);
        return !failure;
    }

    void JudgeLoaded(const std::vector<FoundCopy>& copies)
    {
        const FoundCopy& loaded = copies.front();
        if (JudgeFunctions())
            m_diagnosis.Add(Verdict::Good, aboutPartners, loaded.file,
                            std::string("in ") + loaded.folder.name + ", with " + NamesOf(&PartnerJudge::Has));
        if (loaded.folder.isCurrent)
            m_diagnosis.Add(Verdict::Warning, aboutPartners, loaded.file,
                            "is found in the current folder only, which is another one at another time",
                            "copy it to the folder of the word processor's program, or add its folder to PATH");
        JudgeOthers(copies);
    }

    // False when one that is needed is missing, or all of them are.
    bool JudgeFunctions()
    {
        const auto has = [this](const WantedFunction& function) { return Has(function); };
        const auto lacks = [this](const WantedFunction& function) { return function.isNeeded && !Has(function); };
        for (const WantedFunction& function : m_wanted.functions)
        {
            if (lacks(function))
                Tell(function, "has no function " + InQuotes(ToUtf8(function.name)),
                     HintForFunction(function.name, m_table.names, otherVersion));
        }
        if (std::ranges::any_of(m_wanted.functions, lacks))
            return false;
        if (std::ranges::any_of(m_wanted.functions, has))
            return true;
        Tell({}, "has none of the functions " + NamesOf(&PartnerJudge::Lacks), otherVersion);
        return false;
    }

    void Tell(const WantedFunction& function, const std::string& message, const std::string& hint)
    {
        m_diagnosis.Add({WhenUseless(), aboutPartners, function.path, function.place,
                         m_fileName + " " + message + "; " + m_wanted.consequence, hint});
    }

    bool Has(const WantedFunction& function) const
    {
        return std::ranges::find(m_table.names, function.name) != m_table.names.end();
    }
    bool Lacks(const WantedFunction& function) const { return !Has(function); }

    // A copy that is never loaded does no harm, unless somebody takes it for the one that is.
    void JudgeOthers(std::vector<FoundCopy> copies)
    {
        const FoundCopy loaded = copies.front();
        for (const fs::path& file : m_deployment.libraries)
        {
            if (IsSameName(file.filename().string(), m_fileName) && !HasFolder(m_wanted.name) && !Holds(copies, file))
                copies.push_back({file, {}, ReadWholeFile(file).value_or("")});
        }
        for (const FoundCopy& copy : copies)
        {
            if (copy.bytes != loaded.bytes)
                m_diagnosis.Add(Verdict::Warning, aboutPartners, copy.file,
                                "is another " + m_fileName + " than the one that is loaded, " + loaded.file.string() +
                                    " in " + loaded.folder.name,
                                "remove the one that is not meant");
        }
    }

    std::string NamesOf(bool (PartnerJudge::*isChosen)(const WantedFunction&) const) const
    {
        std::vector<std::string> names;
        for (const WantedFunction& function : m_wanted.functions)
        {
            if ((this->*isChosen)(function))
                names.push_back(ToUtf8(function.name));
        }
        return Joined(names);
    }

    const Deployment& m_deployment;
    const WantedLibrary& m_wanted;
    Diagnosis& m_diagnosis; // of the caller, like the two above
    const std::string m_fileName;
    ExportTable m_table;
};

// Somebody who provides a document can put a library beside it, and Windows loads one from the current folder that no folder
// before has. Of partners in the current folder there is a finding already.
void JudgePlanted(const Deployment& deployment, const std::vector<WantedLibrary>& wanted, Diagnosis& diagnosis)
{
    const auto judge = [&](const fs::path& folder, const std::string& name)
    {
        const auto isSearched = [&](const SearchFolder& each)
        {
            std::error_code ignored;
            return !each.isCurrent && fs::equivalent(each.folder, folder, ignored);
        };
        const fs::path file = FileIn(folder, name);
        if (!file.empty() && std::ranges::none_of(deployment.search, isSearched))
            diagnosis.Add(Verdict::Warning, aboutPartners, file,
                          "is in the current folder or in that of the document, from where Windows may load it",
                          "remove it, unless you know who put it there, and keep partners in folders that users cannot "
                          "write");
    };
    const std::string companion = "lyt.dll";
    for (const SearchFolder& each : deployment.search)
    {
        if (each.isCurrent)
            judge(each.folder, companion);
    }
    if (deployment.document.empty())
        return;
    const fs::path folder = fs::absolute(PathOf(deployment.document)).parent_path();
    judge(folder, companion);
    for (const WantedLibrary& each : wanted)
        judge(folder, ToUtf8(LibraryFileName(each.name)));
}

} // namespace

std::vector<fs::path> JudgePartners(const Deployment& deployment, const std::list<Description>& descriptions,
                                    Diagnosis& diagnosis)
{
    std::vector<fs::path> loaded;
    if (deployment.search.empty())
    {
        diagnosis.Add(Verdict::Note, aboutPartners, {},
                      "cannot be judged, since the folders that Windows searches are not known",
                      "name the word processor's program with --host, and the folders of PATH with --partners");
        return loaded;
    }
    const std::vector<WantedLibrary> all = WantedLibraries(descriptions);
    JudgePlanted(deployment, all, diagnosis);
    for (const WantedLibrary& wanted : all)
    {
        const fs::path file = PartnerJudge(deployment, wanted, diagnosis).Judge();
        if (!file.empty())
            loaded.push_back(file);
    }
    return loaded;
}

} // namespace lytdlg
