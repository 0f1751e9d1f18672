// A watch ends its wait when a file changes that it is about, and not for any other.
#include "lytdlg/text/Watch.h"
#include "lytdlg/text/TextFile.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <future>

namespace
{

using namespace std::chrono_literals;

// Whether the wait ends after the act.
bool EndsAfter(lytdlg::Watch& watch, const std::function<void()>& act)
{
    std::future<void> wait = std::async(std::launch::async, [&] { watch.AwaitChange(); });
    act();
    return wait.wait_for(20s) == std::future_status::ready;
}

struct Enough
{
};

const TestFolder* watchedFolder = nullptr;
int timesDone = 0;

// Changes a file each time, and fails in between.
lytdlg::ExitCode ActThreeTimes(const lytdlg::Request& request)
{
    if (++timesDone == 3)
        throw Enough();
    watchedFolder->Write("a.dlg", std::string(static_cast<size_t>(timesDone), 'x'));
    if (timesDone == 2)
        throw std::runtime_error(request.operands.front() + " cannot be read");
    return lytdlg::good;
}

} // namespace

TEST(Watch, HearsOfFilesOfAFolderAndBelow)
{
    const TestFolder folder;
    folder.Write("a.dlg", "1");
    lytdlg::Watch watch({folder.Path()});
    EXPECT_TRUE(EndsAfter(watch, [&] { folder.Write("a.dlg", "22"); }));
    EXPECT_TRUE(EndsAfter(watch, [&] { lytdlg::WriteWholeFile(folder.File("a.dlg"), "333"); }));
    EXPECT_TRUE(EndsAfter(watch, [&] { folder.Write("lang/English.nls", "[A]"); }));
    EXPECT_TRUE(EndsAfter(watch, [&] { std::filesystem::remove(folder.File("a.dlg")); }));
}

TEST(Watch, HearsOfTheTextsBesideAFile)
{
    const TestFolder folder;
    const std::string dialog = folder.Write("a.dlg", "1");
    const std::string texts = folder.Write("lang/English.nls", "[A]");
    lytdlg::Watch watch({dialog});
    EXPECT_TRUE(EndsAfter(watch, [&] { folder.Write("lang/English.nls", "[A]B"); }));
}

TEST(Watch, PassesOverOtherFiles)
{
    const TestFolder folder;
    folder.Write("a.dlg", "1");
    lytdlg::Watch watch({folder.Path()});
    std::future<void> wait = std::async(std::launch::async, [&] { watch.AwaitChange(); });
    folder.Write("a.svg", "1");
    EXPECT_EQ(wait.wait_for(300ms), std::future_status::timeout);
    folder.Write("a.dlg", "22");
    EXPECT_EQ(wait.wait_for(20s), std::future_status::ready);
}

// What was changed before the wait begins counts as well.
TEST(Watch, MissesNothingBetweenTwoWaits)
{
    const TestFolder folder;
    folder.Write("a.dlg", "1");
    lytdlg::Watch watch({folder.Path()});
    folder.Write("a.dlg", "22");
    EXPECT_TRUE(EndsAfter(watch, [] {}));
}

// A file may be incomplete when it is read, and whole after the next change.
TEST(Watch, DoesItAgainAfterEachChangeAndAfterAFailure)
{
    const TestFolder folder;
    watchedFolder = &folder;
    lytdlg::Request request;
    request.operands = {folder.Path()};
    request.Add("--watch", "");
    EXPECT_THROW(lytdlg::DoWatching(request, ActThreeTimes), Enough);
    EXPECT_EQ(timesDone, 3);
}
