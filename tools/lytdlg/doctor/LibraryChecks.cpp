#include "lytdlg/doctor/Checks.h"
#include "lytdlg/doctor/Deployment.h"

#include "commandline/CommandLine.h"
#include "lytdlg/judge/ExportTable.h"
#include "lytdlg/judge/PartnerCalls.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Words.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

constexpr const char* aboutLibrary = "library";

void JudgeFunctions(const std::filesystem::path& file, const ExportTable& table, Diagnosis& diagnosis)
{
    std::vector<std::string> missing;
    std::ranges::copy_if(OwnFunctions(), std::back_inserter(missing),
                         [&](const std::string& name)
                         { return std::ranges::find(table.names, name) == table.names.end(); });
    if (missing.empty())
        diagnosis.Add(Verdict::Good, aboutLibrary, file,
                      "64-bit, with all " + std::to_string(OwnFunctions().size()) + " functions");
    else
        diagnosis.Add(Verdict::Wrong, aboutLibrary, file,
                      missing.size() == OwnFunctions().size() ? "has none of the functions"
                                                              : "lacks functions: " + Joined(missing),
                      "it is another library, or of another version; copy the lyt64.dll that belongs to these tools");
}

// Against the checksums that were handed out with it.
void JudgeChecksum(const Deployment& deployment, const std::string& bytes, Diagnosis& diagnosis)
{
    const std::filesystem::path& file = deployment.library.chosen;
    const std::string own = ChecksumOf(bytes);
    const std::string version = VersionOf(bytes);
    diagnosis.Add(Verdict::Good, aboutLibrary, file,
                  (version.empty() ? "without a version" : "version " + version) + ", SHA-256 " + own);
    if (!version.empty() && version != std::string(commandline::projectVersion) + ".0")
        diagnosis.Add(Verdict::Warning, aboutLibrary, file,
                      std::string("is of another version than these tools, which are ") + commandline::projectVersion,
                      "after an upgrade or a way back, copy library and tools from one package");
    for (const std::filesystem::path& sums : deployment.checksums)
    {
        const std::optional<std::string> listed = ListedChecksumOf(sums, file);
        if (listed && !IsSameName(*listed, own))
            diagnosis.Add(Verdict::Wrong, aboutLibrary, file, "is not the file that " + sums.string() + " names",
                          "it is damaged, or of another version; copy it again");
    }
}

void JudgeFile(const Deployment& deployment, Diagnosis& diagnosis)
{
    const std::filesystem::path& file = deployment.library.chosen;
    const std::optional<std::string> bytes = ReadWholeFile(file);
    if (!bytes)
    {
        AddUnreadable(Verdict::Wrong, aboutLibrary, file, diagnosis);
        return;
    }
    const ExportTable table = ReadExports(*bytes);
    switch (table.form)
    {
    case LibraryForm::NoLibrary:
        diagnosis.Add(Verdict::Wrong, aboutLibrary, file, "is no library, or is damaged", "copy it again");
        break;
    case LibraryForm::OtherBits:
        diagnosis.Add(Verdict::Wrong, aboutLibrary, file, "is no 64-bit library", "copy the 64-bit lyt64.dll");
        break;
    case LibraryForm::Library: JudgeFunctions(file, table, diagnosis); break;
    }
    JudgeChecksum(deployment, *bytes, diagnosis);
}

} // namespace

void JudgeLibrary(const Deployment& deployment, Diagnosis& diagnosis)
{
    if (deployment.library.chosen.empty())
    {
        diagnosis.Add(Verdict::Wrong, aboutLibrary, {}, "there is no lyt64.dll in the folders",
                      "copy it there, or name it with --library");
        return;
    }
    JudgeFile(deployment, diagnosis);
    for (const std::filesystem::path& other : deployment.library.others)
        diagnosis.Add(Verdict::Warning, aboutLibrary, other, "is a second copy, and the macros may load either",
                      "remove it, or name the one that is meant with --library");
}

void JudgeHost(const Host& host, Diagnosis& diagnosis)
{
    constexpr const char* aboutHost = "host";
    const std::string name = "name the word processor's program with --host";
    if (host.program.empty())
    {
        diagnosis.Add(Verdict::Note, aboutHost, {}, "the program that loads the library is not known", name);
        return;
    }
    const std::optional<std::string> bytes = ReadWholeFile(host.program);
    const int bits = BitsOf(bytes.value_or(""));
    if (bits == 0)
        diagnosis.Add(Verdict::Wrong, aboutHost, host.program,
                      bytes ? "is no program for Windows on this kind of processor" : "cannot be read", name);
    else if (bits != 64)
        diagnosis.Add(Verdict::Wrong, aboutHost, host.program, "is a 32-bit program, which cannot load the library",
                      "install the 64-bit edition of the word processor");
    else if (!host.isKnown)
        diagnosis.Add(Verdict::Note, aboutHost, host.program,
                      "is taken for the word processor, since none is registered", name);
    else
        diagnosis.Add(Verdict::Good, aboutHost, host.program, "64-bit");
}

} // namespace lytdlg
