// The drawings of the sample dialogs.
#include "DrawnFolder.h"
#include "WellFormed.h"

#include <cstdlib>
#include <fstream>
#include <regex>
#include <sstream>

namespace
{

const std::string samplesFolder = LYT_SOURCE_FOLDER "/samples/dialogs/";
constexpr const char* sampleDialogs[] = {"finding",  "lytCdGrp", "lytInPhr", "lytInSym",
                                         "lytRpGrp", "lytWzGrp", "lytWzPhr", "lytWzSym"};

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

std::string FileText(const std::string& name)
{
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

class PreviewOfSamples : public Drawn
{
protected:
    std::string DrawSample(const std::string& name, std::vector<std::string> options)
    {
        const std::string target = folder.File(name + ".svg");
        options.insert(options.begin(), {"preview", samplesFolder + name + ".dlg", "-o", target});
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
            for (const char* name : sampleDialogs)
                places += std::string(name) + " in " + language + "\n" +
                          PlacesOf(DrawSample(name, {"--language", language, "--dpi", dots})) + "\n\n";
        }
        const std::string record = LYT_SOURCE_FOLDER "/tests/windows/samples/drawn-" + dots + ".txt";
        if (std::getenv("LYT_UPDATE") != nullptr)
            std::ofstream(record, std::ios::binary) << places;
        EXPECT_EQ(places, FileText(record)) << "LYT_UPDATE=1 ctest --preset native -R lytdlg-tests writes it again";
    }
}

// The same on every ground: windows in memory measure what the platform's do.
TEST_F(PreviewOfSamples, AreThoseOfTheDocuments)
{
    EXPECT_EQ(DrawSample("lytInSym", {"--input", "S1:area(2,kWh/(m2a))=\"n. a.\""}),
              FileText(LYT_SOURCE_FOLDER "/docs/preview-symbol.svg"));
    EXPECT_EQ(DrawSample("lytRpGrp", {"--names", "--tabs"}), FileText(LYT_SOURCE_FOLDER "/docs/preview-form.svg"));
}
