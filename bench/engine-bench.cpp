// What the engine costs beside the plain standard library, and whether its work grows with its input and no faster.
#include "MedianTable.h"

#include "environment/ProcessState.h"
#include "liveform/LiveForm.h"
#include "model/ClytObserver.h"
#include "support/DescriptionText.h"
#include "support/TestFolder.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <stdexcept>

namespace
{

constexpr const char* help =
    "engine-bench [--benchmark_filter=REGEX] [--benchmark_repetitions=N]\n"
    "Reads descriptions of 100 to 10,000 controls and splits the same lines by the standard library alone; runs 10 to\n"
    "1,000 rules; scans inputs and composes outputs of 1 KB to 1 MB. Prints medians of processor time and their "
    "ratios.\n";

constexpr int statements[] = {100, 1000, 10000};
constexpr int ruleCounts[] = {10, 100, 1000};
constexpr int textSizes[] = {1 << 10, 1 << 12, 1 << 14, 1 << 16, 1 << 18, 1 << 20};

// A description of that many controls, of the kinds and lengths that descriptions have.
std::string Controls(int count)
{
    std::string layout;
    for (int index = 0; index < count; ++index)
    {
        const std::string number = std::to_string(index);
        layout += index % 2 == 0 ? "    TextBox 136, 24, 248, 19, .Field" + number + "\n"
                                 : "    Text 24, 27, 100, 12, \"Heading\", .Label" + number + "\n";
    }
    DescriptionText text;
    text.layout = layout;
    text.input = "Start: x = End\n";
    return text();
}

const std::string& DescriptionFile(int count)
{
    static const TestFolder folder;
    static std::map<int, std::string> files;
    std::string& file = files[count];
    if (file.empty())
        file = folder.Write(std::to_string(count) + ".dlg", Controls(count));
    return file;
}

// The same lines, each cut at the same delimiters into the same number of texts.
void SplitPlainly(benchmark::State& state)
{
    const std::string& name = DescriptionFile(static_cast<int>(state.range(0)));
    while (state.KeepRunning())
    {
        const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(name.c_str(), "r"), std::fclose);
        char line[400];
        while (std::fgets(line, sizeof line, file.get()) != nullptr)
        {
            std::vector<std::string> words;
            for (const char* word = std::strtok(line, " ,\t\n;\""); word != nullptr;
                 word = std::strtok(nullptr, " ,\t\n;\""))
                words.emplace_back(word);
            benchmark::DoNotOptimize(words.data());
        }
    }
}

void ReadStatements(benchmark::State& state)
{
    const std::string& name = DescriptionFile(static_cast<int>(state.range(0)));
    while (state.KeepRunning())
    {
        ClytDialogFile file(nullptr);
        if (!file.Open(name.c_str(), CFile::modeRead))
            std::abort();
        CString text;
        CStringList words;
        int width = 0;
        int height = 0;
        file.ReadVersionHeader(text);
        file.TakeTokens(words);
        benchmark::DoNotOptimize(file.ReadDialogHeader(width, height, text, text));
        ClytControlStatement statement;
        while (file.ReadControlStatement(statement) != 0)
            benchmark::DoNotOptimize(statement.x);
        file.Close();
    }
}

void BuildForm(benchmark::State& state)
{
    const std::string& name = DescriptionFile(static_cast<int>(state.range(0)));
    while (state.KeepRunning())
    {
        LiveForm form(name.c_str());
        form.Construct();
        benchmark::DoNotOptimize(form.m_hWnd);
    }
}

// A form of that many rules, of the three kinds that descriptions mix. Nothing changes between two runs.
LiveForm& RuleForm(int rules)
{
    static const TestFolder folder;
    static std::map<int, std::unique_ptr<LiveForm>> forms;
    std::unique_ptr<LiveForm>& form = forms[rules];
    if (form != nullptr)
        return *form;
    DescriptionText text;
    text.layout = "TextBox 0, 0, 1, 1, .FieldForMode\n";
    text.values = "FieldForMode = expert\n";
    text.input = "Start: x = End\n";
    for (int index = 0; index < rules; ++index)
    {
        const std::string field = "FieldNumber" + std::to_string(index);
        const std::string other = "FieldNumber" + std::to_string((index + 1) % rules);
        text.layout += "TextBox 0, 0, 1, 1, ." + field + "\n";
        text.dependencies += field;
        if (index % 3 == 0)
            text.dependencies += "/ACTIVE = FieldForMode(simple, expert), " + other + "(one, two, NULL)\n";
        else if (index % 3 == 1)
            text.dependencies += "/VISIBLE = FieldForMode(NOTNULL)\n";
        else
            text.dependencies += "/CLEAR = " + other + ", FieldForMode\n";
    }
    form = std::make_unique<LiveForm>(folder.Write(std::to_string(rules) + ".dlg", text()).c_str());
    form->Construct();
    return *form;
}

void RunRules(benchmark::State& state)
{
    LiveForm& form = RuleForm(static_cast<int>(state.range(0)));
    while (state.KeepRunning())
        form.RunDependencies();
}

// Counts what it hears of a run.
class Listener final : public ClytObserver
{
public:
    Listener() { lytObserver = this; }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    ~Listener() { lytObserver = nullptr; }

