// The tree: items, expansion, selection, and which messages are sent when the program or the user does it.
#include "Stage.h"

#include <map>

namespace
{

class TreeOfStage
{
public:
    explicit TreeOfStage(const CTreeCtrl& tree) : m_tree(tree) {}

    void Insert(const char* name, const char* parent)
    {
        m_items[name] = m_tree.InsertItem(name, 0, 0, *parent != '\0' ? m_items[parent] : TVI_ROOT);
    }
    HTREEITEM operator[](const char* name) const { return m_items.at(name); }
    std::string NameOf(HTREEITEM item) const
    {
        for (const auto& [name, known] : m_items)
        {
            if (known == item)
                return name;
        }
        return item == nullptr ? "none" : "unknown";
    }
    // On the label, or a number of pixels from its start.
    void Click(const char* name, int x = 4, bool twice = false) const
    {
        const CRect label = Place(name, TRUE);
        // NOLINTNEXTLINE(clang-analyzer-core.UndefinedBinaryOperatorResult): the message fills the place
        (twice ? robot::DoubleClickAt : robot::ClickAt)(m_tree.m_hWnd, label.left + x, label.top + 4);
    }
    CRect Place(const char* name, BOOL isLabel) const
    {
        CRect place;
        // The message takes the item from the place that it fills.
        *reinterpret_cast<HTREEITEM*>(&place) = m_items.at(name);
        if (m_tree.SendMessage(TVM_GETITEMRECT, static_cast<WPARAM>(isLabel), reinterpret_cast<LPARAM>(&place)) == 0)
            return {};
        return place;
    }
    void PrintState() const
    {
        std::string states;
        for (const auto& [name, item] : m_items)
            states += " " + name + ":" + std::to_string(m_tree.GetItemState(item, ~0U));
        Print("selected %s, top %s, states%s", NameOf(m_tree.GetSelectedItem()).c_str(),
              NameOf(m_tree.GetNextItem(nullptr, TVGN_FIRSTVISIBLE)).c_str(), states.c_str());
    }

private:
    const CTreeCtrl& m_tree;
    std::map<std::string, HTREEITEM, std::less<>> m_items;
};

void PrintPlace(const char* what, const CRect& place)
{
    // NOLINTNEXTLINE(clang-analyzer-core.CallAndMessage): the message fills the place
    Print("%s %ld %ld %ld %ld", what, static_cast<long>(place.left), static_cast<long>(place.top),
          static_cast<long>(place.right), static_cast<long>(place.bottom));
}

void Run(const char* title, bool withImages)
{
    Stage stage(title);
    const CTreeCtrl& tree = stage.Tree(10);
    stage.Edit(11);
    stage.Ok();
    TreeOfStage items(tree);
    CImageList images;
    const auto act = [&](const char* name, std::function<void()> what)
    {
        stage.Act(name, std::move(what));
        stage.Look([&] { items.PrintState(); });
    };

    act("fill",
        [&]
        {
            if (withImages)
            {
                images.Create(16, 16, 0, 0, 8);
                tree.SetImageList(&images, TVSIL_NORMAL);
            }
            items.Insert("a", "");
            items.Insert("a1", "a");
            items.Insert("a2", "a");
            items.Insert("a2x", "a2");
            items.Insert("b", "");
            for (const char* name : {"c1", "c2", "c3", "c4", "c5", "c6", "c7", "c8"})
                items.Insert(name, "b");
            items.Insert("d", "");
        });
    act("relations",
        [&]
        {
            Print("root %s", items.NameOf(tree.GetRootItem()).c_str());
            for (const UINT relation : {TVGN_NEXT, TVGN_PREVIOUS, TVGN_CHILD})
                Print("of a2: %s", items.NameOf(tree.GetNextItem(items["a2"], relation)).c_str());
            Print("before a1: %s", items.NameOf(tree.GetPrevSiblingItem(items["a1"])).c_str());
            Print("before none: %s", items.NameOf(tree.GetPrevSiblingItem(nullptr)).c_str());
            Print("children %d %d", tree.ItemHasChildren(items["a"]), tree.ItemHasChildren(items["a1"]));
        });
    act("select a deep item", [&] { Print("gives %d", tree.SelectItem(items["a2x"])); });
    act("select it again", [&] { Print("gives %d", tree.SelectItem(items["a2x"])); });
    act("places",
        [&]
        {
            PrintPlace("a label", items.Place("a", TRUE));
            PrintPlace("a", items.Place("a", FALSE));
            PrintPlace("a2x label", items.Place("a2x", TRUE));
            PrintPlace("hidden", items.Place("c1", TRUE));
        });
    act("collapse", [&] { Print("gives %d", tree.Expand(items["a2"], TVE_COLLAPSE)); });
    act("select, and collapse above it",
        [&]
        {
            tree.SelectItem(items["a2x"]);
            Print("gives %d", tree.Expand(items["a"], TVE_COLLAPSE));
        });
    act("expand again", [&] { Print("gives %d", tree.Expand(items["a"], TVE_EXPAND)); });
    act("expand what is expanded", [&] { Print("gives %d", tree.Expand(items["a"], TVE_EXPAND)); });
    act("expand a leaf", [&] { Print("gives %d", tree.Expand(items["a1"], TVE_EXPAND)); });
    act("expand a long branch", [&] { Print("gives %d", tree.Expand(items["b"], TVE_EXPAND)); });
    act("select the last", [&] { tree.SelectItem(items["d"]); });
    act("select the first", [&] { tree.SelectItem(items["a"]); });
    act("select none", [&] { Print("gives %d", tree.SelectItem(nullptr)); });
    act("click a label", [&] { items.Click("a1"); });
    act("click the selected label", [&] { items.Click("a1"); });
    act("click right of a label", [&] { items.Click("a2", 90); });
    act("click an expand box", [&] { items.Click("a2", withImages ? -29 : -10); });
    act("click it again", [&] { items.Click("a2", withImages ? -29 : -10); });
    act("double click an item with children", [&] { items.Click("a2", 4, true); });
    act("double click a leaf", [&] { items.Click("a1", 4, true); });
    act("select inside, and collapse with the mouse",
        [&]
        {
            tree.SelectItem(items["a2x"]);
            items.Click("a2", withImages ? -29 : -10);
        });
    act("drawing off, and on again",
        [&]
        {
            tree.SetRedraw(FALSE);
            Print("visible %d", tree.IsWindowVisible());
            tree.SelectItem(items["d"]);
            tree.SetRedraw(TRUE);
            Print("visible %d, top %s", tree.IsWindowVisible(),
                  items.NameOf(tree.GetNextItem(nullptr, TVGN_FIRSTVISIBLE)).c_str());
            tree.SelectItem(items["a1"]);
        });
    act("expand without drawing",
        [&]
        {
            tree.Expand(items["b"], TVE_COLLAPSE);
            tree.SelectItem(items["a"]);
            tree.SetRedraw(FALSE);
            tree.Expand(items["b"], TVE_EXPAND);
            Print("top %s", items.NameOf(tree.GetNextItem(nullptr, TVGN_FIRSTVISIBLE)).c_str());
            tree.SetRedraw(TRUE);
            Print("top %s", items.NameOf(tree.GetNextItem(nullptr, TVGN_FIRSTVISIBLE)).c_str());
            tree.SelectItem(items["a1"]);
        });
    act("down", [] { robot::PressKey(VK_DOWN); });
    act("right", [] { robot::PressKey(VK_RIGHT); });
    act("right", [] { robot::PressKey(VK_RIGHT); });
    act("left", [] { robot::PressKey(VK_LEFT); });
    act("left", [] { robot::PressKey(VK_LEFT); });
    act("left", [] { robot::PressKey(VK_LEFT); });
    act("up", [] { robot::PressKey(VK_UP); });
    act("up at the top", [] { robot::PressKey(VK_UP); });
    act("end", [] { robot::PressKey(VK_END); });
    act("home", [] { robot::PressKey(VK_HOME); });
    act("a letter", [] { robot::TypeText("d"); });
    act("return", [] { robot::PressKey(VK_RETURN); });
    act("tab", [] { robot::PressKey(VK_TAB); });
    act("click a label with the focus elsewhere", [&] { items.Click("c5"); });
    stage.Act("delete all",
              [&]
              {
                  Print("gives %d", tree.DeleteAllItems());
                  Print("is empty %d", tree.GetRootItem() == nullptr);
                  Print("selected %s", items.NameOf(tree.GetSelectedItem()).c_str());
              });
    stage.Run();
}

} // namespace

void Trees()
{
    Run("Tree", false);
    Run("Tree with pictures", true);
}
