#include "Ways.h"

std::string FillText(Scene& scene, Steps between, const std::string& library)
{
    scene.Describe("", "Key=FILLEDBY,\"" + library + "\",Text\nFill=FILL,Key\n");
    between(scene.ClickOn("Fill"));
    return scene.EndDialog(IDOK).ShowSymbol();
}

Texts FillList(Scene& scene, Steps between, const std::string& library)
{
    scene.Describe("ListBox 10, 60, 60, 40, .List\n",
                   "List=OWN,own\nList=FILLEDBY,\"" + library + "\",Start,Next\nFill=FILL,List\n");
    Texts items;
    between(scene.ClickOn("Fill"));
    scene.OnDialog(
        [&](HWND dialog)
        {
            items = robot::ItemsOf(robot::ChildOfClass(dialog, "ListBox"));
            robot::Press(GetDlgItem(dialog, IDOK));
        });
    EXPECT_EQ(scene.ShowSymbol(), "2 key");
    return items;
}

std::string Act(Scene& scene, Steps between, const std::string& library)
{
    scene.Describe("", "Go=ACTION,\"" + library + "\",Text,Send,Take\n");
    between(scene.ClickOn("Go"));
    return scene.EndDialog(IDOK).ShowSymbol();
}

std::string VersionLine(const Scene& scene)
{
    scene.Get<decltype(lytSystemInfoInit)>("lytSystemInfoInit")("");
    auto* const read = scene.Get<decltype(lytSystemInfoRead)>("lytSystemInfoRead");
    const std::string label = "LYT Resolve Version            : ";
    char buffer[1000] = "";
    for (int index = 0; read(index, buffer, sizeof buffer) == 1; ++index)
    {
        const std::string line = buffer;
        if (line.starts_with(label))
            return line.substr(label.size());
    }
    return "no such line";
}

std::string NoVersion()
{
    return std::string(399, ' ');
}
