// Slips, each one replacement in a dialog that is right, are found at their line; and dialogs that use every
// feature as it is meant are not complained of.
#include "lytdlg/judge/Judge.h"
#include "lytdlg/judge/Report.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Words.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>

namespace lytdlg
{

namespace
{

// A case of slips.cases.
struct Slip
{
    std::string dialog;
    std::string line;
    std::string by;
    bool isDeleted = true;
    std::vector<std::string> rules; // one of them finds it; none for a change that does no harm
    std::string at;                 // another line that the finding is in
    std::set<std::string> also;     // further lines with a finding
    int number = 0;
};

void TakeRules(const std::string& text, Slip& slip)
{
    const size_t sign = text.find('@');
    slip.at = sign != std::string::npos ? text.substr(sign + 2) : "";
    std::istringstream rules(text.substr(0, sign));
    for (std::string rule; rules >> rule;)
        slip.rules.push_back(rule);
}

std::vector<Slip> ReadSlips()
{
    std::ifstream file(LYT_SOURCE_FOLDER "/tests/unit/lytdlg/slips.cases");
    std::vector<Slip> slips;
    std::string dialog;
    int number = 0;
    for (std::string line; std::getline(file, line);)
    {
        ++number;
        if (line.starts_with("dialog: "))
            dialog = line.substr(8);
        else if (line.starts_with("- "))
            slips.push_back({dialog, line.substr(2), "", true, {}, "", {}, number});
        else if (line.starts_with("+ "))
        {
            slips.back().by = line.substr(2);
            slips.back().isDeleted = false;
        }
        else if (line.starts_with("="))
            TakeRules(line.substr(1), slips.back());
        else if (line.starts_with("& "))
            slips.back().also.insert(line.substr(2));
    }
    return slips;
}

std::filesystem::path FileOf(const std::string& dialog)
{
    std::filesystem::path file;
    for (const char* folder : {"samples/dialogs", "tests/unit/lytdlg/sound", "tests/unit/lytdlg/slips"})
    {
        const std::filesystem::path there = PathOf(LYT_SOURCE_FOLDER) / folder / dialog;
        file = std::filesystem::exists(there) ? there : file;
    }
    return file;
}

std::vector<std::string> LinesOfFile(const std::filesystem::path& path)
{
    std::vector<std::string> lines;
    std::istringstream text(ReadWholeFile(path).value());
    for (std::string line; std::getline(text, line);)
        lines.push_back(line.ends_with('\r') ? line.substr(0, line.size() - 1) : line);
    return lines;
}

auto Find(std::vector<std::string>& lines, const std::string& wanted)
{
    return std::ranges::find_if(lines, [&](const std::string& line) { return Trimmed(line) == wanted; });
}

// The dialog with the slip, and the line in which it is to be found.
std::string SlippedText(const Slip& slip, int& expected)
{
    std::vector<std::string> lines = LinesOfFile(FileOf(slip.dialog));
    auto line = Find(lines, slip.line);
    if (line == lines.end())
        return "";
    if (slip.isDeleted)
        line = lines.erase(line);
    else
        *line = "    " + slip.by;
    if (!slip.at.empty())
        line = Find(lines, slip.at);
    expected = static_cast<int>(line - lines.begin()) + 1;
    std::string text;
    for (const std::string& each : lines)
        text += each + "\r\n";
    return text;
}

// All that is said of errors and warnings.
std::string SaidOf(const Findings& findings, const Description& description)
{
    std::string said;
    for (const Finding& finding : findings.All())
        said += finding.rule->level == Level::Note ? "" : TextOf(finding, description, false);
    return said;
}

const Surroundings& SurroundingsIn(const std::string& folder)
{
    static std::map<std::string, Surroundings> known;
    return known.try_emplace(folder, SurroundingsOf(folder, {})).first->second;
}

std::vector<std::filesystem::path> SoundDialogs()
{
    std::vector<std::filesystem::path> files;
    for (const char* folder : {"samples/dialogs", "tests/unit/lytdlg/slips", "tests/unit/lytdlg/sound",
                               "tests/unit/lytdlg/sound/named", "tests/unit/lytdlg/sound/german"})
        std::ranges::copy(FilesIn(PathOf(LYT_SOURCE_FOLDER) / folder, ".dlg"), std::back_inserter(files));
    return files;
}

bool IsOfTrial(const Finding& finding)
{
    return finding.rule->id.starts_with("trip-") || finding.rule->id.starts_with("lock-");
}

} // namespace

TEST(Slips, AreFoundAtTheirLine)
{
    for (const Slip& slip : ReadSlips())
    {
        SCOPED_TRACE(slip.number);
        int line = 0;
        const std::filesystem::path file = FileOf(slip.dialog);
        const Description description(file.string(), SlippedText(slip, line), {});
        ASSERT_NE(line, 0) << slip.line;
        const Findings findings = Judge(description, SurroundingsIn(file.parent_path().string()));
        const auto isExpected = [&](const Finding& finding)
        {
            return finding.place.line == line && std::ranges::find(slip.rules, finding.rule->id) != slip.rules.end() &&
                   !finding.hint.empty();
        };
        const auto isElsewhere = [&](const Finding& finding)
        {
            return IsOfTrial(finding) && finding.place.line != line &&
                   !slip.also.contains(Trimmed(description.text.Line(finding.place.line).text));
        };
        EXPECT_EQ(std::ranges::any_of(findings.All(), isExpected), !slip.rules.empty())
            << line << "\n"
            << SaidOf(findings, description);
        EXPECT_TRUE(std::ranges::none_of(findings.All(), isElsewhere)) << SaidOf(findings, description);
    }
}

TEST(Slips, AreNotFoundInDialogsWithoutAny)
{
    for (const std::filesystem::path& file : SoundDialogs())
    {
        const Surroundings& surroundings = SurroundingsIn(file.parent_path().string());
        for (const std::vector<std::string>& defines : {std::vector<std::string>(), {"WIDE"}})
        {
            const Description description(file.string(), ReadWholeFile(file).value(), defines);
            EXPECT_EQ(SaidOf(Judge(description, surroundings), description), "") << file;
        }
    }
}

// The sound dialogs have all that a description can say.
TEST(Slips, AreNotFoundInAnyFeature)
{
    std::string text;
    for (const std::filesystem::path& file : SoundDialogs())
        text += ReadWholeFile(file).value();
    const std::vector<std::string> features =
        LinesOfFile(PathOf(LYT_SOURCE_FOLDER "/tests/unit/lytdlg/sound/features"));
    for (const std::string& feature : features)
        EXPECT_TRUE(feature.starts_with('#') || text.find(feature) != std::string::npos) << feature;
}

} // namespace lytdlg
