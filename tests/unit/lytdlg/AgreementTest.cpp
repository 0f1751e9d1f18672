// What the judge says and what the library does: samples, the dialogs of tests, and mutations of both.
#include "fuzz/frame/Samples.h"
#include "lytdlg/judge/LibraryVerdict.h"
#include "lytdlg/judge/Report.h"
#include "lytdlg/text/TextFile.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <set>

namespace
{

using namespace lytdlg;

// The same numbers on every machine.
class Chance
{
public:
    size_t Below(size_t limit)
    {
        m_state = m_state * 6364136223846793005U + 1442695040888963407U;
        return static_cast<size_t>(m_state >> 33U) % limit;
    }

private:
    uint64_t m_state = 20;
};

std::vector<std::string> Lines(const std::string& text)
{
    std::vector<std::string> lines;
    for (size_t start = 0; start < text.size();)
    {
        const size_t end = std::min(text.find('\n', start), text.size() - 1) + 1;
        lines.push_back(text.substr(start, end - start));
        start = end;
    }
    return lines;
}

std::string MutatedInLines(const std::string& text, Chance& chance)
{
    std::vector<std::string> lines = Lines(text);
    const size_t line = chance.Below(lines.size());
    const size_t other = chance.Below(lines.size());
    switch (chance.Below(3))
    {
    case 0: lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(line)); break;
    case 1: lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(line), lines[other]); break;
    default: std::swap(lines[line], lines[other]);
    }
    std::string mutated;
    for (const std::string& each : lines)
        mutated += each;
    return mutated;
}

std::string MutatedInBytes(std::string text, Chance& chance)
{
    static const std::string bytes = "=,:;()/\"\t\n $.<>[|%\\xA0" + std::string("\x1A\0\xFC", 3);
    const size_t place = chance.Below(text.size());
    switch (chance.Below(3))
    {
    case 0: text.erase(place, 1); break;
    case 1: text.insert(place, 1, bytes[chance.Below(bytes.size())]); break;
    default: text[place] = bytes[chance.Below(bytes.size())];
    }
    return text;
}

struct Verdict
{
    std::optional<Refusal> refusal;
    Findings findings;
    std::string text; // of the errors
    bool isForeseen = true;
    bool hasError = false;
};

Verdict VerdictOn(const std::string& bytes)
{
    static const Surroundings surroundings = SurroundingsOf("", {});
    const Description description("mutation.dlg", bytes, {});
    Verdict verdict;
    verdict.refusal = RefusalOf(description);
    verdict.findings = Judge(description, surroundings);
    for (const Finding& finding : verdict.findings.All())
    {
        if (finding.rule->level != Level::Error)
            continue;
        // What fails in the composition fails with OK, and not before.
        const bool isOfOutput = description.text.Line(finding.place.line).section == Section::Output;
        verdict.hasError = verdict.hasError || !isOfOutput || finding.number == "212";
        verdict.text += TextOf(finding, description, false);
        verdict.isForeseen = verdict.isForeseen && finding.rule->id != std::string("refused");
    }
    return verdict;
}

bool HasNumberAtItsLine(const Verdict& verdict)
{
    return std::ranges::any_of(verdict.findings.All(),
                               [&](const Finding& finding)
                               {
                                   const bool isOfLine = verdict.refusal->number == "212";
                                   return finding.rule->level == Level::Error &&
                                          finding.number == verdict.refusal->number &&
                                          (!isOfLine || finding.place.line == verdict.refusal->line);
                               });
}

template <class Act>
void ForEachMutation(Act act)
{
    const std::vector<std::string> texts = SampleDescriptions();
    Chance chance;
    for (int count = 0; count < LYT_MUTATIONS; ++count)
    {
        SCOPED_TRACE(count);
        const std::string& bytes = texts[chance.Below(texts.size())];
        act(chance.Below(2) == 0 ? MutatedInLines(bytes, chance) : MutatedInBytes(bytes, chance));
    }
}

void ExpectAgreement(const std::string& bytes)
{
    const Verdict verdict = VerdictOn(bytes);
    if (!verdict.refusal)
        EXPECT_FALSE(verdict.hasError) << verdict.text << bytes;
    else
        EXPECT_TRUE(HasNumberAtItsLine(verdict)) << verdict.refusal->number << verdict.text << bytes;
}

} // namespace

TEST(Agreement, OnSamplesIsThatAllOfThemOpen)
{
    for (const std::string& bytes : SampleDescriptions())
    {
        const Verdict verdict = VerdictOn(bytes);
        EXPECT_FALSE(verdict.refusal.has_value()) << bytes;
        EXPECT_FALSE(verdict.hasError) << verdict.text;
    }
}

TEST(Agreement, OnADialogLineAboveTheHeadersIsThatItIsFreeText)
{
    for (const std::string& bytes : SampleDescriptions())
        ExpectAgreement("Begin Dialog Box 512, 148, \"Title\", .Main\n" + bytes);
}

TEST(Agreement, OnMutationsIsThatErrorsAreWhatTheLibraryRefuses)
{
    ForEachMutation([](const std::string& bytes) { ExpectAgreement(bytes); });
}

// What only the trial by the library finds is rare, and most of it follows from a header that was lost.
TEST(Agreement, OnMutationsNeedsTheTrialByTheLibraryRarely)
{
    int refused = 0;
    int foreseen = 0;
    ForEachMutation(
        [&](const std::string& bytes)
        {
            const Verdict verdict = VerdictOn(bytes);
            refused += verdict.refusal ? 1 : 0;
            foreseen += verdict.refusal && verdict.isForeseen ? 1 : 0;
        });
    EXPECT_GT(foreseen * 100, refused * 94) << foreseen << " of " << refused;
}

// A dialog that opens may still be a bad one, so this is about descriptions that are right on purpose.
TEST(Precision, HasNeitherErrorsNorWarningsForSamples)
{
    const std::string folder = LYT_SOURCE_FOLDER "/samples/dialogs";
    const Surroundings surroundings = SurroundingsOf(folder, {});
    for (const auto& file : FilesIn(folder, ".dlg"))
    {
        const Description description(file.string(), ReadWholeFile(file).value(), {});
        const Findings findings = Judge(description, surroundings);
        for (const Finding& finding : findings.All())
            EXPECT_EQ(finding.rule->level, Level::Note) << TextOf(finding, description, false);
    }
}
