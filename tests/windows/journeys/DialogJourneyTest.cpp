// Whole calls of the property dialogs: key in, live window, buffers and code out.
#include "Journey.h"

#include <gtest/gtest.h>

namespace
{

constexpr const char* buttons = "OKButton 10, 150, 60, 20, .Ok\nCancelButton 80, 150, 60, 20, .Cancel\n";

// One edit field that takes the whole key and gives it back.
Sections OneField()
{
    Sections sections;
    sections.layout = std::string("TextBox 10, 10, 100, 20, .Name\n") + buttons;
    sections.input = "Start: (Rest, End = Name\n";
    sections.output = "(\"%s\", Name)\n";
    return sections;
}

void PressOk(HWND dialog)
{
    robot::Press(GetDlgItem(dialog, IDOK));
}

void PressCancel(HWND dialog)
{
    robot::Press(GetDlgItem(dialog, IDCANCEL));
}

} // namespace

TEST(SymbolJourney, UnchangedKeyGivesTwo)
{
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(OneField()));
    std::string seen;
    journey.Steps().On("Journey",
                       [&](HWND dialog)
                       {
                           seen = robot::TextOf(Journey::Control(0));
                           PressOk(dialog);
                       });
    const JourneyResult result = journey.Symbol("the key");
    EXPECT_TRUE(result.done) << result.log;
    EXPECT_EQ(seen, "the key");
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.first, "the key");
}

TEST(SymbolJourney, ChangedKeyGivesOne)
{
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(OneField()));
    journey.Steps().On("Journey", [](HWND) { robot::ReplaceText(Journey::Control(0), "new"); }).On("Journey", PressOk);
    const JourneyResult result = journey.Symbol("old");
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.first, "new");
}

TEST(SymbolJourney, CancelLeavesTheBuffer)
{
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(OneField()));
    journey.Steps().On("Journey", PressCancel);
    const JourneyResult result = journey.Symbol("old");
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.first, "before");
}

TEST(SymbolJourney, EscapeCancels)
{
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(OneField()));
    journey.Steps().On("Journey", [](HWND) { robot::PressKey(VK_ESCAPE); });
    EXPECT_EQ(journey.Symbol("old").code, 0);
}

TEST(SymbolJourney, ReturnInAFieldConfirms)
{
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(OneField()));
    journey.Steps().On("Journey",
                       [](HWND)
                       {
                           robot::Focus(Journey::Control(0));
                           robot::PressKey(VK_RETURN);
                       });
    EXPECT_EQ(journey.Symbol("old").code, 2);
}

TEST(SymbolJourney, EmptyResultKeepsTheBufferAndComparesItAllTheSame)
{
    Sections sections = OneField();
    sections.output = "(\"%s\", Name)\n";
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(sections));
    journey.Steps().On("Journey", PressOk);
    const JourneyResult result = journey.Symbol("");
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.first, "before");
}

TEST(SymbolJourney, ResultLongerThanTheBufferEmptiesIt)
{
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(OneField()));
    journey.Steps().On("Journey", PressOk);
    const JourneyResult result = journey.Symbol("12345678", 7);
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.first, "");
}

TEST(SymbolJourney, MissingDescriptionIsMessage207)
{
    Journey journey;
    journey.Steps().AnswerMessage();
    const JourneyResult result = journey.Symbol("old");
    EXPECT_EQ(result.code, 0);
    EXPECT_EQ(result.first, "before");
    ASSERT_EQ(result.messages.size(), 1U);
    EXPECT_EQ(result.messages[0].substr(0, 13), "cannot open '");
}

TEST(PhraseJourney, TakesItsOwnDescription)
{
    Journey journey;
    journey.Describe("lytInPhr.dlg", Description(OneField()));
    journey.Steps().On("Journey", PressOk);
    EXPECT_EQ(journey.Phrase("key").code, 2);
}

TEST(GroupJourney, SplitKeyKeepsItsHeadOutOfTheDialog)
{
    Sections sections = OneField();
    sections.output = "(\"%s/1b\", Name)\n";
    Journey journey;
    journey.Describe("lytCdGrp.dlg", Description(sections));
    std::string seen;
    journey.Steps().On("Journey",
                       [&](HWND dialog)
                       {
                           seen = robot::TextOf(Journey::Control(0));
                           PressOk(dialog);
                       });
    const JourneyResult result = journey.Group(0, "xBNGy(a)");
    EXPECT_EQ(seen, "(a)");
    EXPECT_EQ(result.code, 2);
    EXPECT_EQ(result.first, "(a)");
    EXPECT_EQ(result.second, "1b");
}

TEST(GroupJourney, ChangedSplitKeyGetsItsHeadAndThreeBytesBack)
{
    Sections sections = OneField();
    sections.output = "(\"%s/1bcdefgh\", Name)\n";
    Journey journey;
    journey.Describe("lytRpGrp.dlg", Description(sections));
    journey.Steps()
        .On("Journey", [](HWND) { robot::ReplaceText(Journey::Control(0), "(new)"); })
        .On("Journey", PressOk);
    const JourneyResult result = journey.Group(1, "head5678(a)");
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.first, "head5678(new)");
    EXPECT_EQ(result.second, "1bcde678");
}

TEST(GroupJourney, TextThatDoesNotFitIsMessage254)
{
    Sections sections = OneField();
    sections.output = "(\"%s/1b\", Name)\n";
    Journey journey;
    journey.Describe("lytCdGrp.dlg", Description(sections));
    journey.Steps().On("Journey", PressOk).AnswerMessage();
    const JourneyResult result = journey.Group(0, "(12345678)", 5, 50);
    EXPECT_EQ(result.code, 0);
    ASSERT_EQ(result.messages.size(), 1U);
    EXPECT_EQ(result.messages[0], "too long '5'");
    EXPECT_EQ(result.first, "");
    EXPECT_EQ(result.second, "before");
}

