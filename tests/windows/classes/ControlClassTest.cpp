// What no description can bring about: the classes themselves.
#include "ControlClass.h"

#include "controls/ClytCheckBoxControl.h"
#include "controls/ClytCheckListBox.h"
#include "controls/ClytComboBoxControl.h"
#include "controls/ClytDataLibrary.h"
#include "controls/ClytDefaultControl.h"
#include "controls/ClytEditControl.h"
#include "controls/ClytGroupBoxControl.h"
#include "controls/ClytListBoxControl.h"
#include "controls/ClytOptionGroup.h"
#include "controls/ClytPushButtonControl.h"
#include "controls/ClytRadioButtonControl.h"
#include "controls/ClytStaticControl.h"
#include "environment/ProcessState.h"
#include "support/RecordingObserver.h"

#include <memory>

namespace
{

constexpr ClytPosition origin = {10, 10};
constexpr ClytSize extent = {100, 80};

// A list whose double click has no target.
class TargetlessList : public ClytListBoxControl
{
public:
    TargetlessList() : ClytListBoxControl("List", origin, extent, CString()) { action.Set("DBLCLICK", CStringList()); }
};

} // namespace

TEST_F(ControlClass, AComboBoxOfAnUnknownKindHasNoWindowAndNoMessage)
{
    ClytComboBoxControl combo("OtherBox", "Box", origin, extent, CString());
    SetOption(combo, "ONE", {"one"});
    SetOption(combo, "", {"INVISIBLE"});
    combo.CreateControl(&dialog);
    EXPECT_EQ(combo.m_hWnd, nullptr);
    EXPECT_EQ(TakeMessages(), Texts{});
    // The rest of the interface is safe without a window.
    combo.SetValue("one");
    combo.SetValue("other");
    combo.SaveState();
    EXPECT_EQ(combo.IsChanged(), 0);
    EXPECT_EQ(combo.IsActive(), 0);
    combo.AddItem("two", "Two", 1, 0);
    combo.DoAction("CLEAR");
    CString all;
    combo.GetAllValues(all, CString("/"));
    EXPECT_STREQ(all, "");
}

TEST_F(ControlClass, AWindowThatCannotBeCreatedRaises202WithTheControlsName)
{
    ClytDialog windowless("none.dlg", CString());
    ClytListBoxControl list("AList", origin, extent, CString());
    ClytCheckListBox checkList("ACheckList", origin, extent, CString());
    ClytComboBoxControl combo("ComboBox", "ACombo", origin, extent, CString());
    ClytComboBoxControl drop("DropListBox", "ADrop", origin, extent, CString());
    ClytPushButtonControl push("APush", origin, extent, CString());
    ClytCheckBoxControl check("ACheck", origin, extent, CString());
    ClytRadioButtonControl radio("ARadio", origin, extent, 1, CString());
    ClytEditControl edit("AnEdit", origin, extent, CString());
    ClytStaticControl text("AText", origin, extent, CString());
    ClytGroupBoxControl frame("AFrame", origin, extent, CString());
    ClytControl* const controls[] = {&list, &checkList, &combo, &drop, &push, &check, &radio, &edit, &text, &frame};
    for (ClytControl* control : controls)
    {
        SCOPED_TRACE(control->GetName().GetString());
        EXPECT_EQ(RaisedMessage([&] { control->CreateControl(&windowless); }),
                  "202 '" + std::string(control->GetName()) + "'");
    }
    ClytDefaultControl ok(origin, extent, 1);
    EXPECT_EQ(RaisedMessage([&] { ok.CreateControl(&windowless); }), "nothing was raised");
}

TEST_F(ControlClass, ADoubleClickWithoutATargetRaisesTheInvalidArgument)
{
    TargetlessList list;
    list.CreateControl(&dialog);
    list.SendMessage(WM_LBUTTONDBLCLK);
    EXPECT_EQ(TakeMessages(), (Texts{missingArgument}));
}

TEST_F(ControlClass, AListenerHearsOfATargetThatIsNotThere)
{
    ClytPushButtonControl button("Push", origin, extent, CString());
    button.CreateControl(&dialog);
    RecordingObserver observer;
    for (const char* word : {"VISIBLE", "ACTIVE", "DELETE", "UP", "DOWN", "FILL"})
    {
        SCOPED_TRACE(word);
        SetOption(button, word, {"Absent"});
        lytClickControl(button, dialog);
        EXPECT_EQ(observer.TakeHeard(), "no target Absent for Push\nrun 1\nend 1\n");
    }
    SetOption(button, "ADD", {"Absent"});
    lytClickControl(button, dialog);
    EXPECT_EQ(observer.TakeHeard(), "no target Absent for Push\nno target Absent for Push\nrun 1\nend 1\n");
}

TEST_F(ControlClass, AListenerHearsOfADoubleClicksTargetThatIsNotThere)
{
    ClytListBoxControl list("List", origin, extent, CString());
    SetOption(list, "DBLCLICK", {"Absent"});
    list.CreateControl(&dialog);
    RecordingObserver observer;
    list.SendMessage(WM_LBUTTONDBLCLK);
    EXPECT_EQ(observer.TakeHeard(), "no double click's target Absent for List\n");
}

TEST_F(ControlClass, AListenerHearsOfANestedDialogThatRefusesToOpen)
{
    ClytPushButtonControl button("Push", origin, extent, CString());
    SetOption(button, "DIALOG", {"Nested", "Part", "Group"});
    button.CreateControl(&dialog);
    RecordingObserver observer;
    lytClickControl(button, dialog);
    EXPECT_EQ(observer.TakeHeard(), "no output group Group\nno nested dialog Nested for Push\n");
}

