#include "Stage.h"

#include "Calls.h"
#include "Catalogues.h"
#include "Closer.h"

#include "lyt64.h"

#include "support/Library.h"
#include "support/Mutations.h"
#include "tree/TestSource.h"
#include "tree/TestSources.h"

#include <filesystem>
#include <fstream>
#include <sstream>

namespace
{

namespace fs = std::filesystem;

const std::string languageFile = "lang/English.nls";

std::string ReadFile(const fs::path& path)
{
    std::ifstream file(path, std::ios::binary);
    if (!file)
        throw std::runtime_error(path.string() + " is not to be found");
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

// The texts with messages that tell their numbers.
std::string WithNumbers(const std::string& texts)
{
    std::istringstream lines(texts);
    std::string numbered;
    bool isError = false;
    for (std::string line; std::getline(lines, line);)
    {
        if (line.starts_with("["))
            isError = line.starts_with("[Dialog_Error]");
        const size_t end = line.find('=');
        const bool isText = isError && end != std::string::npos;
        numbered += (isText ? line.substr(0, end) + "=" + line.substr(0, end) + " ''\r" : line) + "\n";
    }
    return numbered;
}

double ProcessorSeconds()
{
    FILETIME unused = {};
    FILETIME kernel = {};
    FILETIME user = {};
    GetThreadTimes(GetCurrentThread(), &unused, &unused, &kernel, &user);
    constexpr double perSecond = 1e7;
    const auto ticks = [](const FILETIME& time)
    { return static_cast<double>((static_cast<ULONGLONG>(time.dwHighDateTime) << 32U) + time.dwLowDateTime); };
    return (ticks(kernel) + ticks(user)) / perSecond;
}

template <class Function>
Function* FromSource(HMODULE source, const char* name)
{
    return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(source, name)));
}

} // namespace

// A sample, the descriptions in whose place it is put, and the call that reads them.
struct Stage::Target
{
    const char* sample;
    std::vector<std::string> files;
    void (*call)(Dice&);
};

// What is changed, and what meets it.
struct Stage::Plan
{
    const char* kind = "";
    std::vector<std::string> files;
    std::string unchanged;
    std::string text;
    std::vector<lytTreeRecord> records;
    void (*call)(Dice&) = nullptr;
};

const std::vector<Stage::Target>& Stage::Targets()
{
    static const std::vector<std::string> ofWizard = {"lytWzGrp.dlg", "lytWzPhr.dlg", "lytWzSym.dlg"};
    static const std::vector<Target> targets = {
        {"lytInSym.dlg", {"lytInSym.dlg"}, ShowSymbol},    {"lytInPhr.dlg", {"lytInPhr.dlg"}, ShowPhrase},
        {"lytCdGrp.dlg", {"lytCdGrp.dlg"}, ShowCondition}, {"lytRpGrp.dlg", {"lytRpGrp.dlg"}, ShowRepetition},
        {"finding.dlg", {"lytInSym.dlg"}, ShowSymbol},     {"finding.dlg", {"finding.dlg"}, ShowRepetition},
        {"lytWzGrp.dlg", ofWizard, LeadThroughWizard},     {"lytWzPhr.dlg", ofWizard, LeadThroughWizard},
        {"lytWzSym.dlg", {"lytInSym.dlg"}, ShowSymbol},
    };
    return targets;
}

Stage::Stage(const std::string& folder) : m_source(LoadTestSource("complete"))
{
    // The library and its partners lie there, and are found as partners of a host are.
    SetDllDirectoryA(folder.c_str());
    const fs::path samples = fs::path(folder) / "samples";
    for (const auto& file : fs::directory_iterator(samples / "dialogs"))
    {
        if (file.is_regular_file())
            m_folder.Write(file.path().filename().string(), ReadFile(file.path()));
    }
    for (const Target& target : Targets())
        m_descriptions.push_back(m_folder.Read(target.sample));
    m_texts = WithNumbers(ReadFile(samples / "dialogs" / languageFile));
    m_folder.Write(languageFile, m_texts);
    m_folder.Write("lyt.ini", "[global]\r\nCurrent Language=English\r\nTreeWidth=300\r\nTreeHeight=400\r\n"
                              "TreeLevels=2\r\n");
}

Outcome Stage::Play(unsigned number)
{
    return Carry(PlanOf(number), number);
}

std::string Stage::TextOf(unsigned number) const
{
    return PlanOf(number).text;
}

void Stage::PlayUnchanged()
{
    constexpr unsigned rounds = 5; // with a buffer that holds nothing, no dialog opens
    for (unsigned number = 0; number < rounds; ++number)
    {
        for (void (*call)(Dice&) : {ShowSymbol, ShowPhrase, ShowCondition, ShowRepetition, UseCatalogue})
        {
            Dice dice(number);
            Plan plan;
            plan.records = WellFormedCatalogue(dice);
            plan.call = call;
            Carry(plan, number);
        }
    }
}

Stage::Plan Stage::PlanOf(unsigned number) const
{
    Dice dice(number);
    const size_t chosen = dice.Below(Targets().size());
    const size_t kind = dice.Below(10);
    const auto change = [&](const std::string& text)
    {
        // Few changes leave a description that opens, many none.
        const size_t most = dice.Is(2) ? 2 : 8;
        return Mutations({text}).Changed(static_cast<unsigned>(dice.Below(1U << 31U)), most);
    };
    Plan plan;
    plan.call = Targets()[chosen].call;
    plan.records = kind < 2 ? MutatedCatalogue(dice) : WellFormedCatalogue(dice);
    if (kind < 2)
    {
        plan.kind = "catalogue";
        plan.call = UseCatalogue;
    }
    else if (kind < 3)
    {
        plan.kind = "language file";
        plan.files = {languageFile};
        plan.unchanged = m_texts;
        plan.text = change(m_texts);
    }
    else
    {
        plan.kind = "description";
        plan.files = Targets()[chosen].files;
        plan.unchanged = m_folder.Read(plan.files.front());
        plan.text = change(m_descriptions[chosen]);
    }
    return plan;
}

Outcome Stage::Carry(const Plan& plan, unsigned number)
{
    for (const std::string& file : plan.files)
        m_folder.Write(file, plan.text);
    Serve(plan.records);
    Call<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")("doc.rtf", m_folder.Path().c_str(),
                                                                         m_folder.Path().c_str());
    Outcome outcome;
    outcome.kind = plan.kind;
    Closer closer(number);
    Dice dice(number);
    const double before = ProcessorSeconds();
    try
    {
        plan.call(dice);
        Call<decltype(FreeGlobalObject)>("FreeGlobalObject")();
    }
    catch (const std::exception& error)
    {
        outcome.failure = error.what();
    }
    catch (...)
    {
        outcome.failure = "an exception left the call";
    }
    outcome.seconds = ProcessorSeconds() - before;
    outcome.messages = closer.Messages();
    outcome.dialogs = closer.CountDialogs();
    if (outcome.failure.empty())
        outcome.failure = closer.Stuck();
    for (const std::string& file : plan.files)
        m_folder.Write(file, plan.unchanged);
    return outcome;
}

void Stage::Serve(std::vector<lytTreeRecord> records)
{
    m_records = std::move(records);
    const TestSourceScript script = {m_records.data(), static_cast<int>(m_records.size()), 1};
    for (const char kind : {'S', 'P'})
        FromSource<decltype(TestSourceServe)>(m_source, "TestSourceServe")(kind, &script);
}