    void ConditionTested(const ClytControlDep& /*rule*/, const ClytCtrlValList& /*condition*/,
                         ClytTested /*result*/) override
    {
        ++m_count;
    }
    void StateSet(const ClytControlDep& /*rule*/, int /*on*/) override { ++m_count; }
    void EventDecided(const ClytControlDep& /*rule*/, ClytEvent /*event*/) override { ++m_count; }

private:
    size_t m_count = 0;
};

void RunRulesWithListener(benchmark::State& state)
{
    const Listener listener;
    RunRules(state);
}

// A form that scans pieces of text into fields in turn, and composes 25 fields.
LiveForm& TextForm()
{
    static const TestFolder folder;
    static std::unique_ptr<LiveForm> form;
    if (form != nullptr)
        return *form;
    DescriptionText text;
    std::string items;
    std::string format;
    for (int index = 0; index < 25; ++index)
    {
        const std::string field = "F" + std::to_string(index);
        text.layout += "TextBox 0, 0, 1, 1, ." + field + "\n";
        items += ", " + field;
        format += "%s;";
    }
    text.input = "Start: (\";\", Second, Rest, End = F0\nSecond: (\";\", Start, Rest, End = F1\n";
    text.output = "(\"" + format + "\"" + items + ")\n";
    form = std::make_unique<LiveForm>(folder.Write("text.dlg", text()).c_str());
    form->Construct();
    return *form;
}

void ScanText(benchmark::State& state)
{
    LiveForm& form = TextForm();
    std::string text;
    while (text.size() < static_cast<size_t>(state.range(0)))
        text += "a piece (of some; kind) \"with; quotes\";";
    while (state.KeepRunning())
        benchmark::DoNotOptimize(form.RunInput("parent", text.c_str()));
}

void ComposeText(benchmark::State& state)
{
    LiveForm& form = TextForm();
    const std::string part(static_cast<size_t>(state.range(0)) / 25, 'x');
    for (int index = 0; index < 25; ++index)
        form.FindControl(("F" + std::to_string(index)).c_str())->SetValue(part.c_str());
    CString composed;
    while (state.KeepRunning())
        benchmark::DoNotOptimize(form.ComposeNamedOutput("parent", composed));
}

void RegisterAll()
{
    for (const int count : statements)
    {
        benchmark::RegisterBenchmark("plain", SplitPlainly)->Arg(count);
        benchmark::RegisterBenchmark("reader", ReadStatements)->Arg(count);
        benchmark::RegisterBenchmark("form", BuildForm)->Arg(count);
    }
    for (const int count : ruleCounts)
    {
        benchmark::RegisterBenchmark("rules", RunRules)->Arg(count);
        benchmark::RegisterBenchmark("listened", RunRulesWithListener)->Arg(count);
    }
    for (const int size : textSizes)
    {
        benchmark::RegisterBenchmark("scan", ScanText)->Arg(size);
        benchmark::RegisterBenchmark("compose", ComposeText)->Arg(size);
    }
}

void PrintReading(const Medians& medians)
{
    std::printf("\nReading control statements        (aim: reader at most 2 x plain, and per statement level)\n");
    std::printf("%10s %12s %12s %8s %16s %12s\n", "statements", "plain us", "reader us", "ratio", "ns a statement",
                "form us");
    for (const int count : statements)
    {
        const std::string size = "/" + std::to_string(count);
        const double plain = medians.Of("plain" + size);
        const double reader = medians.Of("reader" + size);
        std::printf("%10d %12.1f %12.1f %8.2f %16.1f %12.1f\n", count, plain / 1000, reader / 1000, reader / plain,
                    reader / count, medians.Of("form" + size) / 1000);
    }
}

void PrintRules(const Medians& medians)
{
    std::printf("\nA run of the rules                (aim: per rule level, and a listener costs little)\n");
    std::printf("%10s %12s %12s %16s %8s\n", "rules", "us", "ns a rule", "with listener us", "ratio");
    for (const int count : ruleCounts)
    {
        const std::string size = "/" + std::to_string(count);
        const double run = medians.Of("rules" + size);
        const double listened = medians.Of("listened" + size);
        std::printf("%10d %12.2f %12.1f %16.2f %8.2f\n", count, run / 1000, run / count, listened / 1000,
                    listened / run);
    }
}

void PrintTexts(const Medians& medians)
{
    std::printf(
        "\nScanning and composing            (aim: per byte level, so the last column of each near 1 or below)\n");
    std::printf("%10s %12s %12s %8s %12s %12s %8s\n", "bytes", "scan us", "ns a byte", "to 1 KB", "compose us",
                "ns a byte", "to 1 KB");
    const double scanBase = medians.Of("scan/1024") / textSizes[0];
    const double composeBase = medians.Of("compose/1024") / textSizes[0];
    for (const int bytes : textSizes)
    {
        const std::string size = "/" + std::to_string(bytes);
        const double scan = medians.Of("scan" + size);
        const double compose = medians.Of("compose" + size);
        std::printf("%10d %12.1f %12.2f %8.2f %12.1f %12.2f %8.2f\n", bytes, scan / 1000, scan / bytes,
                    scan / bytes / scanBase, compose / 1000, compose / bytes, compose / bytes / composeBase);
    }
}

} // namespace

int main(int argc, char** argv)
{
    RegisterAll();
    Medians medians;
    medians.Measure(argc, argv, help);
    std::printf("%s\n", MachineName().c_str());
    PrintReading(medians);
    PrintRules(medians);
    PrintTexts(medians);
    return 0;
}
