// What lists cost beyond asking the data library and sending the platform's own messages.
#include "lytdata.h"
#include "windows/ByHand.h"
#include "windows/LiveForm.h"
#include "windows/Works.h"

namespace
{

struct ListKind
{
    const char* type;
    const char* windowClass;
    DWORD style;
    UINT insert;
    UINT select;
    UINT reset;
    UINT mark; // 0 where items have none
};

constexpr DWORD listStyle = WS_CHILD | WS_VISIBLE | WS_VSCROLL;
constexpr ListKind listBox = {"ListBox",       "ListBox", listStyle | LBS_NOTIFY, LB_INSERTSTRING, LB_SETCURSEL,
                              LB_RESETCONTENT, 0};
constexpr ListKind checkList = {"CheckListBox",  "ListBox",    listStyle | LBS_OWNERDRAWFIXED | LBS_HASSTRINGS,
                                LB_INSERTSTRING, LB_SETCURSEL, LB_RESETCONTENT,
                                LB_SETITEMDATA};
constexpr ListKind dropList = {
    "DropListBox",   "ComboBox", listStyle | CBS_DROPDOWNLIST | CBS_NOINTEGRALHEIGHT, CB_INSERTSTRING, CB_SETCURSEL,
    CB_RESETCONTENT, 0};

void Click(HWND button)
{
    SendMessageA(button, BM_SETSTATE, TRUE, 0);
    SendMessageA(button, BM_SETSTATE, FALSE, 0);
}

// The data library that the form asks, asked by hand.
class Source
{
public:
    explicit Source(int count) : m_count(std::to_string(count)) {}

    // Acts on the display text of each item.
    template <class Act>
    void Each(Act act) const
    {
        char display[257];
        char value[257];
        m_open(m_count.c_str());
        for (int index = 0; m_next(display, 255, value, 255) != 0; ++index)
            act(index, display);
    }

private:
    template <class Function>
    static Function* Find(const char* name)
    {
        static const HMODULE library = LoadLibraryA("nasty");
        return reinterpret_cast<Function*>(reinterpret_cast<void*>(GetProcAddress(library, name)));
    }

    std::string m_count;
    lytDataStart* m_open = Find<lytDataStart>("Open");
    lytDataNext* m_next = Find<lytDataNext>("NextMany");
};

// A window of the kind in the active dialog, and a button that fills it, worked by hand.
class ListByHand
{
public:
    explicit ListByHand(const ListKind& kind)
        : m_kind(kind),
          m_window(Create(kind.windowClass, kind.style)),
          m_button(Create("Button", WS_CHILD | WS_VISIBLE | BS_NOTIFY))
    {
    }
    ListByHand(const ListByHand&) = delete;
    ListByHand& operator=(const ListByHand&) = delete;
    ~ListByHand()
    {
        DestroyWindow(m_button);
        DestroyWindow(m_window);
    }

    void Fill(const Source& source) const
    {
        Click(m_button);
        SetCursor(LoadCursorA(nullptr, IDC_WAIT));
        Insert(source);
        // The arrow comes back twice: after the fill, and after the press.
        SetCursor(LoadCursorA(nullptr, IDC_ARROW));
        SetCursor(LoadCursorA(nullptr, IDC_ARROW));
    }
    void Empty() const { SendMessageA(m_window, m_kind.reset, 0, 0); }

private:
    static HWND Create(const char* windowClass, DWORD style)
    {
        const ModernControlsByHand modern;
        return CreateWindowExA(WS_EX_CLIENTEDGE, windowClass, "", style, 300, 10, 150, 60, robot::ActiveDialog(),
                               nullptr, nullptr, nullptr);
    }

    void Insert(const Source& source) const
    {
        SendMessageA(m_window, WM_SETREDRAW, FALSE, 0);
        source.Each(
            [this](int index, const char* text)
            {
                SendMessageA(m_window, m_kind.insert, static_cast<WPARAM>(-1), reinterpret_cast<LPARAM>(text));
                if (m_kind.mark != 0)
                    SendMessageA(m_window, m_kind.mark, static_cast<WPARAM>(index), TRUE);
            });
        SendMessageA(m_window, m_kind.select, 0, 0);
        SendMessageA(m_window, WM_SETREDRAW, TRUE, 0);
        InvalidateRect(m_window, nullptr, TRUE);
    }

