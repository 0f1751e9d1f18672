#include "lyt64.h"

#include "support/Library.h"

#include <gtest/gtest.h>

namespace
{

class EnvironmentExports : public testing::Test
{
protected:
    decltype(lytInitialiseEnvironment)* initialise =
        Call<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment");
    decltype(lytSetDialogDefine)* setDefine = Call<decltype(lytSetDialogDefine)>("lytSetDialogDefine");
    decltype(lytGetInitializationPath)* getPath = Call<decltype(lytGetInitializationPath)>("lytGetInitializationPath");
    decltype(lytGetCurrentDocName)* getDocName = Call<decltype(lytGetCurrentDocName)>("lytGetCurrentDocName");
    decltype(FreeGlobalObject)* release = Call<decltype(FreeGlobalObject)>("FreeGlobalObject");
};

} // namespace

// Comes first: only a fresh process has seen no initialisation.
TEST_F(EnvironmentExports, DocNameIsEmptyBeforeAnyInitialisation)
{
    GuardedBuffer buffer(20, "old");
    EXPECT_EQ(getDocName(buffer.Data(), buffer.Size()), 0);
    EXPECT_EQ(buffer.Text(), "");
    EXPECT_TRUE(buffer.IsIntact());
}

TEST_F(EnvironmentExports, KeepsDocumentAndFolder)
{
    initialise("doc.rtf", "C:\\dialogs", "C:\\init");
    GuardedBuffer buffer(20);
    EXPECT_EQ(getDocName(buffer.Data(), buffer.Size()), 1);
    EXPECT_EQ(buffer.Text(), "doc.rtf");
    EXPECT_EQ(getPath(buffer.Data(), buffer.Size()), 1);
    EXPECT_EQ(buffer.Text(), "C:\\init");
}

TEST_F(EnvironmentExports, LeavesAShortBufferEmpty)
{
    initialise("1234567", "", "");
    GuardedBuffer fits(8);
    EXPECT_EQ(getDocName(fits.Data(), fits.Size()), 1);
    GuardedBuffer tooShort(7, "old");
    EXPECT_EQ(getDocName(tooShort.Data(), tooShort.Size()), 0);
    EXPECT_EQ(tooShort.Text(), "");
    EXPECT_TRUE(tooShort.IsIntact());
}

TEST_F(EnvironmentExports, ReleaseTwiceFindsEverythingEmpty)
{
    initialise("doc.rtf", "C:\\dialogs", "C:\\init");
    release();
    release();
    GuardedBuffer buffer(20, "old");
    EXPECT_EQ(getPath(buffer.Data(), buffer.Size()), 0);
    EXPECT_EQ(getDocName(buffer.Data(), buffer.Size()), 0);
}
