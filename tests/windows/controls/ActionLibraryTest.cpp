// Which library files an action loads and frees. Windows in memory load nothing: there the libraries are part of the program.
#include "dialogs/DialogFixture.h"

namespace
{

class ActionLibrary : public DialogFixture
{
protected:
    // Presses a button with this action; the dialog tells of it.
    void Act(const std::string& action)
    {
        Description description;
        description.controls += "PushButton 200, 10, 60, 20, \"Label\", .Go\n";
        description.values = "Go=ACTION," + action + ",Send,Take\n";
        description.output += "$OUTPUT, Send\nKey(a) = (\"%s\", Key)\nNobody(1) = (\"%s\", Key)\n";
        Describe(description);
        On([](HWND dialog) { robot::Click(robot::ChildWithText(dialog, "A label")); });
    }
    // One reference to the library is left.
    static void ExpectHeldOnce(const char* library)
    {
        EXPECT_TRUE(FreeLibrary(GetModuleHandleA(library)));
        EXPECT_EQ(GetModuleHandleA(library), nullptr);
    }
};

} // namespace

TEST_F(ActionLibrary, IsLoadedTwiceAndFreedOnce)
{
    ASSERT_EQ(GetModuleHandleA("lytdata.dll"), nullptr);
    Act("lytdata,Remember");
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
    ExpectHeldOnce("lytdata.dll");
}

TEST_F(ActionLibrary, IsFreedOnceWhenTheActionRaises)
{
    ASSERT_EQ(GetModuleHandleA("lz32.dll"), nullptr);
    Act("lz32,LZClose");
    robot.AnswerMessage();
    EXPECT_EQ(ShowAndPress(IDOK, "b"), 2);
    EXPECT_EQ(robot.Messages(), Texts{"E245 'Nobody'"});
    ExpectHeldOnce("lz32.dll");
}
