// Prints what a screen reader learns of every sample dialog, of the catalogue and of a message, in both languages.
#include "Accessible.h"

#include "lyt64.h"

#include "robot/WindowRobot.h"
#include "samples/SampleSet.h"
#include "support/Library.h"

#include <cstdio>
#include <set>

namespace
{

constexpr struct
{
    const char* file;
    const char* text; // that it opens on
} dialogs[] = {
    {"lytInSym", "S1:area(2,m2)=\"n. a.\""},
    {"lytInPhr", "P1{roof.tiles}see plan 4[three|north]"},
    {"lytCdGrp", "(area>=20)"},
    {"lytRpGrp",
     "(Findings;T;roofing;Team North;101 Hall|102 Kitchen;Xroof|-walls;PC60;DIN 18338;roof;Rot; slight|Damp; severe)"},
    {"finding", "Cracks in the plaster; severe; north wall"},
    {"lytWzSym", "roof.tiles.area/Area"},
    {"lytWzPhr", "Roof"},
    {"lytWzGrp", "roof.tiles/Roof tiles"},
};

std::set<std::string> completedClasses;

void Print(HWND window, const char* indent)
{
    const Accessible accessible = Describe(window);
    if (!accessible.isTold)
        completedClasses.insert(robot::ClassOf(window));
    std::printf("%s%s\n", indent, TextOf(accessible).c_str());
}

// A window, and what it shows, in the order in which a reader goes through it.
void PrintWindow(HWND window)
{
    Print(window, "");
    for (HWND child : robot::ChildrenOf(window))
    {
        if (IsWindowVisible(child) != FALSE)
            Print(child, "  ");
    }
    std::printf("\n");
}

void PrintAndCancel(HWND dialog)
{
    PrintWindow(dialog);
    robot::Press(GetDlgItem(dialog, IDCANCEL));
}

bool PrintDialogs(const SampleSet& samples)
{
    bool good = true;
    for (const auto& dialog : dialogs)
    {
        robot::Robot robot;
        robot.On("", PrintAndCancel);
        samples.Open(dialog.file, dialog.text);
        good = robot.Done() && good;
    }
    return good;
}

bool PrintMessage(const SampleSet& samples)
{
    robot::Robot robot;
    robot.On("", [](HWND dialog) { robot::Press(GetDlgItem(dialog, IDOK)); });
    robot.When(
        "message", [] { return robot::IsMessageBox(robot::ActiveDialog()); },
        []
        {
            PrintWindow(robot::ActiveDialog());
            robot::Press(GetDlgItem(robot::ActiveDialog(), IDOK));
        });
    robot.On("", [](HWND dialog) { robot::Press(GetDlgItem(dialog, IDCANCEL)); });
    samples.Open("lytInSym", "");
    return robot.Done();
}

bool PrintCatalogue()
{
    robot::Robot robot;
    robot.On("", PrintAndCancel);
    char choice[256] = "";
    Call<decltype(lytOpenTreeView)>("lytOpenTreeView")("S", choice, 255);
    return robot.Done();
}

} // namespace

int main()
{
    bool good = true;
    for (const char* language : {"English", "German"})
    {
        std::printf("==== %s\n\n", language);
        const SampleSet samples(language);
        good = PrintDialogs(samples) && good;
        good = PrintMessage(samples) && good;
        good = PrintCatalogue() && good;
    }
    std::printf("==== Described by the platform as a client area only\n\n");
    for (const std::string& name : completedClasses)
        std::printf("%s\n", name.c_str());
    return good ? 0 : 1;
}
