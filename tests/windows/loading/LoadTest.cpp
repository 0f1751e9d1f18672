// What loading the library brings into a process, and what it does to the file.
#include "support/FreshLibrary.h"
#include "support/Image.h"
#include "support/Library.h"
#include "support/Modules.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <windows.h>

namespace
{

// Adds the file names of all modules that this one is bound to at load, and of all that those are bound to.
void AddImported(HMODULE module, std::set<std::string>& names)
{
    const Image image(module);
    for (const auto* import = image.Imports(); import != nullptr && import->Name != 0; ++import)
    {
        const std::string name = InLowerCase(image.At<char>(import->Name));
        const HMODULE imported = GetModuleHandleA(name.c_str());
        if (names.insert(name).second && imported != nullptr)
            AddImported(imported, names);
    }
}

// Hears of every module that is loaded while it lives, also of one that is freed again at once.
class LoadWatch
{
public:
    LoadWatch()
    {
        const auto start = SystemFunction<NTSTATUS NTAPI(ULONG, Heard*, void*, void**)>("LdrRegisterDllNotification");
        EXPECT_EQ(start(0, Hear, this, &m_cookie), 0);
    }
    LoadWatch(const LoadWatch&) = delete;
    LoadWatch& operator=(const LoadWatch&) = delete;
    ~LoadWatch() { SystemFunction<NTSTATUS NTAPI(void*)>("LdrUnregisterDllNotification")(m_cookie); }

    const std::set<std::string>& Names() const { return m_names; }

private:
    // What the system hands over; its headers do not have it.
    struct Text
    {
        USHORT length; // in bytes
        USHORT size;
        const WCHAR* characters;
    };
    struct Notification
    {
        ULONG flags;
        const Text* path;
        const Text* name;
    };
    using Heard = void CALLBACK(ULONG reason, const Notification* notification, void* watch);

    template <class Function>
    static Function* SystemFunction(const char* name)
    {
        return reinterpret_cast<Function*>(
            reinterpret_cast<void*>(GetProcAddress(GetModuleHandleA("ntdll.dll"), name)));
    }
    static void CALLBACK Hear(ULONG reason, const Notification* notification, void* watch)
    {
        constexpr ULONG loaded = 1;
        if (reason != loaded)
            return;
        const Text& name = *notification->name;
        std::string narrow;
        for (size_t index = 0; index < name.length / sizeof(WCHAR); ++index)
            narrow += static_cast<char>(name.characters[index]);
        static_cast<LoadWatch*>(watch)->m_names.insert(InLowerCase(narrow));
    }

    std::set<std::string> m_names;
    void* m_cookie = nullptr;
};

} // namespace

TEST(Loading, BringsInNothingBeyondTheImportsOfTheFile)
{
    // A host has windows, and what those bring with them, before it loads the library.
    ASSERT_NE(LoadLibraryA("user32.dll"), nullptr);
    ASSERT_EQ(GetModuleHandleA("lyt64.dll"), nullptr);
    const LoadWatch watch;
    const HMODULE library = LoadLibraryA("lyt64.dll");
    ASSERT_NE(library, nullptr);

    std::set<std::string> expected = {"lyt64.dll"};
    AddImported(library, expected);
    EXPECT_TRUE(watch.Names().contains("lyt64.dll"));
    for (const std::string& name : watch.Names())
        EXPECT_TRUE(expected.contains(name)) << name;
    FreeLibrary(library);
}

// In this way an administrator replaces a library that is in use.
TEST(Loading, LetsTheFileBeRenamedThoughNotReplaced)
{
    const TestFolder folder;
    const std::string built = ProgramFolder() + "\\lyt64.dll";
    const std::string file = folder.Path() + "\\lyt64.dll";
    const std::string aside = folder.Path() + "\\lyt64-1.0.0.old";
    ASSERT_TRUE(CopyFileA(built.c_str(), file.c_str(), TRUE));
    {
        const FreshLibrary library(file);
        EXPECT_FALSE(CopyFileA(built.c_str(), file.c_str(), FALSE));
        EXPECT_FALSE(DeleteFileA(file.c_str()));
        EXPECT_TRUE(MoveFileA(file.c_str(), aside.c_str()));
        EXPECT_TRUE(CopyFileA(built.c_str(), file.c_str(), TRUE));
        EXPECT_FALSE(DeleteFileA(aside.c_str()));
    }
    EXPECT_TRUE(DeleteFileA(aside.c_str()));
}
