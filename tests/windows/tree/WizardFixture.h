// The wizard over a catalogue and the three dialogs that it opens.
#pragma once

#include "TreeFixture.h"

class Wizard : public TreeTest
{
protected:
    Wizard()
    {
        UseSource();
        for (const char* file : {"lytWzGrp", "lytWzPhr", "lytWzSym"})
            WriteDialog(file, file);
    }

    // A dialog whose title tells the file, and whose one field takes the input and gives the result.
    void WriteDialog(const std::string& file, const std::string& title, const std::string& moreControls = "",
                     const std::string& values = "")
    {
        folder.Write("dialogs/" + file + ".dlg", "$VERSION 1\n$LAYOUT Wizard\n"
                                                 "Begin Dialog Box 200, 100, \"" +
                                                     title +
                                                     "\", .Main\n"
                                                     "TextBox 10, 10, 100, 19, .Key\n" +
                                                     moreControls +
                                                     "OKButton 10, 40, 60, 20, .Ok\n"
                                                     "CancelButton 80, 40, 60, 20, .Cancel\n"
                                                     "End Dialog\n"
                                                     "$VALUES\n" +
                                                     values +
                                                     "$DEPENDANCES\n$EVALUATION, x\n"
                                                     "$INPUT, parent\nStart: (\"~\", End = Key\n"
                                                     "$OUTPUT, parent\n(\"%s\", Key)\n$END\n");
        folder.Write("dialogs/lang/English.nls", "[Label]\nTreeDlgLabel=Catalogue\n"
                                                 "[Wizard]\nlytWzGrp=Group\nlytWzPhr=Phrase\nlytWzSym=Symbol\n"
                                                 "[Buttons]\n001=Fine\n002=Stop\n"
                                                 "[Dialog_Error]\n207=No file ''.\n222=Pick another.\n");
    }

    // `result text` of one call with nothing on the screen.
    std::string Next(int size = 255)
    {
        GuardedBuffer buffer(size, "untouched");
        const int result = Get<decltype(lytWizard)>("lytWizard")(buffer.Data(), buffer.Size());
        EXPECT_TRUE(buffer.IsIntact());
        return std::to_string(result) + " " + buffer.Text();
    }

    // One call in which an entry is picked, and the dialog with this title gets the text and OK, or Cancel without one.
    std::string Ask(const std::string& label, const std::string& title, const char* text, int size = 255)
    {
        robot::Robot robot;
        robot.On("Catalogue", [&](HWND dialog) { TreeWindow(dialog).Pick(label); });
        robot.On(title,
                 [&](HWND dialog)
                 {
                     HWND field = robot::ChildOfClass(dialog, "Edit");
                     input = robot::TextOf(field);
                     if (text != nullptr)
                         robot::ReplaceText(field, text);
                     robot::Press(robot::ChildWithText(dialog, text != nullptr ? "Fine" : "Stop"));
                 });
        std::string answer = Next(size);
        EXPECT_TRUE(robot.Done()) << robot.Log();
        return answer;
    }

    std::string input; // what was in the dialog's field
};
