// What the judge says and what the library does: samples, the dialogs of tests, and mutations of both.
#include "environment/ErrorTable.h"
#include "fuzz/frame/Samples.h"
#include "lytdlg/judge/Judge.h"
#include "lytdlg/judge/Report.h"
#include "lytdlg/text/TextFile.h"
#include "support/Mutations.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <set>

namespace lytdlg
{

namespace
{

struct Judged
{
    std::optional<Refusal> refusal;
    Findings findings;
    std::string text; // of the errors
    bool isForeseen = true;
    bool hasError = false;
};

Judged VerdictOn(const std::string& bytes)
{
    static const Surroundings surroundings = SurroundingsOf("", {});
    const Description description("mutation.dlg", bytes, {});
    Judged verdict;
    verdict.refusal = RefusalOf(description);
    verdict.findings = Judge(description, surroundings);
    for (const Finding& finding : verdict.findings.All())
    {
        if (finding.rule->level != Level::Error)
            continue;
        // What fails in the composition fails with OK, and not before.
        const bool isOfOutput = description.text.Line(finding.place.line).section == Section::Output;
        verdict.hasError = verdict.hasError || !isOfOutput || finding.number == lytError("LineForm");
        verdict.text += TextOf(finding, description, false);
        verdict.isForeseen = verdict.isForeseen && finding.rule->id != std::string("refused");
    }
    return verdict;
}

bool HasNumberAtItsLine(const Judged& verdict)
{
    return std::ranges::any_of(verdict.findings.All(),
                               [&](const Finding& finding)
                               {
                                   const bool isOfLine = verdict.refusal->number == lytError("LineForm");
                                   return finding.rule->level == Level::Error &&
                                          finding.number == verdict.refusal->number &&
                                          (!isOfLine || finding.place.line == verdict.refusal->line);
                               });
}

template <class Act>
void ForEachMutation(Act act)
{
    const Mutations mutations(SampleDescriptions());
    for (unsigned number = 0; number < LYT_MUTATIONS; ++number)
    {
        SCOPED_TRACE(number);
        act(mutations.Changed(number, 1));
    }
}

void ExpectAgreement(const std::string& bytes)
{
    const Judged verdict = VerdictOn(bytes);
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
        const Judged verdict = VerdictOn(bytes);
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
            const Judged verdict = VerdictOn(bytes);
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

} // namespace lytdlg