    const ListKind& m_kind;
    HWND m_window;
    HWND m_button;
};

// A form with a list, which one control fills and another empties.
class ListForm
{
public:
    ListForm(const ListKind& kind, int count)
    {
        m_form.Take("layout", std::string(kind.type) + " List ; PushButton Fill ; TextBox Edit");
        m_form.Take("values", "List=FILLEDBY,nasty,Open,NextMany,Count ; Fill=FILL,List");
        m_form.Take("rules", "List/CLEAR=Edit");
        m_form.Take("output", "(\"x\") ; $OUTPUT, Count ; (\"" + std::to_string(count) + "\")");
    }

    void Run(const std::function<void()>& act)
    {
        // The windows are looked for once: to find one costs as many calls of the platform as a fill.
        ActOn(m_form,
              [&]
              {
                  m_fill = m_form.Window("Fill");
                  m_edit = m_form.Window("Edit");
                  act();
              });
    }
    void Fill() const { Click(m_fill); }
    // A change of the field empties the list.
    void Empty() { SetWindowTextA(m_edit, std::to_string(++m_changes).c_str()); }

private:
    CaseForm m_form;
    HWND m_fill = nullptr;
    HWND m_edit = nullptr;
    int m_changes = 0;
};

void MeasureFill(const BenchMeter& meter, const ListKind& kind)
{
    ListForm form(kind, meter.Size());
    form.Run(
        [&]
        {
            const Source source(meter.Size());
            const ListByHand list(kind);
            meter.Compare({
                {"ours", [&] { form.Fill(); }, [&] { form.Empty(); }},
                {"by hand", [&] { list.Fill(source); }, [&] { list.Empty(); }},
                {"library", [&] { source.Each([](int, const char*) {}); }},
            });
        });
}

void MeasureEmptying(const BenchMeter& meter, const ListKind& kind)
{
    ListForm form(kind, meter.Size());
    form.Run(
        [&]
        {
            const Source source(meter.Size());
            const ListByHand list(kind);
            meter.Compare({
                {"ours", [&] { form.Empty(); }, [&] { form.Fill(); }},
                {"by hand", [&] { list.Empty(); }, [&] { list.Fill(source); }},
            });
        });
}

} // namespace

void MeasureListBox(const BenchMeter& meter)
{
    MeasureFill(meter, listBox);
}

void MeasureCheckList(const BenchMeter& meter)
{
    MeasureFill(meter, checkList);
}

void MeasureDropList(const BenchMeter& meter)
{
    MeasureFill(meter, dropList);
}

void MeasureListBoxEmptied(const BenchMeter& meter)
{
    MeasureEmptying(meter, listBox);
}

void MeasureCheckListEmptied(const BenchMeter& meter)
{
    MeasureEmptying(meter, checkList);
}

void MeasureDropListEmptied(const BenchMeter& meter)
{
    MeasureEmptying(meter, dropList);
}

void MeasureAllValues(const BenchMeter& meter)
{
    CaseForm form;
    form.Take("layout", "ListBox List ; PushButton Fill ; ListBox Other ; PushButton Read");
    form.Take("values", "List=FILLEDBY,nasty,Open,NextMany,Count ; Fill=FILL,List");
    form.Take("values+", "Other=FILLEDBY,nasty,Open,NextNone,All ; Read=FILL,Other");
    form.Take("output", "(\"x\") ; $OUTPUT, Count ; (\"" + std::to_string(meter.Size()) +
                            "\") ; $OUTPUT, All ; (\"%s\", List(\"/\"))");
    const TestFolder folder;
    ActOn(form, folder,
          [&]
          {
              Click(form.Window("Fill"));
              const Source source(meter.Size());
              const TextsByHand texts(folder.Path());
              HWND read = form.Window("Read");
              meter.Compare({
                  {"ours", [&] { Click(read); }},
                  {"by hand", [&] { source.Each([&](int, const char* item) { texts.Read("TEXTS", item); }); }},
              });
          });
}
