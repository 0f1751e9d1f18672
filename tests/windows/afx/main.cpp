#include <afxstat_.h>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    const HINSTANCE module = GetModuleHandleA(nullptr);
    *AfxGetStaticModuleState() = {module, module};
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
