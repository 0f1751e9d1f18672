// What the controls of all type words have in common.
#include "Form.h"

#include <gtest/gtest.h>

TEST(EveryControl, TakesTheOptionWords)
{
    const Texts names = {"Edit", "Label", "Frame", "List", "Marks", "Combo", "Drop", "Box", "Option", "Button"};
    static const struct
    {
        Texts words;
        bool isShown;
        bool isEnabled;
    } cases[] = {
        {{"HIDDEN"}, false, true},
        {{"INVISIBLE"}, false, true},
        {{"DISPLAYONLY"}, true, false},
        {{"INACTIVE"}, true, false},
        {{"INVISIBLE", "INACTIVE"}, false, false},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.words.front());
        Form form;
        form.main.layout = {"TextBox Edit",       "Text Label",          "GroupBox Frame",   "ListBox List",
                            "CheckListBox Marks", "ComboBox Combo",      "DropListBox Drop", "CheckBox Box",
                            "OptionGroup .Kind",  "OptionButton Option", "PushButton Button"};
        for (const std::string& word : c.words)
        {
            for (const std::string& name : names)
                form.main.values.push_back(name + "=" + word);
            form.main.values.push_back("Ok=" + word);
        }
        form.Then(
            [&]
            {
                for (const std::string& name : names)
                {
                    SCOPED_TRACE(name);
                    EXPECT_EQ(IsWindowVisible(form[name]) != FALSE, c.isShown);
                    EXPECT_EQ(IsWindowEnabled(form[name]) != FALSE, c.isEnabled);
                }
                EXPECT_TRUE(IsWindowVisible(form["Ok"]) && IsWindowEnabled(form["Ok"])) << "takes no option";
            });
        form.Ok().Open();
    }
}

TEST(EveryControl, TellsWhatItDoesNotOffer)
{
    static const struct
    {
        const char* type;
        bool takesValue;
        bool hasAction;
        bool hasShownText;
        bool hasValue;
        const char* name = "Control";
    } cases[] = {
        {"TextBox", true, true, false, true},
        {"Text", true, false, false, false},
        {"GroupBox", false, false, false, false},
        {"ComboBox", true, true, false, true},
        {"DropListBox", true, true, false, true},
        {"PushButton", false, false, false, false},
        {"CheckBox", true, false, false, true},
        {"OptionGroup", true, false, false, true},
        {"OptionButton", true, false, false, true},
        // Without a name of its own, its value is not asked for.
        {"OKButton", false, false, false, true, ""},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.type);
        Form form;
        form.main.layout = {std::string(c.type) + " Control", "TextBox Edit", "ListBox Target", "PushButton Add"};
        form.main.values = {"Add=ADD,Control,Target"};
        form.main.rules = {"Control/CLEAR=Edit"};
        form.main.input = InputTo("Control");
        form.main.output = {"(\"<%s>\", Control)"};
        Texts expected;
        const auto expectMessage = [&](const std::string& message)
        {
            form.Message();
            expected.push_back(message);
        };
        if (!c.takesValue)
            expectMessage("200 ''");
        form.Then([&] { PostMessageA(form["Edit"], WM_CHAR, 'x', 1); });
        if (!c.hasAction)
            expectMessage("248 ''\n247 '" + std::string(c.name) + "'");
        form.Then([&] { robot::Click(form["Add"]); });
        if (!c.hasShownText)
            expectMessage("201 ''");
        form.Then([&] { EXPECT_EQ(robot::ItemsOf(form["Target"]), Texts{}); });
        form.Ok();
        if (!c.hasValue)
            expectMessage("201 ''");
        EXPECT_EQ(form.Open("x").messages, expected);
    }
}

TEST(EveryControl, WithAMarkIsAsWideAsItsTextWithRoomForTheMark)
{
    Form form;
    form.main.layout = {"CheckBox 8, 6, 400, 90, \"Box\", .Box", "OptionGroup .Kind",
                        "OptionButton 8, 40, 100, 90, \"Box\", .Option", "Text Label"};
    form.texts = {{"Box", "A label"}, {"Label", "A label"}};
    form.Then(
        [&]
        {
            RECT text = {};
            GetClientRect(form["Label"], &text);
            HDC device = GetDC(form["Label"]);
            // 28 units at the scale of the screen's resolution.
            const int room = GetDeviceCaps(device, LOGPIXELSX) == 120 ? 28 : 21;
            ReleaseDC(form["Label"], device);
            for (const char* name : {"Box", "Option"})
            {
                RECT area = {};
                GetClientRect(form[name], &area);
                EXPECT_EQ(area.right, text.right + room) << name;
                EXPECT_EQ(area.bottom, text.bottom) << name;
            }
        });
    form.Ok().Open();
}
