// Whole journeys through two sample dialogs, with the libraries and the texts that they have beside the program.
#include "native/Works.h"

#include "environment/ClytEnvironment.h"
#include "environment/ProcessState.h"
#include "frame/Discard.h"
#include "liveform/LiveForm.h"

#include <windows.h>

#include <cstdio>
#include <cstdlib>
#include <optional>
#include <utility>

namespace
{

using Entries = std::vector<std::pair<const char*, const char*>>;

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

// The form with the dialog inside it, which LiveForm leaves to a modal run.
class FormWithFinding : public LiveForm
{
public:
    using LiveForm::LiveForm;

    std::optional<CString> ShowNested(const CString& description, const CString& input) override
    {
        lytInputKey = input;
        LiveForm finding(lytEnvironment.GetDescriptionFile(description));
        return Work(finding, {{"Typical", "rot"}, {"Place", "cellar stairs"}});
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

template <class Dialog>
void MeasureJourney(const BenchMeter& meter, const char* description, const char* key, const Entries& entries)
{
    const CString samples = SampleFolder();
    lytEnvironment.SetDialogPath(samples + "dialogs");
    lytEnvironment.SetInitPath(samples + "init");
    meter.Compare({{"ours", [&] { Journey<Dialog>(samples + "dialogs/" + description, key, entries); }}});
}

} // namespace

void MeasureSymbolJourney(const BenchMeter& meter)
{
    MeasureJourney<LiveForm>(meter, "lytInSym.dlg", "S1:area(2,m2)=\"n. a.\"", {{"Name", "length"}, {"Unit", "m"}});
}

void MeasureFormJourney(const BenchMeter& meter)
{
    MeasureJourney<FormWithFinding>(meter, "lytRpGrp.dlg",
                                    "(Findings;R;roofing;Team North;101 Hall|102 Kitchen;Xroof|Xstairs;PC75;DIN 18338;;"
                                    "Cracks; medium; north wall|Damp; severe)",
                                    {{"Heading", "What was found"}, {"Chapter", "4.2"}, {"NewFinding", ""}});
}
