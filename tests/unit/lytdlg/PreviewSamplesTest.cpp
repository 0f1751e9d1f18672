// The drawings of the sample dialogs.
#include "DrawnFolder.h"
#include "WellFormed.h"
#include "lytdlg/draw/Snapshot.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>

namespace
{

using lytdlg::Area;

const std::string drawnFolder = LYT_SOURCE_FOLDER "/tests/windows/samples/";
// The last one has sizes that no sample has.
constexpr const char* drawnDialogs[] = {"finding",  "lytCdGrp", "lytInPhr", "lytInSym", "lytRpGrp",
                                        "lytWzGrp", "lytWzPhr", "lytWzSym", "sizes"};

// The window and, a line each, the visible controls of a drawing: the place of each and, where it has a field or items, that of
// their room.
std::string PlacesOf(const std::string& svg)
{
    const std::regex title(" *<title>(.*)</title>");
    const std::regex area(R"re( *<svg x="(-?\d+)" y="(-?\d+)" width="(\d+)" height="(\d+)">)re");
    std::string places = "window:";
    bool isDropList = false;
    int areas = -1; // of the control; the window's bar is not counted
    std::istringstream lines(svg);
    std::smatch match;
    for (std::string line; std::getline(lines, line);)
    {
        if (std::regex_match(line, match, title) && areas > 0)
        {
            places += "\n" + match.str(1) + ":";
            isDropList = match.str(1).ends_with("DropListBox");
            areas = 0;
        }
        // What a list that drops down has inside is only the drawing's.
        else if (std::regex_match(line, match, area) && ++areas > 0 && (areas == 1 || !isDropList))
            places += (areas == 1 ? " " : ", ") + match.str(1) + ", " + match.str(2) + " " + match.str(3) + " by " +
                      match.str(4);
    }
    return places;
}

// Pixels at a corner are not counted.
bool Overlap(const Area& one, const Area& other)
{
    constexpr int corner = 6;
    const int width = std::min(one.left + one.width, other.left + other.width) - std::max(one.left, other.left);
    const int height = std::min(one.top + one.height, other.top + other.height) - std::max(one.top, other.top);
    return width > 0 && height > 0 && width * height > corner;
}

std::vector<Area> AreasOf(const std::string& svg, const std::string& before, const std::string& after, int left = 0,
                          int top = 0)
{
    const std::regex area(before + R"re( x="(-?\d+)" y="(-?\d+)" width="(\d+)" height="(\d+)")re" + after);
    std::vector<Area> areas;
    for (std::sregex_iterator found(svg.begin(), svg.end(), area); found != std::sregex_iterator(); ++found)
        areas.push_back({std::stoi((*found)[1]) + left, std::stoi((*found)[2]) + top, std::stoi((*found)[3]),
                         std::stoi((*found)[4])});
    return areas;
}

// The names and numbers beside the dialog itself.
std::vector<Area> NotesOf(const std::string& svg)
{
    return AreasOf(svg, "<rect", " fill=\"#ffffff\" fill-opacity");
}

// The controls that are nothing but a text, perhaps with a mark.
std::vector<Area> PlacesOfTexts(const std::string& svg)
{
    const Area client = AreasOf(svg, "\n  <svg", "").at(1);
    return AreasOf(svg, "(?:Text|CheckBox|OptionButton)</title>\\s*<svg", "", client.left, client.top);
}

std::string FileText(const std::string& name)
{
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class PreviewOfSamples : public Drawn
{
protected:
    PreviewOfSamples()
    {
        std::filesystem::copy(LYT_SOURCE_FOLDER "/samples", folder.File("samples"),
                              std::filesystem::copy_options::recursive);
        folder.Write("samples/dialogs/sizes.dlg", FileText(drawnFolder + "sizes.dlg"));
    }

    std::string DrawSample(const std::string& name, std::vector<std::string> options)
    {
        const std::string target = folder.File(name + ".svg");
        options.insert(options.begin(), {"preview", folder.File("samples/dialogs/" + name + ".dlg"), "-o", target});
        Run(options);
        EXPECT_EQ(told, "");
        EXPECT_EQ(exitCode, 0);
        return folder.Read(name + ".svg");
    }
};

} // namespace

// The windows of the library are compared with the same file, on either ground: sample-dialog-tests.
TEST_F(PreviewOfSamples, HaveTheirControlsWhereTheWindowsHaveThem)
{
    for (const std::string dots : {"96", "120"})
    {
        std::string places;
        for (const char* language : {"English", "German"})
        {
            for (const char* name : drawnDialogs)
                places += std::string(name) + " in " + language + "\n" +
                          PlacesOf(DrawSample(name, {"--language", language, "--dpi", dots})) + "\n\n";
        }
        const std::string record = drawnFolder + "drawn-" + dots + ".txt";
        if (std::getenv("LYT_UPDATE") != nullptr)
            std::ofstream(record, std::ios::binary) << places;
        EXPECT_EQ(places, FileText(record)) << "LYT_UPDATE=1 ctest --preset native -R lytdlg-tests writes it again";
    }
}

TEST_F(PreviewOfSamples, HaveNamesAndNumbersThatCoverNeitherTextsNorEachOther)
{
    for (const std::string dots : {"96", "120"})
    {
        for (const char* name : drawnDialogs)
        {
            const std::string svg = DrawSample(name, {"--names", "--tabs", "--dpi", dots});
            const std::vector<Area> notes = NotesOf(svg);
            EXPECT_GT(notes.size(), 10U) << name;
            const std::vector<Area> read = PlacesOfTexts(svg);
            for (size_t index = 0; index < notes.size(); ++index)
            {
                const auto covers = [&](const Area& other) { return Overlap(notes[index], other); };
                EXPECT_TRUE(std::ranges::none_of(read, covers)) << name << " at " << dots << ", note " << index;
                EXPECT_TRUE(std::none_of(notes.begin(), notes.begin() + static_cast<std::ptrdiff_t>(index), covers))
                    << name << " at " << dots << ", note " << index;
            }
        }
    }
}

// The same on every ground: windows in memory measure what the platform's do.
TEST_F(PreviewOfSamples, AreThoseOfTheDocuments)
{
    EXPECT_EQ(DrawSample("lytInSym", {"--input", "S1:area(2,kWh/(m2a))=\"n. a.\""}),
              FileText(LYT_SOURCE_FOLDER "/docs/preview-symbol.svg"));
    EXPECT_EQ(DrawSample("lytRpGrp", {"--names", "--tabs"}), FileText(LYT_SOURCE_FOLDER "/docs/preview-form.svg"));
}
