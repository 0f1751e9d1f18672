#include "Cases.h"

#include "GeneratedDialog.h"
#include "support/Mutations.h"

namespace
{

using Words = std::vector<std::string>;

const std::string twoFields = "TextBox 10, 5, 120, 19, .E\nTextBox 10, 31, 120, 19, .F\n";
const std::string buttons = "OKButton 10, 57, 80, 20, .Ok\nCancelButton 100, 57, 80, 20, .Cancel\n";
const std::string toEnd = "Start: (999, End = E\n";
const std::string list = "ListBox 10, 5, 120, 60, .L\n";
const std::string listOfTwo = "L: LABEL = a\nL: LABEL = b\n";

std::string FilledBy(const std::string& function, const std::string& group)
{
    return DescriptionText{.layout = twoFields + buttons,
                           .values = "F = FILLEDBY, failing, " + function + ", x, one\n",
                           .dependencies = "F/FILL = E\n",
                           .input = toEnd,
                           .output = "(\"%s\", E)\n$OUTPUT, one\n" + group + "\n"}();
}

// Rules that show, read and hide a list without a choice, over many fields.
std::string ManyFields()
{
    DescriptionText text{.layout = list, .input = toEnd, .output = "(\"%s\", E)\n"};
    for (int number = 0; number < 40; ++number)
        text.layout += "TextBox 10, 31, 120, 19, ." + (number == 0 ? "E" : "F" + std::to_string(number)) + "\n";
    for (int number = 1; number <= 5; ++number)
        text.dependencies += "L/VISIBLE = E\nF" + std::to_string(number) + "/ACTIVE = L(a)\nL/VISIBLE = E(zz)\n";
    return text();
}

// What users have been caught in.
Words KnownTraps()
{
    Words traps;
    for (const char* function : {"Raise", "RaiseNumber", "Exhaust", "Crash"})
        traps.push_back(FilledBy(function, "(\"x\")"));
    traps.push_back(FilledBy("Echo", "(\"%s.5%q\", E)"));
    traps.push_back(FilledBy("Echo", "Misspelt(a) = (\"%s\", E)"));
    traps.push_back(ManyFields());
    const auto add = [&](const std::string& layout, const std::string& values, const std::string& rules)
    {
        traps.push_back(DescriptionText{.layout = layout,
                                        .values = values,
                                        .dependencies = rules,
                                        .input = toEnd,
                                        .output = "(\"%s\", E)\n",
                                        .section = "TEXTS"}());
    };
    add("CheckListBox 10, 5, 120, 60, .Values\nPushButton 10, 70, 120, 20, \"LABEL\", .Refill\n"
        "Text 10, 90, 120, 20, \"LABEL\", .ValuesLabel\nOKButton 10, 120, 80, 20, .Ok\n",
        "",
        "Cancel/VISIBLE = Refill(NULL)\nValues/ACTIVE = ValuesLabel(NULL)\nValuesLabel/DEFBUTTON = Values(NULL)\n"
        "Values/ACTIVE = Ok(NOTNULL), LabelLabel(a)\n");
    add(twoFields, "E = HIDDEN\n", "F/ACTIVE = F(NULL)\nF/ACTIVE = E\n");
    add("TextBox 10, 5, 120, 19, .E\n", "", "E/ACTIVE = E(zz)\nE/ACTIVE =\n");
    add(list + buttons, listOfTwo, "L/VISIBLE = L\nL/VISIBLE = L(a)\nL/VISIBLE = L\nL/VISIBLE = L(a)\n");
    return traps;
}

std::string Acts(Dice& dice)
{
    static const Words texts = {"", "a", "b", "1", "on", "zz", "a;b"};
    static const std::string keys = "tttrsbUDLRhn";
    std::string acts;
    for (size_t count = dice.Below(9); count > 0; --count)
    {
        const std::string child(1, static_cast<char>('0' + dice.Below(12)));
        const std::string item = std::to_string(dice.Below(4));
        const Words words = {"c" + child,
                             "c" + child + "," + item,
                             "d" + child + ",5",
                             "f" + child,
                             "f" + child,
                             "p" + child,
                             "b" + child,
                             "s" + child + "," + item,
                             "t" + child + "," + dice.Of(texts),
                             "t" + child + "," + dice.Of(texts),
                             std::string("k") + dice.Of(keys),
                             std::string("k") + dice.Of(keys),
                             "wa",
                             "w1",
                             "o"};
        acts += dice.Of(words) + " ";
    }
    return acts;
}

} // namespace

Case CaseOf(unsigned number, const std::vector<std::string>& samples)
{
    static const Words traps = KnownTraps();
    static const Words inputs = {"", "a", "one;two", "a;b;c", "(area>=20)", "b"};
    static const Words leaving = {"x", "X", "X", "ke", "ke", "q"};
    Dice dice(number);
    Case made;
    if (number < traps.size() * leaving.size())
    {
        made.description = traps[number % traps.size()];
        made.acts = "t0,zz t1,a ";
    }
    else if (!samples.empty() && dice.Is(4))
        made.description = Mutations(samples).Changed(static_cast<unsigned>(dice.Below(1U << 31U)));
    else
        made.description = GeneratedDialog(dice).Text();
    made.nested = dice.Is(4) ? made.description : GeneratedDialog(dice).Text();
    made.input = dice.Of(inputs);
    made.acts += Acts(dice);
    made.leaving = dice.Of(leaving);
    return made;
}