TEST(GroupJourney, ResultWithoutTheMarkEmptiesBothBuffers)
{
    Journey journey;
    journey.Describe("lytCdGrp.dlg", Description(OneField()));
    journey.Steps().On("Journey", PressOk);
    const JourneyResult result = journey.Group(0, "plain");
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.first, "");
    EXPECT_EQ(result.second, "");
}

TEST(DialogJourney, SizesTheWindowInTwoPasses)
{
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(OneField()));
    RECT window = {};
    RECT client = {};
    journey.Steps().On("Journey",
                       [&](HWND dialog)
                       {
                           GetWindowRect(dialog, &window);
                           GetClientRect(dialog, &client);
                           PressCancel(dialog);
                       });
    journey.Symbol("");
    const int frameWidth = (window.right - window.left) - client.right;
    const int frameHeight = (window.bottom - window.top) - client.bottom;
    EXPECT_EQ(window.right - window.left, static_cast<int>(static_cast<float>(300 + frameWidth) * 0.7557F));
    EXPECT_EQ(window.bottom - window.top, static_cast<int>(static_cast<float>(200 + frameHeight) * 1.0818F));
}

TEST(DialogJourney, PlacesControlsByTheScale)
{
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(OneField()));
    RECT place = {};
    journey.Steps().On("Journey",
                       [&](HWND dialog)
                       {
                           GetWindowRect(Journey::Control(0), &place);
                           MapWindowPoints(nullptr, dialog, reinterpret_cast<POINT*>(&place), 2);
                           PressCancel(dialog);
                       });
    journey.Symbol("");
    EXPECT_EQ(place.left, 7);
    EXPECT_EQ(place.top, 10);
    EXPECT_EQ(place.right - place.left, 75);
    EXPECT_EQ(place.bottom - place.top, 21);
}

TEST(DialogJourney, HasNoTitleWithoutATextSection)
{
    Sections sections = OneField();
    sections.text = "$LAYOUT\n";
    sections.layout = std::string("PushButton 10, 40, 60, 20, \"PRESS\", .Push\n") + buttons;
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(sections));
    std::string title = "?";
    std::string label = "?";
    journey.Steps().On("",
                       [&](HWND dialog)
                       {
                           title = robot::TextOf(dialog);
                           label = robot::TextOf(Journey::Control(0));
                           PressCancel(dialog);
                       });
    journey.Symbol("");
    EXPECT_EQ(title, "");
    EXPECT_EQ(label, "");
}

TEST(DialogJourney, RefusedEvaluationShowsItsMessageAndStays)
{
    Sections sections = OneField();
    sections.evaluation = "Name = NULL: MUST\n";
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(sections));
    HWND focus = nullptr;
    HWND field = nullptr;
    journey.Steps()
        .On("Journey", PressOk)
        .AnswerMessage()
        .On("Journey",
            [&](HWND)
            {
                focus = GetFocus();
                field = Journey::Control(0);
                robot::ReplaceText(field, "full");
            })
        .On("Journey", PressOk);
    const JourneyResult result = journey.Symbol("");
    ASSERT_EQ(result.messages.size(), 1U);
    EXPECT_EQ(result.messages[0], "Fill the field");
    EXPECT_EQ(focus, field);
    EXPECT_EQ(result.code, 1);
    EXPECT_EQ(result.first, "full");
}

TEST(DialogJourney, UnknownControlInAnOutputConditionIsMessage246HoldingMessage245)
{
    Sections sections = OneField();
    sections.output = "Nobody(1) = (\"x\")\n";
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(sections));
    journey.Steps().On("Journey", PressOk).AnswerMessage().On("Journey", PressCancel);
    const JourneyResult result = journey.Symbol("");
    EXPECT_TRUE(result.done) << result.log;
    ASSERT_EQ(result.messages.size(), 1U);
    EXPECT_EQ(result.messages[0], "unknown 'Nobody'\noutput failed");
    EXPECT_EQ(result.code, 0);
}

TEST(DialogJourney, StaysOpenWithoutAMessageWhenNoRuleHolds)
{
    Sections sections = OneField();
    sections.output = "Name(x) = (\"x\")\n";
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(sections));
    journey.Steps().On("Journey", PressOk).On("Journey", PressCancel);
    const JourneyResult result = journey.Symbol("y");
    EXPECT_EQ(result.code, 0);
    EXPECT_TRUE(result.messages.empty());
}

TEST(DialogJourney, DefinesSwitchStretches)
{
    Sections sections = OneField();
    sections.layout = std::string("<BIG ; the wide form\nTextBox 10, 10, 200, 20, .Name\n>\n"
                                  "<!BIG\nTextBox 10, 10, 100, 20, .Name\n>\n") +
                      buttons;
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(sections));
    size_t count = 0;
    journey.Steps().On("Journey",
                       [&](HWND dialog)
                       {
                           count = robot::ChildrenOf(dialog).size();
                           PressCancel(dialog);
                       });
    journey.Symbol("");
    EXPECT_EQ(count, 3U);
}

TEST(DialogJourney, FormErrorsNameTheDeliveredLine)
{
    Sections sections = OneField();
    sections.layout = "<OFF\nthis is not counted\n>\nTextBox\n";
    Journey journey;
    journey.Describe("lytInSym.dlg", Description(sections));
    journey.Steps().AnswerMessage();
    const JourneyResult result = journey.Symbol("");
    ASSERT_EQ(result.messages.size(), 1U);
    EXPECT_EQ(result.messages[0], "line '4' is wrong");
    EXPECT_EQ(result.code, 0);
}
