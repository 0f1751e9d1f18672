// A process whose first call is the wizard, and whose host asks for no version of the common controls.
#include "lyt64.h"

#include "robot/WindowRobot.h"
#include "support/Library.h"
#include "support/Modules.h"

#include <gtest/gtest.h>

namespace
{

// The paths of the common controls that are loaded.
std::vector<std::string> CommonControls()
{
    std::vector<std::string> found;
    for (const std::string& path : LoadedModules())
    {
        if (FileNameOf(path) == "comctl32.dll")
            found.push_back(path);
    }
    return found;
}

} // namespace

TEST(WizardFirst, BindsTheCommonControlsOfTheManifest)
{
    ASSERT_EQ(FindResourceA(nullptr, CREATEPROCESS_MANIFEST_RESOURCE_ID, RT_MANIFEST), nullptr);
    ASSERT_TRUE(CommonControls().empty());

    robot::Robot robot;
    robot.On("", [](HWND dialog) { robot::Press(GetDlgItem(dialog, IDCANCEL)); });
    GuardedBuffer buffer(255);
    EXPECT_EQ(Call<decltype(lytWizard)>("lytWizard")(buffer.Data(), buffer.Size()), 0);
    EXPECT_TRUE(robot.Done()) << robot.Log();

    const std::vector<std::string> found = CommonControls();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_NE(found.front().find("\\winsxs\\"), std::string::npos) << found.front();
}
