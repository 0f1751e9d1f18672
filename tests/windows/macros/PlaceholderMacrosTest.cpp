// Macros that show and change placeholders, and choose new ones.
#include "MacroFixture.h"

namespace
{

constexpr long long cancelled = 0;
constexpr long long changed = 1;
constexpr long long unchanged = 2;

// Longer than any buffer of the module.
const std::string tooLong(70000, 'x');

} // namespace

class PlaceholderMacros : public MacroTest
{
protected:
    PlaceholderMacros() { Start(); }
};

TEST_F(PlaceholderMacros, TakeAKeyOverWhenItChanged)
{
    Answer("lytInSym", "new");
    EXPECT_EQ(NumberOf("lyteditsymbol", {Given("old")}), changed);
    EXPECT_EQ(TextAt(0), "new");

    Answer("lytInPhr", "newer");
    EXPECT_EQ(NumberOf("lyteditphrase", {Given("old")}), changed);
    EXPECT_EQ(TextAt(0), "newer");
}

TEST_F(PlaceholderMacros, KeepAKeyThatDidNotChange)
{
    Answer("lytInSym", std::nullopt);
    EXPECT_EQ(NumberOf("lyteditsymbol", {Given("old")}), unchanged);
    EXPECT_EQ(TextAt(0), "old");
}

TEST_F(PlaceholderMacros, KeepAKeyWhenTheAuthorCancels)
{
    Answer("lytInSym", "new", IDCANCEL);
    EXPECT_EQ(NumberOf("lyteditsymbol", {Given("old")}), cancelled);
    EXPECT_EQ(TextAt(0), "old");
}

TEST_F(PlaceholderMacros, KeepCharactersThatTheCodePageLacks)
{
    const std::wstring key = L"\u03b1";
    auto variable = std::make_shared<macros::Variable>(macros::Variable{macros::Type::Texts, macros::TextFrom(key)});
    Answer("lytInSym", "new", IDCANCEL);
    EXPECT_EQ(macros::NumberIn(module->Call("lyteditsymbol", {variable})), cancelled);
    EXPECT_EQ(macros::TextIn(variable->value).characters, key);
}

TEST_F(PlaceholderMacros, TellAnEmptyResultFromCancelling)
{
    Answer("lytInSym", "");
    EXPECT_EQ(NumberOf("lyteditsymbol", {Given("old")}), changed);
    EXPECT_EQ(TextAt(0), "");
    Answer("lytInSym", "");
    EXPECT_EQ(NumberOf("lyteditsymbol", {Given("")}), unchanged);
}

TEST_F(PlaceholderMacros, PassAKeyThatWasNeverSet)
{
    Answer("lytInSym", "first");
    EXPECT_EQ(NumberOf("lyteditsymbol", {macros::Text()}), changed);
    EXPECT_EQ(TextAt(0), "first");
}

TEST_F(PlaceholderMacros, RefuseAResultThatIsTooLong)
{
    Answer("lytInSym", tooLong);
    EXPECT_EQ(FailureOf("lyteditsymbol", {Given("old")}), "The text is longer than 65536 characters. Shorten it.");
    EXPECT_EQ(error, Error(6404));
    EXPECT_EQ(TextAt(0), "old");
}

TEST_F(PlaceholderMacros, TakeBothTextsOfAGroupOver)
{
    Answer("lytCdGrp", "(b)/1rest");
    EXPECT_EQ(NumberOf("lyteditgroup", {0LL, Given("F-001BNG(a)"), Given("before")}), changed);
    EXPECT_EQ(TextAt(1), "F-001BNG(b)");
    EXPECT_EQ(TextAt(2), "1restBNG") << "three bytes of the key are in the second text";
}

