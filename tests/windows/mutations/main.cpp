// mutations: changed descriptions, language files and catalogues through the library, thousands of them in one process.
#include "Stage.h"
#include "Watch.h"

#include "commandline/CommandLine.h"
#include "support/Holdings.h"
#include "support/Library.h"

#include <algorithm>
#include <cctype>
#include <cstdio>
#include <map>
#include <memory_resource>
#include <optional>
#include <vector>

namespace
{

// Between two looks at what the process holds.
constexpr int stretch = 100;
constexpr double slow = 1; // second of the processor

const commandline::ProgramForm& TheProgram()
{
    static const commandline::ProgramForm form = {
        "mutations",
        "mutations changes descriptions, language files and catalogues, and lets the library show them.",
        {
            {"run", "", 0, 0, "play cases; each ends in a numbered message or a dialog, or is reported and counted"},
            {"show", "NUMBER", 1, 1, "print the text that the case of this number puts in place of a file"},
            {"help", "", 0, 0, "this text"},
        },
        {
            {"--count", "N", true, "how many cases (default 300)"},
            {"--from", "N", true, "the number of the first (default 0)"},
            {"--seed", "N", true, "another seed gives other cases (default 0)"},
            {"--timed", nullptr, false, "a case that takes the processor for more than a second has failed"},
            {"--help", nullptr, false, "print this text"},
        },
        "\"run --from N --count 1\" plays the case N alone, with the seed of the run that reported it.\n",
    };
    return form;
}

class Campaign
{
public:
    explicit Campaign(const commandline::Request& request)
        : m_seed(static_cast<unsigned>(request.Number("--seed", 0))),
          m_isTimed(request.Has("--timed")),
          m_stage(ProgramFolder() + "\\..")
    {
    }

    // True when nothing failed.
    bool Run(int from, int count);
    void Show(int number) const { std::printf("%s", m_stage.TextOf(CaseOf(number)).c_str()); }

private:
    unsigned CaseOf(int number) const { return m_seed * 1000003U + static_cast<unsigned>(number); }
    Outcome Take(int number);
    void Play(int number);
    void Count(const Outcome& outcome);
    void Count(const std::string& what);
    void Fail(const std::string& what);
    void CompareHoldings(int from, int end);
    std::string GrowthSinceLastLook();
    void Tell() const;

    unsigned m_seed;
    bool m_isTimed;
    Stage m_stage;
    Watch m_watch;
    // Counts take nothing of the heap that is looked at.
    std::vector<std::byte> m_room = std::vector<std::byte>(1U << 20U);
    std::pmr::monotonic_buffer_resource m_memory{m_room.data(), m_room.size()};
    std::pmr::map<std::pmr::string, int> m_counts{&m_memory}; // by what is printed
    std::optional<Holdings> m_first;                          // at the first look
    std::optional<Holdings> m_held;                           // at the last
    int m_failures = 0;
};

bool Campaign::Run(int from, int count)
{
    const int end = from + count;
    for (int start = from; start < end; start += stretch)
    {
        const int next = std::min(start + stretch, end);
        for (int number = start; number < next; ++number)
            Play(number);
        CompareHoldings(start, next);
    }
    // A block now and then is too little for a stretch.
    const std::string growth = m_held->GrowthSince(*m_first, stretch);
    if (!growth.empty())
        std::printf("since the first look:\n%s", growth.c_str());
    Tell();
    return m_failures == 0;
}

Outcome Campaign::Take(int number)
{
    m_watch.Begin(static_cast<unsigned>(number));
    return m_stage.Play(CaseOf(number));
}

void Campaign::Play(int number)
{
    const Outcome outcome = Take(number);
    Count(outcome);
    const std::string place = "case " + std::to_string(number) + ", " + outcome.kind + ": ";
    if (!outcome.failure.empty())
        Fail(place + outcome.failure);
    if (m_isTimed && outcome.seconds > slow)
        Fail(place + std::to_string(outcome.seconds) + " seconds");
}

void Campaign::Count(const Outcome& outcome)
{
    Count("cases: " + outcome.kind);
    if (outcome.dialogs > 0)
        Count("cases that opened a dialog");
    if (outcome.dialogs == 0 && outcome.messages.empty())
        Count("cases without a window");
    for (const std::string& message : outcome.messages)
    {
        // The number is at the beginning of the text, after the prefix if there is one.
        const std::string text = message.substr(message.find('\n') + 1);
        const bool isNumbered = !text.empty() && std::isdigit(static_cast<unsigned char>(text.front())) != 0;
        Count("message " + (isNumbered ? text.substr(0, 3) : text));
    }
}

void Campaign::Count(const std::string& what)
{
    ++m_counts[std::pmr::string(what, &m_memory)];
}

void Campaign::CompareHoldings(int from, int end)
{
    std::string growth = GrowthSinceLastLook();
    std::printf("up to case %d: %s\n", end - 1, m_held->Text().c_str());
    if (growth.empty())
        return;
    // What a process needs once does not come again; what is lost does.
    for (int number = from; number < end; ++number)
        Take(number);
    growth = GrowthSinceLastLook();
    if (!growth.empty())
        Fail("not released by the cases " + std::to_string(from) + " to " + std::to_string(end - 1) + ":\n" + growth);
}

std::string Campaign::GrowthSinceLastLook()
{
    m_stage.PlayUnchanged();
    const Holdings now;
    const std::string growth = m_held ? now.GrowthSince(*m_held, stretch) : "";
    m_first = m_first.value_or(now);
    m_held = now;
    return growth;
}

void Campaign::Fail(const std::string& what)
{
    ++m_failures;
    std::printf("FAILED %s\n", what.c_str());
}

void Campaign::Tell() const
{
    for (const auto& [what, count] : m_counts)
        std::printf("%6d %s\n", count, what.c_str());
    std::printf("%6d failures\n", m_failures);
}

int Run(const commandline::Request& request)
{
    if (request.command == "help")
    {
        std::printf("%s", commandline::HelpText(TheProgram()).c_str());
        return 0;
    }
    Campaign campaign(request);
    if (request.command == "run")
        return campaign.Run(request.Number("--from", 0), request.Number("--count", 300)) ? 0 : 1;
    campaign.Show(std::stoi(request.Operand(0, "0")));
    return 0;
}

} // namespace

int main(int count, char** words)
{
    // What is printed is in the output when a case ends the process, and no buffer comes to the heap later.
    std::setvbuf(stdout, nullptr, _IONBF, 0);
    try
    {
        return Run(commandline::ReadCommandLine(TheProgram(), {words + 1, words + count}));
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "mutations: %s\n", error.what());
        return 2;
    }
}
