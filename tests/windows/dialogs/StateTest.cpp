// What the property dialogs keep from call to call, and what they leave in the host.
#include "DialogFixture.h"

namespace
{

class State : public DialogFixture
{
protected:
    State()
    {
        for (const char* name : {"lytInSym", "lytInPhr", "lytCdGrp"})
            Describe({}, name);
    }
};

} // namespace

TEST_F(State, SymbolAndPhraseHaveDescriptionsOfTheirOwn)
{
    Description other;
    other.begin = "Begin Dialog Box 300, 200, \"Label\", .Main\n";
    Describe(other, "lytInPhr");
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
    robot.On("A label", [](HWND) { robot::PressKey(VK_RETURN); });
    GuardedBuffer buffer(20, "old");
    EXPECT_EQ(phrase("a", buffer.Data(), buffer.Size()), 2);
    EXPECT_EQ(buffer.Text(), "a");
}

TEST_F(State, ResultThatIsTooLongLeavesTheBufferEmptyWithANulBeyond)
{
    GuardedBuffer buffer(4, "old");
    PressOn(IDOK);
    EXPECT_EQ(symbol("abcd", buffer.Data(), 4), 1) << "as long as the size does not fit, and is not longer";
    EXPECT_EQ(buffer.Text(), "");
    EXPECT_TRUE(buffer.IsIntact());
    PressOn(IDOK);
    EXPECT_EQ(symbol("abcde", buffer.Data(), 4), 1);
    EXPECT_EQ(buffer.Text(), "");
    EXPECT_EQ(buffer.ByteBeyond(), '\0');
    EXPECT_TRUE(buffer.IsIntact(1));
    PressOn(IDOK);
    EXPECT_EQ(symbol("abc", buffer.Data(), 4), 2);
    EXPECT_EQ(buffer.Text(), "abc");
}

TEST_F(State, EmptyResultLeavesTheBufferAndComparesItAllTheSame)
{
    GuardedBuffer buffer(20, "A1");
    for (const auto& [key, answer] : {std::pair("A1", 2), std::pair("B1", 1)})
    {
        On(
            [](HWND dialog)
            {
                robot::ReplaceText(robot::ChildAt(dialog, 0), "");
                robot::PressKey(VK_RETURN);
            });
        EXPECT_EQ(symbol(key, buffer.Data(), buffer.Size()), answer);
        EXPECT_EQ(buffer.Text(), "A1");
    }
}

TEST_F(State, BufferWithoutANulIsReadNoFurtherThanItsSize)
{
    GuardedBuffer buffer(3);
    std::fill_n(buffer.Data(), 3, 'x');
    On(
        [](HWND dialog)
        {
            robot::ReplaceText(robot::ChildAt(dialog, 0), "");
            robot::PressKey(VK_RETURN);
        });
    EXPECT_EQ(symbol("xxx", buffer.Data(), 3), 2);
}

TEST_F(State, NoKeyIsLeftForTheNextDialog)
{
    EXPECT_EQ(ShowAndPress(IDCANCEL, "left behind"), 0);
    On(
        [](HWND dialog)
        {
            EXPECT_EQ(robot::TextOf(robot::ChildAt(dialog, 0)), "");
            robot::PressKey(VK_ESCAPE);
        });
    GuardedBuffer first(20), second(20);
    EXPECT_EQ(group(0, "", first.Data(), 20, second.Data(), 20), 0);
}

TEST_F(State, ReleaseTwiceAndStartAgain)
{
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
    release();
    release();
    EXPECT_EQ(MessageOfFailure(), "no value present") << "no folder is known any more";
    initialise("doc.rtf", folder.Path().c_str(), folder.Path().c_str());
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
}

TEST_F(State, HostIsAsBeforeOnEveryWayOut)
{
    HWND host =
        CreateWindowExA(0, "Static", "host", WS_POPUP | WS_VISIBLE, 0, 0, 200, 100, nullptr, nullptr, nullptr, nullptr);
    HWND field = CreateWindowExA(0, "Edit", "", WS_CHILD | WS_VISIBLE, 0, 0, 50, 20, host, nullptr, nullptr, nullptr);
    SetActiveWindow(host);
    SetFocus(field);
    HCURSOR cursor = LoadCursorA(nullptr, IDC_CROSS);
    SetCursor(cursor);
    char folderBefore[MAX_PATH] = "";
    GetCurrentDirectoryA(sizeof folderBefore, folderBefore);
    const std::string locale = setlocale(LC_ALL, nullptr);

    const auto expectAsBefore = [&](const char* how)
    {
        SCOPED_TRACE(how);
        EXPECT_TRUE(IsWindowEnabled(host));
        EXPECT_EQ(GetActiveWindow(), host);
        EXPECT_EQ(GetFocus(), field);
        EXPECT_EQ(GetCursor(), cursor);
        char folderNow[MAX_PATH] = "";
        GetCurrentDirectoryA(sizeof folderNow, folderNow);
        EXPECT_STREQ(folderNow, folderBefore);
        EXPECT_EQ(setlocale(LC_ALL, nullptr), locale);
    };
    On([&](HWND) { EXPECT_FALSE(IsWindowEnabled(host)); });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
    expectAsBefore("OK");
    EXPECT_EQ(ShowAndPress(IDCANCEL, "a"), 0);
    expectAsBefore("Cancel");
    folder.Write("lytInSym.dlg", "");
    EXPECT_EQ(MessageOfFailure(), "E214 ''");
    expectAsBefore("failure");

    EnableWindow(host, FALSE);
    Describe({});
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
    EXPECT_FALSE(IsWindowEnabled(host)) << "a host that was disabled stays so";
    DestroyWindow(host);
}
