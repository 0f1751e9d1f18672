// What a run of rules costs beyond the windows' part of it.
#include "windows/LiveForm.h"
#include "windows/Works.h"

namespace
{

// The condition of a rule is always one of the edit fields, each fourth control.
int ConditionOf(int rule)
{
    return rule * 7 / 4 * 4;
}

class RuleForm
{
public:
    RuleForm(int controls, int rules) : m_controls(controls), m_rules(rules)
    {
        static const char* const types[] = {"TextBox", "CheckBox", "ListBox", "ComboBox"};
        static const char* const words[] = {"ACTIVE", "VISIBLE", "ACTIVE", "CLEAR"};
        const auto name = [&](int index) { return "C" + std::to_string(index % controls); };
        for (int control = 0; control < controls; ++control)
        {
            m_form.Take("layout+", std::string(types[control % 4]) + " " + std::to_string(control % 20 * 40) + ", " +
                                       std::to_string(control / 20 * 20) + ", 36, 18, \"C0\", ." + name(control));
        }
        for (int rule = 0; rule < rules; ++rule)
            m_form.Take("rules+", name(rule) + "/" + words[rule % 4] + "=" + name(ConditionOf(rule)) +
                                      (rule % 3 == 0 ? "(NOTNULL)" : "(a,b,c)"));
    }

    void Measure(const BenchMeter& meter)
    {
        ActOn(m_form,
              [&]
              {
                  HWND dialog = robot::ActiveDialog();
                  m_windows = robot::ChildrenOf(dialog);
                  meter.Compare({
                      {"ours", [&] { SendMessageA(dialog, WM_COMMAND, MAKEWPARAM(0, 0x77), 1); }},
                      {"by hand", [&] { RunByHand(); }},
                      {"calls without asking", [&] { SetStatesUnasked(); }},
                  });
              });
    }

private:
    enum class Target
    {
        Enabled,
        Shown,
        Text
    };
    static Target TargetOf(int rule)
    {
        return rule % 4 == 1 ? Target::Shown : rule % 4 == 3 ? Target::Text : Target::Enabled;
    }

    HWND Window(int index) const { return m_windows[static_cast<size_t>(index % m_controls)]; }

    // No condition holds, so that each target is to be disabled or hidden. A window that is so already is left alone.
    void RunByHand() const
    {
        char text[256];
        for (int rule = 0; rule < m_rules; ++rule)
        {
            HWND condition = Window(ConditionOf(rule));
            if (TargetOf(rule) == Target::Text || IsWindowEnabled(condition) != FALSE)
                GetWindowTextA(condition, text, sizeof text);
            const LONG style = GetWindowLongA(Window(rule), GWL_STYLE);
            if (TargetOf(rule) == Target::Shown && (style & WS_VISIBLE) != 0)
                ShowWindow(Window(rule), SW_HIDE);
            else if (TargetOf(rule) == Target::Enabled && (style & WS_DISABLED) == 0)
                EnableWindow(Window(rule), FALSE);
        }
        // What the next run compares with.
        for (int rule = 0; rule < m_rules; ++rule)
            GetWindowTextA(Window(ConditionOf(rule)), text, sizeof text);
    }
    void SetStatesUnasked() const
    {
        for (int rule = 0; rule < m_rules; ++rule)
        {
            if (TargetOf(rule) == Target::Shown)
                ShowWindow(Window(rule), SW_HIDE);
            else if (TargetOf(rule) == Target::Enabled)
                EnableWindow(Window(rule), FALSE);
        }
    }

    int m_controls;
    int m_rules;
    CaseForm m_form;
    std::vector<HWND> m_windows;
};

} // namespace

void MeasureRulesOfForm(const BenchMeter& meter)
{
    RuleForm(200, meter.Size()).Measure(meter);
}

void MeasureControlsOfForm(const BenchMeter& meter)
{
    RuleForm(meter.Size(), 500).Measure(meter);
}
