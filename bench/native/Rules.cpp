#include "native/Works.h"

#include "liveform/LiveForm.h"
#include "model/ClytObserver.h"
#include "support/DescriptionText.h"
#include "support/TestFolder.h"

namespace
{

// A description with that many rules, of the three kinds that descriptions mix.
std::string Rules(int count)
{
    DescriptionText text;
    text.layout = "TextBox 0, 0, 1, 1, .FieldForMode\n";
    text.values = "FieldForMode = expert\n";
    text.input = "Start: x = End\n";
    for (int index = 0; index < count; ++index)
    {
        const std::string field = "FieldNumber" + std::to_string(index);
        const std::string other = "FieldNumber" + std::to_string((index + 1) % count);
        text.layout += "TextBox 0, 0, 1, 1, ." + field + "\n";
        text.dependencies += field;
        if (index % 3 == 0)
            text.dependencies += "/ACTIVE = FieldForMode(simple, expert), " + other + "(one, two, NULL)\n";
        else if (index % 3 == 1)
            text.dependencies += "/VISIBLE = FieldForMode(NOTNULL)\n";
        else
            text.dependencies += "/CLEAR = " + other + ", FieldForMode\n";
    }
    return text();
}

// Counts what it hears of a run.
class Listener final : public ClytObserver
{
public:
    Listener() { lytObserver = this; }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    ~Listener() { lytObserver = nullptr; }

    void ConditionTested(ClytRuleKind /*kind*/, const ClytSpan& /*rule*/, const ClytCtrlValList& /*condition*/,
                         ClytTested /*result*/) override
    {
        ++m_count;
    }
    void StateSet(const ClytControlDep& /*rule*/, int /*on*/) override { ++m_count; }
    void EventDecided(const ClytControlDep& /*rule*/, ClytEvent /*event*/) override { ++m_count; }

private:
    size_t m_count = 0;
};

} // namespace

void MeasureRules(const BenchMeter& meter)
{
    const TestFolder folder;
    LiveForm form(folder.Write("rules.dlg", Rules(meter.Size())).c_str());
    form.Construct();
    // Nothing changes between two runs.
    meter.Compare({
        {"ours", [&] { form.RunDependencies(); }},
        {"with a listener",
         [&]
         {
             const Listener listener;
             form.RunDependencies();
         }},
    });
}