TEST_F(PlaceholderMacros, KeepTheTextsOfAGroupThatDidNotChange)
{
    Answer("lytRpGrp", "(a)/1rest");
    EXPECT_EQ(NumberOf("lyteditgroup", {1LL, Given("F-001REP(a)"), Given("before")}), unchanged);
    EXPECT_EQ(TextAt(1), "F-001REP(a)");
    EXPECT_EQ(TextAt(2), "before");

    Answer("lytRpGrp", "(b)/1rest", IDCANCEL);
    EXPECT_EQ(NumberOf("lyteditgroup", {1LL, Given("F-001REP(a)"), Given("before")}), cancelled);
    EXPECT_EQ(TextAt(2), "before");
}

TEST_F(PlaceholderMacros, EmptyAGroupWhoseDialogGivesNothing)
{
    Answer("lytRpGrp", "");
    EXPECT_EQ(NumberOf("lyteditgroup", {2LL, Given("old"), Given("before")}), changed);
    EXPECT_EQ(TextAt(1), "");
    EXPECT_EQ(TextAt(2), "before");
}

TEST_F(PlaceholderMacros, CollectTheTextOfANewSymbolOrPhrase)
{
    Pick("Material");
    Answer("lytWzSym", "a symbol");
    EXPECT_EQ(NumberOf("lytwizard", {macros::Object()}), 2);
    EXPECT_EQ(ItemsAt(0), Lines{"a symbol"});

    Pick("Access");
    Answer("lytWzPhr", "a phrase");
    EXPECT_EQ(NumberOf("lytwizard", {macros::Object()}), 3);
    EXPECT_EQ(ItemsAt(0), Lines{"a phrase"});
}

TEST_F(PlaceholderMacros, CollectTheTextsOfANewGroupWithoutTheirBars)
{
    Pick("Paving");
    Answer("lytWzGrp", "head/LIST{a|b|c");
    EXPECT_EQ(NumberOf("lytwizard", {macros::Object()}), 1);
    EXPECT_EQ(ItemsAt(0), (Lines{"head/LIST{", "a", "b", "c"}));

    Pick("Paving");
    Answer("lytWzGrp", "head/LIST{a|b|");
    EXPECT_EQ(NumberOf("lytwizard", {macros::Object()}), 1);
    EXPECT_EQ(ItemsAt(0), (Lines{"head/LIST{", "a"})) << "the library loses the text before a bar at the end";

    Pick("Paving");
    Answer("lytWzGrp", "head/LIST{");
    EXPECT_EQ(NumberOf("lytwizard", {macros::Object()}), 1);
    EXPECT_EQ(ItemsAt(0), (Lines{"head/LIST{", ""}));
}

TEST_F(PlaceholderMacros, CollectNothingWhenTheAuthorCancelsTheWizard)
{
    Pick("", IDCANCEL);
    EXPECT_EQ(NumberOf("lytwizard", {macros::Object()}), 0);
    EXPECT_EQ(ItemsAt(0), Lines());

    Pick("Material");
    Answer("lytWzSym", "a symbol", IDCANCEL);
    EXPECT_EQ(NumberOf("lytwizard", {macros::Object()}), 0);
    EXPECT_EQ(ItemsAt(0), Lines());
}

TEST_F(PlaceholderMacros, LeaveNothingOfAGroupBehindThatIsTooLong)
{
    Pick("Paving");
    Answer("lytWzGrp", "head/LIST{a|" + tooLong + "|c");
    EXPECT_EQ(FailureOf("lytwizard", {macros::Object()}), "The text is longer than 65536 characters. Shorten it.");
    Pick("", IDCANCEL);
    EXPECT_EQ(NumberOf("lytwizard", {macros::Object()}), 0) << "the catalogue is shown again";
}

TEST_F(PlaceholderMacros, RefuseATextOfTheWizardThatIsTooLong)
{
    const struct
    {
        const char* entry;
        const char* dialog;
        std::string text;
    } cases[] = {
        {"Material", "lytWzSym", tooLong},
        {"Access", "lytWzPhr", tooLong},
        {"Paving", "lytWzGrp", tooLong + "/LIST{a|b"},
        {"Paving", "lytWzGrp", "head/LIST{" + tooLong},
        {"Paving", "lytWzGrp", "head/LIST{a|" + tooLong},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.dialog);
        Pick(c.entry);
        Answer(c.dialog, c.text);
        EXPECT_EQ(FailureOf("lytwizard", {macros::Object()}), "The text is longer than 65536 characters. Shorten it.");
        EXPECT_EQ(error, Error(6404));
    }
}

