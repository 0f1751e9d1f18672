#include "Calls.h"

#include "lyt64.h"

#include "support/Library.h"

#include <stdexcept>
#include <vector>

namespace
{

// What the dialogs get to scan.
const std::vector<std::string> inputs = {
    "S1:area(2,m2)",
    "P1{roof.tiles}see plan 4[three|north|moss]",
    "(area>=20)",
    "C1BNG(area>=20)/1COND   ;x",
    "R1(Findings;R;roofing;Team;101 Hall|102;Xroof|-walls;PC60;DIN;RF;Rot; slight)",
    "Cracks in the plaster; medium; north wall",
    "",
    "((((((((",
    "))))];[[\"",
    std::string(500, 'x'),
    std::string(200, ';'),
    "a|b|c|d|e",
    "\xE4\xF6\x01\x7F"};
const std::vector<std::string> requests = {"S",     "G",     "P",     "W", "",   "Skey1",
                                           "Gkey2", "Wkey3", "Pkey4", "X", "S/", "W\xFF"};
const int sizes[] = {0, 1, 2, 20, 100, 255, 1000};

// A buffer of any size, which no call may overrun.
class AnyBuffer
{
public:
    explicit AnyBuffer(Dice& dice) : m_buffer(dice.Of(sizes)) {}

    char* Data() { return m_buffer.Data(); }
    int Size() const { return m_buffer.Size(); }
    void ExpectIntact() const
    {
        // Some functions write a NUL at the index of the stated size.
        if (!m_buffer.IsIntact(1))
            throw std::runtime_error("a buffer was overrun");
    }

private:
    GuardedBuffer m_buffer;
};

template <class Function>
void ShowDialog(const char* name, Dice& dice)
{
    AnyBuffer buffer(dice);
    Call<Function>(name)(dice.Of(inputs).c_str(), buffer.Data(), buffer.Size());
    buffer.ExpectIntact();
}

void ShowGroup(int kind, Dice& dice)
{
    AnyBuffer first(dice);
    AnyBuffer second(dice);
    Call<decltype(lytGroupPropertyDialog)>("lytGroupPropertyDialog")(kind, dice.Of(inputs).c_str(), first.Data(),
                                                                     first.Size(), second.Data(), second.Size());
    first.ExpectIntact();
    second.ExpectIntact();
}

void ReadChildren(Dice& dice)
{
    constexpr int most = 100;
    Call<decltype(lytTreeStartChildNode)>("lytTreeStartChildNode")(("key" + std::to_string(dice.Below(40))).c_str());
    for (int call = 0, outcome = 1; call < most && outcome == 1; ++call)
    {
        AnyBuffer text(dice);
        AnyBuffer path(dice);
        outcome = Call<decltype(lytTreeReadChildNode)>("lytTreeReadChildNode")(text.Data(), text.Size(), path.Data(),
                                                                               path.Size());
        text.ExpectIntact();
        path.ExpectIntact();
    }
}

} // namespace

void ShowSymbol(Dice& dice)
{
    ShowDialog<decltype(lytSymbolPropertyDialog)>("lytSymbolPropertyDialog", dice);
}

void ShowPhrase(Dice& dice)
{
    ShowDialog<decltype(lytPhrasePropertyDialog)>("lytPhrasePropertyDialog", dice);
}

void ShowCondition(Dice& dice)
{
    ShowGroup(0, dice);
}

void ShowRepetition(Dice& dice)
{
    ShowGroup(1, dice);
}

void LeadThroughWizard(Dice& dice)
{
    // A list ends with the first call that gives no 1.
    constexpr int most = 20;
    for (int call = 0, outcome = 1; call < most && outcome == 1; ++call)
    {
        AnyBuffer buffer(dice);
        outcome = Call<decltype(lytWizard)>("lytWizard")(buffer.Data(), buffer.Size());
        buffer.ExpectIntact();
    }
}

void UseCatalogue(Dice& dice)
{
    for (const char* name : {"lytOpenTreeView", "lytGetSymbolfromTree"})
    {
        AnyBuffer buffer(dice);
        Call<decltype(lytOpenTreeView)>(name)(dice.Of(requests).c_str(), buffer.Data(), buffer.Size());
        buffer.ExpectIntact();
    }
    ReadChildren(dice);
    if (dice.Is(3))
        LeadThroughWizard(dice);
}
