// A folder with a language file and descriptions, the dialogs' exports, and a robot that acts in the live dialog.
#pragma once

#include "lyt64.h"

#include "robot/WindowRobot.h"
#include "support/Library.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

// A description, section by section. As it comes it scans the whole key into the control "Key" and gives its text back.
struct Description
{
    std::string head = "$VERSION 1\n$LAYOUT TEXTS\n";
    std::string begin = "Begin Dialog Box 300, 200, \"Title\", .Main\n";
    std::string controls = "TextBox 10, 10, 150, 15, .Key\n"
                           "OKButton 10, 150, 60, 20, .Ok\n"
                           "CancelButton 90, 150, 60, 20, .Cancel\n";
    std::string values;
    std::string rules;
    std::string evaluation = "$EVALUATION, x\n";
    std::string checks;
    std::string input = "$INPUT, parent\nStart: (999, End = Key\n";
    std::string output = "$OUTPUT, parent\n(\"%s\", Key)\n";
    std::string end = "$END\n";

    std::string Text() const
    {
        return head + begin + controls + "End Dialog\n$VALUES\n" + values + "$DEPENDANCES\n" + rules + evaluation +
               checks + input + output + end;
    }
};

class DialogFixture : public testing::Test
{
protected:
    DialogFixture();
    ~DialogFixture() override;

    void WriteTexts(const std::string& lines) const { folder.Write("lang/Test.nls", lines); }
    void Describe(const Description& description, const std::string& name = "lytInSym") const
    {
        folder.Write(name + ".dlg", description.Text());
    }

    // Shows the symbol dialog for a key; the text of the buffer is `text` afterwards.
    int Show(const char* key = "");
    // The same while the robot waits for nothing else than OK or Cancel.
    int ShowAndPress(int button, const char* key = "");
    // Shows a dialog whose construction fails: the one message that it shows. 0 and the buffer as it was are expected.
    std::string MessageOfFailure();

    // A step on the dialog "The title".
    void On(std::function<void(HWND)> act) { robot.On("The title", std::move(act)); }
    void PressOn(int button)
    {
        On([button](HWND dialog) { robot::Press(GetDlgItem(dialog, button)); });
    }
    // Sends the dialog a command of no meaning: the rules run once.
    static void SendCommand(HWND dialog) { SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(0, 0x77), 1); }

    const TestFolder folder;
    robot::Robot robot;
    std::string text;

    decltype(lytInitialiseEnvironment)* initialise =
        Call<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment");
    decltype(lytSetDialogDefine)* setDefine = Call<decltype(lytSetDialogDefine)>("lytSetDialogDefine");
    decltype(lytSymbolPropertyDialog)* symbol = Call<decltype(lytSymbolPropertyDialog)>("lytSymbolPropertyDialog");
    decltype(lytPhrasePropertyDialog)* phrase = Call<decltype(lytPhrasePropertyDialog)>("lytPhrasePropertyDialog");
    decltype(lytGroupPropertyDialog)* group = Call<decltype(lytGroupPropertyDialog)>("lytGroupPropertyDialog");
    decltype(FreeGlobalObject)* release = Call<decltype(FreeGlobalObject)>("FreeGlobalObject");
};

using Texts = std::vector<std::string>;

// The texts of a language file that the tests share: every numbered message names its number.
std::string SharedTexts();
