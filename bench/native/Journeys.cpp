// Whole journeys through two sample dialogs, with the libraries and the texts that they have beside the program.
#include "native/Works.h"

#include "environment/ClytEnvironment.h"
#include "environment/ProcessState.h"
#include "frame/Discard.h"
#include "native/FormByHand.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <optional>

namespace
{

CString SampleFolder()
{
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, sizeof path);
    const CString program(path);
    return program.Left(program.ReverseFind('/')) + "/samples/";
}

// A journey that stops on the way would be a fast one.
void Require(bool isDone, const char* step)
{
    if (isDone)
        return;
    std::fprintf(stderr, "bench: the journey stops at %s\n", step);
    std::exit(1);
}

// What the user enters, and the confirmation; what the dialog gives back.
CString Work(LiveForm& form, const Entries& entries)
{
    form.Construct();
    for (const auto& [control, value] : entries)
        Require(form.Enter(control, value), control);
    Require(form.Confirm(), "OK");
    return form.GetResult();
}

const Entries findingEntries = {{"Typical", "rot"}, {"Place", "cellar stairs"}};

// The form with the dialog inside it, which LiveForm leaves to a modal run.
class FormWithFinding : public LiveForm
{
public:
    using LiveForm::LiveForm;

    std::optional<CString> ShowNested(const CString& description, const CString& input) override
    {
        lytInputKey = input;
        LiveForm finding(lytEnvironment.GetDescriptionFile(description));
        return Work(finding, findingEntries);
    }
};

// Kept whole, so that a profiler can tell where a journey begins and ends.
template <class Dialog>
[[gnu::noinline]] void Journey(const CString& description, const CString& key, const Entries& entries)
{
    lytInputKey = key;
    Dialog form(description);
    Require(!Work(form, entries).IsEmpty(), "the result");
}

FormByHand ByHand(const CString& description, const CString& key, const Entries& entries)
{
    lytInputKey = key;
    LiveForm form(description);
    form.Construct();
    return {form, description, entries};
}

CString SampleDialog(const char* name)
{
    const CString samples = SampleFolder();
    lytEnvironment.SetDialogPath(samples + "dialogs");
    lytEnvironment.SetInitPath(samples + "init");
    return samples + "dialogs/" + name;
}

} // namespace

void MeasureSymbolJourney(const BenchMeter& meter)
{
    const CString symbol = SampleDialog("lytInSym.dlg");
    const CString key = "S1:area(2,m2)=\"n. a.\"";
    const Entries entries = {{"Name", "length"}, {"Unit", "m"}};
    const FormByHand byHand = ByHand(symbol, key, entries);
    meter.Compare({
        {"ours", [&] { Journey<LiveForm>(symbol, key, entries); }},
        {"by hand", [&] { byHand.Work(); }},
    });
}

void MeasureFormJourney(const BenchMeter& meter)
{
    const CString group = SampleDialog("lytRpGrp.dlg");
    const CString key = "(Findings;R;roofing;Team North;101 Hall|102 Kitchen;Xroof|Xstairs;PC75;DIN 18338;;"
                        "Cracks; medium; north wall|Damp; severe)";
    const Entries typed = {{"Heading", "What was found"}, {"Chapter", "4.2"}};
    Entries entries = typed;
    entries.emplace_back("NewFinding", "");
    const FormByHand groupByHand = ByHand(group, key, typed);
    const FormByHand findingByHand = ByHand(SampleDialog("finding.dlg"), "; medium", {findingEntries[1]});
    meter.Compare({
        {"ours", [&] { Journey<FormWithFinding>(group, key, entries); }},
        {"by hand",
         [&]
         {
             groupByHand.Work();
             findingByHand.Work();
         }},
    });
}
