// Loaded, called and unloaded over and over, the library leaves nothing in the process.
#include "dialogs/DialogFixture.h"
#include "support/FreshLibrary.h"
#include "support/Leaks.h"

namespace
{

class Unloading : public testing::Test
{
protected:
    Unloading()
    {
        folder.Write("lyt.ini", "[global]\r\nCurrent Language=Test\r\n[LogLevel]\r\nlevel=1\r\n"
                                "[FONTS]\r\nFont=Tahoma\r\n");
        folder.Write("lang/Test.nls", SharedTexts());
        for (const char* name : {"lytInSym", "lytWzGrp", "lytWzPhr", "lytWzSym"})
            folder.Write(std::string(name) + ".dlg", Description().Text());
    }

    // Loads the library, tells it where things are, makes the call and unloads it, again and again.
    void Cycle(int times, const std::function<void(const FreshLibrary&)>& call) const
    {
        ExpectNoGrowth(
            [&]
            {
                const FreshLibrary library;
                library.Get<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")(
                    (folder.Path() + "\\doc.rtf").c_str(), folder.Path().c_str(), folder.Path().c_str());
                call(library);
            },
            times);
    }
    // The same for a call that shows one dialog after another, each of which is confirmed.
    void CycleWithDialogs(int dialogs, const std::function<void(const FreshLibrary&)>& call) const
    {
        Cycle(Holdings::Rounds(),
              [&](const FreshLibrary& library)
              {
                  // A robot a round: its log would grow.
                  robot::Robot user;
                  for (int dialog = 0; dialog < dialogs; ++dialog)
                      user.On("", [](HWND window) { robot::Press(GetDlgItem(window, IDOK)); });
                  call(library);
                  EXPECT_TRUE(user.Done()) << user.Log();
              });
    }

    const TestFolder folder;
    char buffer[300] = "";
};

} // namespace

TEST_F(Unloading, AfterATextLeavesNothingBehind)
{
    Cycle(12 * Holdings::Rounds(),
          [&](const FreshLibrary& library) {
              EXPECT_EQ(library.Get<decltype(lytGetTextForKey)>("lytGetTextForKey")("Buttons", "001", "", buffer, 200),
                        1);
          });
}

TEST_F(Unloading, AfterALogLeavesNothingBehind)
{
    Cycle(Holdings::Rounds(), [](const FreshLibrary& library)
          { library.Get<decltype(lytWriteToLogFile)>("lytWriteToLogFile")("text", 1); });
    EXPECT_TRUE(folder.Has("doc.log"));
}

TEST_F(Unloading, AfterAPropertyDialogLeavesNothingBehind)
{
    CycleWithDialogs(1,
                     [&](const FreshLibrary& library)
                     {
                         auto* show = library.Get<decltype(lytSymbolPropertyDialog)>("lytSymbolPropertyDialog");
                         EXPECT_NE(show("key", buffer, 200), 0);
                     });
}

TEST_F(Unloading, AfterADialogThatFailsLeavesNothingBehind)
{
    folder.Write("lytInSym.dlg", "no version\n");
    Cycle(Holdings::Rounds(),
          [&](const FreshLibrary& library)
          {
              robot::Robot user;
              user.AnswerMessage();
              auto* show = library.Get<decltype(lytSymbolPropertyDialog)>("lytSymbolPropertyDialog");
              EXPECT_EQ(show("key", buffer, 200), 0);
              EXPECT_TRUE(user.Done()) << user.Log();
          });
}

TEST_F(Unloading, AfterACatalogueLeavesNothingBehind)
{
    CycleWithDialogs(1, [&](const FreshLibrary& library)
                     { library.Get<decltype(lytOpenTreeView)>("lytOpenTreeView")("W", buffer, 200); });
}

TEST_F(Unloading, AfterAWizardLeavesNothingBehind)
{
    CycleWithDialogs(2,
                     [&](const FreshLibrary& library) { library.Get<decltype(lytWizard)>("lytWizard")(buffer, 200); });
}

TEST_F(Unloading, AfterAReportLeavesNothingBehind)
{
    Cycle(Holdings::Rounds(),
          [&](const FreshLibrary& library)
          {
              EXPECT_EQ(library.Get<decltype(lytSystemInfoInit)>("lytSystemInfoInit")(folder.Path().c_str()), 1);
              EXPECT_EQ(library.Get<decltype(lytSystemInfoRead)>("lytSystemInfoRead")(1, buffer, 200), 1);
          });
}
