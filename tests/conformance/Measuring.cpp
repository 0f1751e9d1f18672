// What windows and texts measure at the resolution of the screen.
#include "Stage.h"

#include <cstring>
#include <tuple>

namespace
{

constexpr const char* texts[] = {
    "",
    " ",
    "OK",
    "Cancel",
    "Hello World, AVAToTe",
    "iiiWWW",
    "0123456789",
    "a&b && c",
    "\xC4\xD6\xDC\xE4\xF6\xFC\xDF",
    "The quick brown fox jumps over the lazy dog.",
    "kWh/(m2a)",
    "tab\tand\xA0more",
};

void PrintSize(const char* what, const CWnd& window)
{
    CRect outer;
    CRect inner;
    window.GetWindowRect(&outer);
    window.GetClientRect(&inner);
    Print("%s %d by %d, client %d by %d", what, outer.Width(), outer.Height(), inner.Width(), inner.Height());
}

const CWnd& FieldOf(const CComboBox& combo)
{
    return *CWnd::FromHandle(::GetWindow(combo.m_hWnd, GW_CHILD));
}

// A list of as many items as the bar needs to appear, and then of none.
void PrintSizesWithBar(const char* what, const CListBox& list)
{
    for (int count = 1; count <= 6; ++count)
        list.AddString("item");
    PrintSize(what, list);
    list.ResetContent();
    PrintSize(what, list);
}

} // namespace

void Measuring()
{
    Stage stage("Measuring");
    const CEdit& edit = stage.Edit(9);
    const CButton& push = stage.Button(10, "Push");
    const CListBox& list = stage.List(11);
    const CListBox& checks = stage.CheckList(12);
    const CComboBox& drop = stage.Combo(13, CBS_DROPDOWNLIST);
    const CComboBox& combo = stage.Combo(14, CBS_DROPDOWN | CBS_AUTOHSCROLL);
    const CTreeCtrl& tree = stage.Tree(15);
    stage.Act("sizes",
              [&]
              {
                  const CClientDC screen(nullptr);
                  Print("%d dots per inch", screen.GetDeviceCaps(LOGPIXELSX));
                  PrintSize("dialog", *edit.GetParent());
                  PrintSize("edit", edit);
                  PrintSize("button", push);
                  PrintSize("list", list);
                  PrintSize("check list", checks);
                  PrintSize("drop-down list", drop);
                  PrintSize("combo box", combo);
                  PrintSize("tree", tree);
                  PrintSize("field of the combo box", FieldOf(combo));
                  Print("items %d %d", list.GetItemHeight(0), checks.GetItemHeight(0));
              });
    stage.Act("texts",
              [&]
              {
                  const CClientDC device(&edit);
                  const HGDIOBJ before = device.SelectObject(reinterpret_cast<HGDIOBJ>(edit.SendMessage(WM_GETFONT)));
                  TEXTMETRICA metrics{};
                  ::GetTextMetricsA(device.m_hDC, &metrics);
                  Print("height %d", static_cast<int>(metrics.tmHeight));
                  for (int index = 0; const char* text : texts)
                  {
                      const CSize size = device.GetTextExtent(text, static_cast<int>(std::strlen(text)));
                      Print("text %d: %d by %d", index++, static_cast<int>(size.cx), static_cast<int>(size.cy));
                  }
                  device.SelectObject(before);
              });
    stage.Act("sizes by program",
              [&]
              {
                  list.SetWindowPos(nullptr, 0, 0, 100, 83, SWP_NOZORDER | SWP_NOMOVE);
                  PrintSize("list", list);
                  combo.SetWindowPos(nullptr, 0, 0, 100, 83, SWP_NOZORDER | SWP_NOMOVE);
                  PrintSize("combo box", combo);
                  PrintSize("field of the combo box", FieldOf(combo));
                  edit.SetWindowPos(nullptr, 0, 0, 50, 30, SWP_NOZORDER | SWP_NOMOVE);
                  PrintSize("edit", edit);
              });
    stage.Act("sizes with a bar",
              [&]
              {
                  PrintSizesWithBar("list", list);
                  PrintSizesWithBar("check list", checks);
              });
    stage.Act("rounding",
              []
              {
                  for (const auto& [number, numerator, denominator] :
                       {std::tuple{7, 6, 4}, {-7, 6, 4}, {5, 13, 8}, {7, 1, -2}, {1, 1, 0}})
                      Print("%d * %d / %d = %d", number, numerator, denominator,
                            MulDiv(number, numerator, denominator));
              });
    stage.Run();
}
