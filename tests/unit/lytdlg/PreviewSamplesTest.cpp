// The drawings of the sample dialogs, laid over the windows themselves.
#include "DrawnFolder.h"
#include "WellFormed.h"
#include "dialog/ClytDialog.h"
#include "environment/ClytEnvironment.h"
#include "lytdlg/try/TrialEnvironment.h"
#include "robot/WindowRobot.h"

#include <fstream>
#include <regex>

namespace
{

const std::string samplesFolder = LYT_SOURCE_FOLDER "/samples/dialogs/";
constexpr const char* sampleDialogs[] = {"finding",  "lytCdGrp", "lytInPhr", "lytInSym",
                                         "lytRpGrp", "lytWzGrp", "lytWzPhr", "lytWzSym"};

using Places = std::vector<std::string>;

std::string PlaceText(LONG left, LONG top, LONG width, LONG height)
{
    return std::to_string(left) + ", " + std::to_string(top) + ": " + std::to_string(width) + " by " +
           std::to_string(height);
}

// The window itself with its visible children, in the order of their creation, as a call shows them.
Places PlacesOfWindow(HWND dialog)
{
    RECT rect{};
    GetWindowRect(dialog, &rect);
    Places places = {PlaceText(0, 0, rect.right - rect.left, rect.bottom - rect.top)};
    for (HWND child : robot::ChildrenOf(dialog))
    {
        if (IsWindowVisible(child) == FALSE)
            continue;
        rect = robot::PlaceOf(child);
        places.push_back(PlaceText(rect.left, rect.top, rect.right - rect.left, rect.bottom - rect.top));
    }
    return places;
}

Places PlacesOfLiveDialog(const std::string& name, const std::string& language)
{
    const lytdlg::TrialEnvironment surroundings({.dialog = samplesFolder + name + ".dlg", .language = language});
    Places places;
    robot::Robot robot;
    robot.On("",
             [&](HWND window)
             {
                 places = PlacesOfWindow(window);
                 robot::Press(GetDlgItem(window, IDCANCEL));
             });
    ClytDialog dialog(surroundings.DescriptionFile().c_str(), CString());
    dialog.DoModal();
    return places;
}

// The same, read from a drawing.
Places PlacesOfDrawing(const std::string& svg)
{
    const std::regex root(R"re(<svg xmlns="[^"]*" width="(\d+)" height="(\d+)")re");
    const std::regex control(
        R"re(<g id="control-\d+">\s*<title>[^<]*</title>\s*<svg x="(-?\d+)" y="(-?\d+)" width="(\d+)" height="(\d+)">)re");
    std::smatch match;
    if (!std::regex_search(svg, match, root))
        return {};
    Places places = {PlaceText(0, 0, std::stoi(match[1]), std::stoi(match[2]))};
    for (std::sregex_iterator found(svg.begin(), svg.end(), control); found != std::sregex_iterator(); ++found)
        places.push_back(
            PlaceText(std::stoi((*found)[1]), std::stoi((*found)[2]), std::stoi((*found)[3]), std::stoi((*found)[4])));
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

TEST_F(PreviewOfSamples, HaveTheirControlsWhereTheWindowsHaveThem)
{
    for (const char* name : sampleDialogs)
    {
        for (const char* language : {"English", "German"})
        {
            SCOPED_TRACE(std::string(name) + " in " + language);
            const Places places = PlacesOfLiveDialog(name, language);
            EXPECT_GT(places.size(), 5U);
            EXPECT_EQ(PlacesOfDrawing(DrawSample(name, {"--language", language})), places);
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
