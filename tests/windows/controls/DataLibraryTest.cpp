// Which library files a class of controls loads: windows in memory load none. A class keeps the first library that loads
// for the life of the process, so these tests run in their order.
#include "DataLibraryFixture.h"
#include "support/Library.h"
#include "support/Modules.h"

namespace
{

bool IsLoaded(const char* library)
{
    return GetModuleHandleA(library) != nullptr;
}

} // namespace

TEST_F(DataLibrary, AnActionLoadsItsLibraryTwiceAndFreesItOnce)
{
    ASSERT_FALSE(IsLoaded("lytdata.dll"));
    form.main.layout = {"PushButton Go"};
    form.main.values = {"Go=ACTION,lytdata,Remember,Send,Take"};
    form.Then([&] { robot::Click(form["Go"]); });
    form.Ok().Open();
    ASSERT_TRUE(IsLoaded("lytdata.dll"));
    FreeLibrary(GetModuleHandleA("lytdata.dll"));
    EXPECT_FALSE(IsLoaded("lytdata.dll"));
}

TEST_F(DataLibrary, AMissingLibraryEmptiesTheListInSilence)
{
    for (const std::string& kind : classes)
    {
        SCOPED_TRACE(kind);
        List(kind, "no-such-library,Open,NextThree");
        ClickFill();
        ExpectItems({});
        ExpectSelected(-1);
        EXPECT_EQ(form.Ok().Open().messages, Texts{});
    }
}

TEST_F(DataLibrary, AFileThatIsNoLibraryOfThisMachineEmptiesTheListInSilence)
{
    form.Folder().Write("broken.dll", "MZ, and nothing after it");
    form.Folder().Write("other.dll", LibraryOfAnotherMachine(ProgramFolder() + "\\nasty.dll"));
    for (const char* file : {"\\broken.dll", "\\other.dll"})
    {
        for (const std::string& kind : classes)
        {
            SCOPED_TRACE(kind + file);
            List(kind, "\"" + form.Folder().Path() + file + "\",Open,NextThree");
            ClickFill();
            ExpectItems({});
            EXPECT_EQ(form.Ok().Open().messages, Texts{});
        }
    }
}

TEST_F(DataLibrary, AnEmptyLibraryNameIs251AndEndsAtTheFailedLoad)
{
    for (const std::string& kind : classes)
    {
        SCOPED_TRACE(kind);
        List(kind, "\"\",Open,NextThree");
        ClickFill();
        form.Message();
        ExpectItems({});
        EXPECT_EQ(form.Ok().Open().messages, (Texts{"251 'List'"}));
    }
}

TEST_F(DataLibrary, AListWithoutAStatementIs251Too)
{
    form.main.layout = {"ListBox List", "PushButton Fill"};
    form.main.values = {"Fill=FILL,List"};
    form.Then([&] { robot::Click(form["Fill"]); });
    EXPECT_EQ(form.Message().Ok().Open().messages, (Texts{"251 'List'"}));
}

TEST_F(DataLibrary, FillsFromTheFirstLibraryThatLoads)
{
    for (const std::string& kind : classes)
    {
        SCOPED_TRACE(kind);
        List(kind, "nasty,Open,NextThree");
        ClickFill();
        ExpectItems({"red", "green", "blue"});
        ExpectSelected(kind == "CheckListBox" ? 2 : 0);
        form.main.output = {"(\"%s\", List)"};
        EXPECT_EQ(form.Ok().Open().text, kind == "CheckListBox" ? "blue-value" : "red-value");
    }
    EXPECT_TRUE(IsLoaded("nasty.dll"));
}

TEST_F(DataLibrary, ALaterLibraryNameIsNotLookedAt)
{
    for (const std::string& kind : classes)
    {
        SCOPED_TRACE(kind);
        List(kind, "no-such-library,Open,NextThree");
        ClickFill();
        ExpectItems({"red", "green", "blue"});
        EXPECT_EQ(form.Ok().Open().messages, Texts{});
        // lytdata is there, but the class has its library.
        List(kind, "lytdata,OpenList,NextItem");
        ClickFill();
        ExpectItems({});
        EXPECT_EQ(form.Ok().Open().messages, Texts{});
    }
}

TEST_F(DataLibrary, AnEmptyNameIs251AndTheFillGoesOnWithTheLibraryThatIsThere)
{
    for (const std::string& kind : classes)
    {
        SCOPED_TRACE(kind);
        List(kind, "\"\",Open,NextThree");
        ClickFill();
        form.Message();
        ExpectItems({"red", "green", "blue"});
        EXPECT_EQ(form.Ok().Open().messages, (Texts{"251 'List'"}));
    }
}

TEST_F(DataLibrary, EditsHaveALibraryOfTheirOwn)
{
    form.main.layout = {"TextBox Edit"};
    form.main.values = {"Edit=FILLEDBY,no-such-library,EchoText", "Edit=FILL"};
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Edit"]), ""); }).Ok().Open();
    form.main.values = {"Edit=FILLEDBY,nasty,EchoText", "Edit=FILL"};
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Edit"]), "<> 255"); }).Ok().Open();
    form.main.values = {"Edit=FILLEDBY,nasty,FullText", "Edit=FILL"};
    form.Then([&] { EXPECT_EQ(robot::TextOf(form["Edit"]), std::string(255, 'T')); }).Ok().Open();
}
