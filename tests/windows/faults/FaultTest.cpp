// Each call of a kind fails once in every sample journey. The journey ends in a message, an exception or a result of its
// own; nothing is lost on the way, and the next journey is like one that nothing has disturbed.
//
// LYT_FAULT_STRIDE=1 lets every allocation fail, which takes minutes; a greater number goes from one to the next in such
// steps, and in smaller ones over calls of the rarer kinds.
#include "CountedMemory.h"
#include "Journey.h"
#include "NewProcess.h"

#include "native/FaultPlan.h"
#include "native/MemoryWindows.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iostream>
#include <unistd.h>

namespace fs = std::filesystem;
using platform::FaultKind;
using platform::FaultPlan;

namespace
{

// What a journey may not change.
struct Held
{
    static Held Now()
    {
        const int next = dup(STDERR_FILENO);
        close(next);
        return {CountBlocks(), platform::CountWindows(), next};
    }
    bool operator==(const Held&) const = default;

    std::ptrdiff_t blocks;
    size_t windows;
    int nextDescriptor;
};

std::ostream& operator<<(std::ostream& out, const Held& held)
{
    return out << held.blocks << " blocks, " << held.windows << " windows, next descriptor " << held.nextDescriptor;
}

struct Kind
{
    const char* name;
    FaultKind kind;
    int rarity; // how much rarer than allocations
    // A dialog that cannot be opened is not confirmed; a button, an entry of the catalogue or a text that is lacking shows.
    bool mayBeSilent;
};

constexpr Kind kinds[] = {
    {"Allocations", FaultKind::Allocation, 1, false},
    {"Windows", FaultKind::Window, 29, true},
    {"Items", FaultKind::Item, 29, true},
    {"Profiles", FaultKind::Profile, 29, true},
    {"Openings", FaultKind::Open, 1000, false},
    {"Readings", FaultKind::Read, 29, false},
    {"Writings", FaultKind::Write, 1000, false},
    {"Flushes", FaultKind::Flush, 1000, false},
};

std::ostream& operator<<(std::ostream& out, const Kind& kind)
{
    return out << kind.name;
}

int StrideOf(const Kind& kind)
{
    const char* given = std::getenv("LYT_FAULT_STRIDE");
    return std::max(1, (given != nullptr ? std::atoi(given) : 1) / kind.rarity);
}

// What became of the journeys in which a call failed.
class Tally
{
public:
    void Add(const Course& course, const Course& undisturbed)
    {
        ++m_failures;
        if (course == undisturbed)
            ++m_unnoticed;
        else if (course.raised != undisturbed.raised)
            ++m_raised;
        else if (course.messages != undisturbed.messages)
            ++m_told;
        else
            ++m_silent;
    }
    int Silent() const { return m_silent; }

    friend std::ostream& operator<<(std::ostream& out, const Tally& tally)
    {
        return out << tally.m_failures << " failures: " << tally.m_told << " with a message, " << tally.m_raised
                   << " with an exception, " << tally.m_silent << " with another result, " << tally.m_unnoticed
                   << " without effect";
    }

private:
    int m_failures = 0;
    int m_unnoticed = 0;
    int m_told = 0;
    int m_raised = 0;
    int m_silent = 0;
};

// In a separate folder, where the log is written.
class InFolder
{
public:
    InFolder()
    {
        fs::current_path(m_folder.Path());
        fs::create_directory("demo-out");
    }
    InFolder(const InFolder&) = delete;
    InFolder& operator=(const InFolder&) = delete;
    ~InFolder() { fs::current_path(m_before); }

private:
    fs::path m_before = fs::current_path();
    TestFolder m_folder;
};

// The lines of lytcall that say what a call came to, from its result on.
std::string HandedOut(const Course& course)
{
    const size_t result = course.printed.find("\nresult = ");
    return result != std::string::npos ? course.printed.substr(result) : "";
}

// A confirmed dialog hands out what the user has chosen, and nothing in its place.
bool HandsOutTheSame(const Course& course, const Course& undisturbed)
{
    const std::string text = HandedOut(course);
    return text.empty() || text.starts_with("\nresult = 0") || text == HandedOut(undisturbed);
}

class Faults : public testing::TestWithParam<Kind>
{
protected:
    // Fails the call after so many others; false when there are no more.
    bool Fail(const Journey& journey, int callsBefore, const Course& undisturbed)
    {
        const FaultPlan plan(GetParam().kind, callsBefore);
        const Course course = Travel(journey);
        if (!plan.HasFailed())
            return false;
        tally.Add(course, undisturbed);
        const bool isTold = GetParam().kind != FaultKind::Item || course.messages != undisturbed.messages;
        // Who goes so many entries on by a key comes to another one where one is lacking, and sees it.
        const bool isByKeys = journey.name.starts_with("keyboard");
        EXPECT_TRUE(isTold || isByKeys || HandsOutTheSame(course, undisturbed)) << course;
        return true;
    }

    const InFolder folder;
    Tally tally;
};

} // namespace

TEST_P(Faults, LeaveTheNextJourneyAsItWas)
{
    for (const Journey& journey : Journeys())
    {
        SCOPED_TRACE(journey.name);
        // Twice, since the catalogue remembers how it was left.
        Travel(journey);
        const Course undisturbed = Travel(journey);
        const Held held = Held::Now();
        for (int callsBefore = 0; Fail(journey, callsBefore, undisturbed) && !HasFailure();
             callsBefore += StrideOf(GetParam()))
        {
            SCOPED_TRACE(callsBefore);
            EXPECT_EQ(Travel(journey), undisturbed);
            EXPECT_EQ(Held::Now(), held);
        }
    }
    std::cout << tally << "\n";
    EXPECT_TRUE(GetParam().mayBeSilent || tally.Silent() == 0);
}

INSTANTIATE_TEST_SUITE_P(Of, Faults, testing::ValuesIn(kinds), [](const auto& kind) { return kind.param.name; });

// A library that was loaded once is never loaded again, so each of these journeys begins in a new process.
TEST(Libraries, ThatCannotBeLoadedAtFirstAreLoadedLater)
{
    const InFolder folder;
    int total = 0;
    for (const Journey& journey : Journeys())
    {
        SCOPED_TRACE(journey.name);
        const std::string first = InNewProcess([&] { return Described(Travel(journey)); });
        const std::string second = InNewProcess([&] { return (Travel(journey), Described(Travel(journey))); });
        const auto afterFailure = [&](int callsBefore)
        {
            const FaultPlan plan(FaultKind::Library, callsBefore);
            Travel(journey);
            return plan.HasFailed() ? Described(Travel(journey)) : std::string();
        };
        int failures = 0;
        for (std::string next; !(next = InNewProcess([&] { return afterFailure(failures); })).empty(); ++failures)
            EXPECT_TRUE(next == first || next == second) << failures << "\n" << next;
        total += failures;
    }
    std::cout << total << " failures\n";
}

// A second failure while that of a construction is reported: nothing is left of the dialog, which would have the caption of
// its template.
TEST(Construction, ThatFailsEndsTheDialog)
{
    const InFolder folder;
    const auto journey = std::ranges::find_if(Journeys(), [](const Journey& one)
                                              { return std::ranges::find(one.words, "nowhere") != one.words.end(); });
    bool hasFailed = true;
    for (int callsBefore = 0; hasFailed; ++callsBefore)
    {
        const FaultPlan plan(FaultKind::Allocation, callsBefore);
        EXPECT_EQ(Travel(*journey).printed.find("\"Dialog\""), std::string::npos) << callsBefore;
        hasFailed = plan.HasFailed();
    }
}