TEST_F(ControlClass, AnItemThatOnlyTheWindowHasRaisesTheInvalidArgument)
{
    ClytListBoxControl list("List", origin, extent, CString());
    list.CreateControl(&dialog);
    list.InsertString(0, "stray");
    list.SetCurSel(0);
    EXPECT_EQ(RaisedMessage([&] { list.GetValue(); }), missingArgument);
    EXPECT_EQ(RaisedMessage([&] { list.GetDisplayValue(); }), missingArgument);
    EXPECT_EQ(RaisedMessage([&] { list.DeleteCurrentItem(); }), missingArgument);
    EXPECT_EQ(list.GetCount(), 1);
    EXPECT_EQ(RaisedMessage([&] { list.MoveCurrentItem(0); }), missingArgument);
}

TEST_F(ControlClass, ACheckListInsertsInArraysAndWindowAlike)
{
    ClytCheckListBox list("List", origin, extent, CString());
    list.CreateControl(&dialog);
    list.InsertItem("a", "A", 0, 1, 0);
    list.InsertItem("b", "B", 1, 1, 1);
    list.InsertItem("unused", "C", 1, 0, 1);
    EXPECT_EQ(list.GetCurSel(), 1);
    // An item without a value delivers what it shows.
    EXPECT_STREQ(list.GetValue(), "C");
    CString all;
    list.GetAllValues(all, CString("/"));
    EXPECT_STREQ(all, "-a/XC/Xb");
    list.SetCurSel(2);
    EXPECT_STREQ(list.GetValue(), "b");
}

TEST_F(ControlClass, ACheckListDrawsNothingWithoutADevice)
{
    ClytCheckListBox list("List", origin, extent, CString());
    list.CreateControl(&dialog);
    list.InsertItem("a", "A", 1, 1, 0);
    DRAWITEMSTRUCT record{};
    record.CtlType = ODT_LISTBOX;
    list.DrawItem(&record);
    record.itemID = static_cast<UINT>(-1);
    list.DrawItem(&record);
    EXPECT_EQ(TakeMessages(), Texts{});
}

TEST_F(ControlClass, ACheckListAsksForTheWizardsGroupWithoutAParameter)
{
    lytWizardGroup = "group";
    ClytCheckListBox list("List", origin, extent, CString());
    SetOption(list, "FILLEDBY", {"nasty", "Open", "NextEcho"});
    list.CreateControl(&dialog);
    list.FillByLibrary();
    CString item;
    list.GetText(0, item);
    EXPECT_STREQ(item, "<group>");
    lytWizardGroup.Empty();
}

TEST_F(ControlClass, MarksBeyondTheItemsAreNone)
{
    ClytCheckListBox list("List", origin, extent, CString());
    list.CreateControl(&dialog);
    EXPECT_EQ(list.GetCheck(0), 0);
    EXPECT_EQ(list.GetCheck(-1), 0);
    list.SetCheck(5, 1);
    EXPECT_EQ(list.GetCheck(5), 0);
}

TEST_F(ControlClass, AGroupThatDiesPartsWithItsButtonsAndAButtonLeavesItsGroup)
{
    auto group = std::make_unique<ClytOptionGroup>("Kind");
    EXPECT_EQ(ClytOptionGroup::TakeFirstOfGroup(), 1);
    EXPECT_EQ(ClytOptionGroup::TakeFirstOfGroup(), 0);
    auto first = std::make_unique<ClytRadioButtonControl>("A", origin, extent, 1, CString());
    auto second = std::make_unique<ClytRadioButtonControl>("B", origin, extent, 0, CString());
    ClytOptionGroup::AddToCurrentGroup(*first);
    ClytOptionGroup::AddToCurrentGroup(*second);
    SetOption(*second, "", {"b"});
    second->CreateControl(&dialog);
    first.reset();
    group->SetValue("b");
    EXPECT_STREQ(group->GetValue(), "b");
    group.reset();
    // Nothing is left to join: the button is alone.
    ClytRadioButtonControl lone("C", origin, extent, 0, CString());
    ClytOptionGroup::AddToCurrentGroup(lone);
    second.reset();
}

TEST_F(ControlClass, AGroupWithoutButtonsIsEmpty)
{
    ClytOptionGroup group("Kind");
    group.CreateControl(&dialog);
    EXPECT_STREQ(group.GetValue(), "");
    EXPECT_EQ(group.HasContent(), 1);
    EXPECT_EQ(group.IsVisible(), 1);
    EXPECT_EQ(group.IsActive(), 1);
    group.SetState("VISIBLE", 0);
    EXPECT_EQ(group.IsActive(), 0);
    group.SetState("ACTIVE", 5);
    EXPECT_EQ(group.IsActive(), 1);
}

TEST(DataListing, ThatDoesNotEndCountsAsEnded)
{
    static int calls = 0;
    lytDataNext& endless = *[](char* display, int /*size*/, char* /*value*/, int /*valueSize*/)
    {
        display[0] = 'x';
        ++calls;
        return 1;
    };
    ClytDataListing listing(endless);
    int delivered = 0;
    while (delivered <= 1'000'000 && listing.Next())
        ++delivered;
    EXPECT_EQ(delivered, 1'000'000);
    EXPECT_EQ(calls, 1'000'000);
    EXPECT_FALSE(listing.Next());
}

TEST(DataLibrary, TellsAListenerWhatIsNotThere)
{
    RecordingObserver observer;
    ClytDataLibrary library;
    EXPECT_FALSE(library.Load("absent.dll"));
    EXPECT_EQ(observer.TakeHeard(), "no library absent.dll\n");
    ASSERT_TRUE(library.Load("nasty.dll"));
    EXPECT_FALSE(library.Find<lytDataText>("Absent"));
    EXPECT_EQ(observer.TakeHeard(), "no function Absent\n");
}