TEST_F(PlaceholderMacros, CollectATextOfTheWizardThatIsEmpty)
{
    Pick("Material");
    Answer("lytWzSym", "");
    EXPECT_EQ(NumberOf("lytwizard", {macros::Object()}), 2);
    EXPECT_EQ(ItemsAt(0), Lines{""});
}

TEST_F(PlaceholderMacros, MayNotStopWhileAWindowIsOpen)
{
    std::string refusal;
    robot.On("lytInSym",
             [&](HWND dialog)
             {
                 try
                 {
                     module->Call("lytstop");
                 }
                 catch (const macros::MacroError& raised)
                 {
                     refusal = raised.what();
                 }
                 robot::Press(GetDlgItem(dialog, IDCANCEL));
             });
    EXPECT_EQ(NumberOf("lyteditsymbol", {Given("old")}), cancelled);
    EXPECT_EQ(refusal, "A window of lyt64 is open. Close it before LytStop.");

    Call("lytstop");
    EXPECT_EQ(FailureOf("lytdocument"), "Call LytStart before any other function of lyt64.");
}

TEST_F(PlaceholderMacros, PickInTheCatalogue)
{
    Pick("Material");
    EXPECT_EQ(NumberOf("lytpick", {Given("S"), Given("before")}), macros::yes);
    EXPECT_EQ(TextAt(1), "site.access.path.paving.material");

    Pick("", IDCANCEL);
    EXPECT_EQ(NumberOf("lytpick", {Given("S"), Given("before")}), macros::no);
    EXPECT_EQ(TextAt(1), "before");
}

TEST_F(PlaceholderMacros, WalkTheSymbolsBelowAGroup)
{
    EXPECT_EQ(NumberOf("lytchildren", {Given("site.access.path.kerb"), macros::Object(), macros::Object()}),
              macros::no);
    Pick("Material");
    Call("lytpick", {Given("S"), Given("")});
    EXPECT_EQ(NumberOf("lytchildren", {Given("site.access.path.kerb"), macros::Object(), macros::Object()}),
              macros::yes);
    EXPECT_EQ(ItemsAt(1).at(0), "Length   m");
    EXPECT_EQ(ItemsAt(2).at(0), "site.access.path.kerb.length\\Length##m");
}

TEST_F(PlaceholderMacros, FindASymbolByTheBeginningOfItsKey)
{
    EXPECT_EQ(NumberOf("lytfindsymbol", {Given("site.access.path.k"), Given("before")}), macros::yes);
    EXPECT_EQ(TextAt(1), "site.access.path.kerb.length");
    EXPECT_EQ(NumberOf("lytfindsymbol", {Given("cellar"), Given("before")}), macros::no);
    EXPECT_EQ(TextAt(1), "before");
}

// As macros do that call the library without the module's functions.
TEST_F(PlaceholderMacros, MayFillTheirOwnBuffers)
{
    UseModule("\r\nPublic Function Ask(ByVal buffer As String, ByVal size As Long) As String\r\n"
              "If lytSymbolPropertyDialog(\"key\", buffer, size) = 1 Then Ask = buffer\r\nEnd Function\r\n");
    Start();
    for (const char filling : {' ', '\0', '\xE4'})
    {
        Answer("lytInSym", "m\xB3");
        const std::string buffer(101, filling);
        EXPECT_EQ(TextOf("ask", {Given(buffer), 100LL}), "m\xB3" + std::string(1, '\0') + buffer.substr(3));
    }
    // A text of the stated size does not fit, and one more byte takes the mark of a longer one.
    Answer("lytInSym", "12345");
    EXPECT_EQ(TextOf("ask", {Given("......"), 5LL}), std::string("\0.....", 6));
    Answer("lytInSym", "123456");
    EXPECT_EQ(TextOf("ask", {Given("......"), 5LL}), std::string("\0....\0", 6));
}
