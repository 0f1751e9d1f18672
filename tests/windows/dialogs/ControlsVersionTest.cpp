// Which set of common controls dialogs have, in spite of what the host asks for. Windows in memory have one set only.
#include "DialogFixture.h"

using ControlsVersion = DialogFixture;

TEST_F(ControlsVersion, IsSix)
{
    Describe({});
    On(
        [](HWND dialog)
        {
            HMODULE module = nullptr;
            const auto procedure = GetClassLongPtrW(robot::ChildAt(dialog, 1), GCLP_WNDPROC);
            GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                               reinterpret_cast<LPCSTR>(procedure), &module);
            char file[MAX_PATH] = "";
            GetModuleFileNameA(module, file, sizeof file);
            EXPECT_NE(std::string(file).find("winsxs"), std::string::npos) << file;
        });
    EXPECT_EQ(ShowAndPress(IDOK, "a"), 2);
    HANDLE context = nullptr;
    EXPECT_TRUE(GetCurrentActCtx(&context));
    EXPECT_EQ(context, nullptr) << "the host's own context is in force again";
}
