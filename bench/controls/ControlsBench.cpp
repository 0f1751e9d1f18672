// What lists cost beyond the platform's own messages, and whether they and the rules of a large form stay linear.
#include "Form.h"

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

namespace
{

double Milliseconds()
{
    LARGE_INTEGER frequency;
    LARGE_INTEGER count;
    QueryPerformanceFrequency(&frequency);
    QueryPerformanceCounter(&count);
    return 1000.0 * static_cast<double>(count.QuadPart) / static_cast<double>(frequency.QuadPart);
}

template <class Work>
double TimeOf(Work work)
{
    const double start = Milliseconds();
    work();
    return Milliseconds() - start;
}

double Best(const std::vector<double>& times)
{
    return *std::min_element(times.begin(), times.end());
}

void Click(HWND button)
{
    SendMessageA(button, BM_SETSTATE, TRUE, 0);
    SendMessageA(button, BM_SETSTATE, FALSE, 0);
}

struct ListKind
{
    const char* type;
    const char* windowClass;
    DWORD style;
    UINT add;
    UINT reset;
};

constexpr ListKind listKinds[] = {
    {"ListBox", "ListBox", WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_NOTIFY, LB_ADDSTRING, LB_RESETCONTENT},
    {"CheckListBox", "ListBox", WS_CHILD | WS_VISIBLE | WS_VSCROLL | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS, LB_ADDSTRING,
     LB_RESETCONTENT},
    {"DropListBox", "ComboBox", WS_CHILD | WS_VISIBLE | WS_VSCROLL | CBS_DROPDOWNLIST, CB_ADDSTRING, CB_RESETCONTENT},
};

// The same items into a bare window of the same kind, drawing switched off; and emptying it.
double EmptyPlain(HWND list, const ListKind& kind)
{
    return TimeOf([&] { SendMessageA(list, kind.reset, 0, 0); });
}

double FillPlain(HWND list, const ListKind& kind, const std::vector<std::string>& items)
{
    return TimeOf(
        [&]
        {
            SendMessageA(list, WM_SETREDRAW, FALSE, 0);
            for (const std::string& item : items)
                SendMessageA(list, kind.add, 0, reinterpret_cast<LPARAM>(item.c_str()));
            SendMessageA(list, WM_SETREDRAW, TRUE, 0);
            InvalidateRect(list, nullptr, TRUE);
        });
}

void MeasureFill(const ListKind& kind, int count)
{
    constexpr int rounds = 15;
    std::vector<std::string> items;
    for (int item = 0; item < count; ++item)
        items.push_back("item " + std::to_string(item));

    Form form;
    form.main.layout = {std::string(kind.type) + " List", "PushButton Fill", "TextBox Edit"};
    form.main.values = {"List=FILLEDBY,nasty,Open,NextMany,Count", "Fill=FILL,List"};
    form.main.rules = {"List/CLEAR=Edit"};
    form.main.output = {"(\"x\")", "$OUTPUT, Count", "(\"" + std::to_string(count) + "\")"};
    struct
    {
        std::vector<double> fill;
        std::vector<double> empty;
    } plain, ours;
    form.Then(
        [&]
        {
            HWND bare = CreateWindowA(kind.windowClass, "", kind.style, 300, 10, 150, 60, robot::ActiveDialog(),
                                      nullptr, nullptr, nullptr);
            // In turn, so that whatever else the machine does falls on all alike.
            for (int round = 0; round < rounds; ++round)
            {
                plain.fill.push_back(FillPlain(bare, kind, items));
                plain.empty.push_back(EmptyPlain(bare, kind));
                ours.fill.push_back(TimeOf([&] { Click(form["Fill"]); }));
                ours.empty.push_back(TimeOf([&] { SetWindowTextA(form["Edit"], std::to_string(round).c_str()); }));
            }
            DestroyWindow(bare);
        });
    form.Ok().Open();
    std::printf("%-13s %6d items: fill %7.2f ms, plain %7.2f ms, %.2f; empty %6.2f ms, plain %6.2f ms\n", kind.type,
                count, Best(ours.fill), Best(plain.fill), Best(ours.fill) / Best(plain.fill), Best(ours.empty),
                Best(plain.empty));
}

// All values of a list are composed as the parameter of another list's fill.
void MeasureAllValues(int count)
{
    Form form;
    form.main.layout = {"ListBox List", "PushButton Fill", "ListBox Other", "PushButton Read"};
    form.main.values = {"List=FILLEDBY,nasty,Open,NextMany,Count", "Fill=FILL,List",
                        "Other=FILLEDBY,nasty,Open,NextNone,All", "Read=FILL,Other"};
    form.main.output = {"(\"x\")", "$OUTPUT, Count", "(\"" + std::to_string(count) + "\")", "$OUTPUT, All",
                        "(\"%s\", List(\"/\"))"};
    double time = 0;
    form.Then(
        [&]
        {
            Click(form["Fill"]);
            time = TimeOf([&] { Click(form["Read"]); });
        });
    form.Ok().Open();
    std::printf("all values of %5d items: %8.2f ms, %.3f ms an item\n", count, time, time / count);
}

// The condition of a rule is always one of the edit fields, each fourth control.
int ConditionOf(int rule)
{
    return rule * 7 / 4 * 4;
}

// The platform's part of a run: what the rules ask of the windows, and what they set.
void RunPlain(const std::vector<HWND>& windows, int rules)
{
    const auto window = [&](int index) { return windows[static_cast<size_t>(index) % windows.size()]; };
    char text[256];
    for (int rule = 0; rule < rules; ++rule)
    {
        HWND condition = window(ConditionOf(rule));
        if (IsWindowEnabled(condition) != FALSE)
            GetWindowTextA(condition, text, sizeof text);
        if (rule % 4 == 1)
            ShowWindow(window(rule), SW_HIDE);
        else if (rule % 4 != 3)
            EnableWindow(window(rule), FALSE);
    }
}

void MeasureRules(int controls, int rules)
{
    constexpr int rounds = 51;
    static const char* const types[] = {"TextBox", "CheckBox", "ListBox", "ComboBox"};
    static const char* const words[] = {"ACTIVE", "VISIBLE", "ACTIVE", "CLEAR"};
    const auto name = [&](int index) { return "C" + std::to_string(index % controls); };
    Form form;
    form.main.layout.clear();
    for (int control = 0; control < controls; ++control)
    {
        form.main.layout.push_back(std::string(types[control % 4]) + " " + std::to_string(control % 20 * 40) + ", " +
                                   std::to_string(control / 20 * 20) + ", 36, 18, \"C0\", ." + name(control));
    }
    for (int rule = 0; rule < rules; ++rule)
        form.main.rules.push_back(name(rule) + "/" + words[rule % 4] + "=" + name(ConditionOf(rule)) +
                                  (rule % 3 == 0 ? "(NOTNULL)" : "(a,b,c)"));
    std::vector<double> times;
    std::vector<double> plain;
    form.Then(
        [&]
        {
            HWND dialog = robot::ActiveDialog();
            const std::vector<HWND> windows = robot::ChildrenOf(dialog);
            for (int round = 0; round < rounds; ++round)
            {
                times.push_back(TimeOf([&] { SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(0, 0x77), 1); }));
                plain.push_back(TimeOf([&] { RunPlain(windows, rules); }));
            }
        });
    form.Ok().Open();
    std::printf("%3d controls, %4d rules: %6.3f ms a run, %6.3f us a rule; windows alone %6.3f ms\n", controls, rules,
                Best(times), 1000 * Best(times) / rules, Best(plain));
}

} // namespace

int main()
{
    for (const ListKind& kind : listKinds)
    {
        for (const int count : {1000, 3000, 10000})
            MeasureFill(kind, count);
    }
    for (const int count : {250, 500, 1000})
        MeasureAllValues(count);
    for (const int controls : {50, 100, 200})
        MeasureRules(controls, 500);
    for (const int rules : {125, 250, 1000})
        MeasureRules(200, rules);
    return 0;
}
