// What a process holds is measured where the platform has no count of it: all that is taken shows, and is gone when it is
// given back.
#include "support/Holdings.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

#include <windows.h>

namespace
{

using Release = std::function<void()>;

Release TakeWindow()
{
    HWND window = CreateWindowExA(0, "Static", "", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr, nullptr, nullptr);
    return [window] { DestroyWindow(window); };
}

Release TakeMenu()
{
    HMENU menu = CreateMenu();
    return [menu] { DestroyMenu(menu); };
}

Release TakeCursor()
{
    constexpr int size = 32;
    const std::vector<BYTE> mask(size * size / 8);
    HCURSOR cursor = CreateCursor(nullptr, 0, 0, size, size, mask.data(), mask.data());
    return [cursor] { DestroyCursor(cursor); };
}

Release TakeBrush()
{
    HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    return [brush] { DeleteObject(brush); };
}

Release TakeEvent()
{
    HANDLE event = CreateEventA(nullptr, TRUE, FALSE, nullptr);
    return [event] { CloseHandle(event); };
}

Release TakeThreadSlot()
{
    const DWORD slot = TlsAlloc();
    return [slot] { TlsFree(slot); };
}

Release TakeFiberSlot()
{
    const DWORD slot = FlsAlloc(nullptr);
    return [slot] { FlsFree(slot); };
}

Release TakeClass()
{
    WNDCLASSA kind = {};
    kind.lpfnWndProc = DefWindowProcA;
    kind.lpszClassName = "another class of the test";
    RegisterClassA(&kind);
    return [] { UnregisterClassA("another class of the test", nullptr); };
}

// The context of the common controls that the library under test asks for.
HANDLE CreateContext()
{
    HMODULE library = LoadLibraryA("lyt64.dll");
    ACTCTXA context = {};
    context.cbSize = sizeof context;
    context.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    context.hModule = library;
    context.lpResourceName = MAKEINTRESOURCEA(2);
    HANDLE created = CreateActCtxA(&context);
    FreeLibrary(library);
    return created;
}

Release TakeContext()
{
    HANDLE context = CreateContext();
    EXPECT_NE(context, INVALID_HANDLE_VALUE);
    return [context] { ReleaseActCtx(context); };
}

Release SwitchContextOn()
{
    HANDLE context = CreateContext();
    ULONG_PTR cookie = 0;
    EXPECT_TRUE(ActivateActCtx(context, &cookie));
    ReleaseActCtx(context);
    return [cookie] { DeactivateActCtx(0, cookie); };
}

Release TakeBlocks()
{
    const auto blocks = std::make_shared<std::vector<std::unique_ptr<int>>>();
    for (int count = 0; count < 60; ++count)
        blocks->push_back(std::make_unique<int>());
    return [blocks] { blocks->clear(); };
}

} // namespace

TEST(Holdings, ShowWhatIsTakenUntilItIsGivenBack)
{
    static const struct
    {
        const char* kind;
        Release (*take)();
    } cases[] = {
        {"windows", TakeWindow},
        {"menus", TakeMenu},
        {"cursors and icons", TakeCursor},
        {"graphics objects", TakeBrush},
        {"kernel handles", TakeEvent},
        {"next thread slot", TakeThreadSlot},
        {"next fiber slot", TakeFiberSlot},
        {"next window class", TakeClass},
        {"activation contexts held", TakeContext},
        {"activation contexts on", SwitchContextOn},
        {"blocks of the heap", TakeBlocks},
    };
    for (const auto& c : cases)
    {
        SCOPED_TRACE(c.kind);
        // What the first of its kind brings in for good.
        c.take()();
        Holdings().Text();
        constexpr int rounds = 100;
        const Holdings before;
        const Release release = c.take();
        EXPECT_NE(Holdings().GrowthSince(before, rounds).find(c.kind + std::string(": ")), std::string::npos)
            << Holdings().Text();
        release();
        EXPECT_EQ(Holdings().GrowthSince(before, rounds), "");
    }
}
