// The windows of the sample dialogs, and of one with sizes that no sample has, are where `lytdlg preview` draws them. drawn-96.txt
// and drawn-120.txt are what it draws at either resolution; lytdlg-tests keeps them up to date. The same program runs at both.
#include "SampleDialog.h"

#include <filesystem>
#include <fstream>

namespace
{

struct Drawn
{
    std::string control;
    std::string place;
};

int DotsPerInch()
{
    HDC screen = GetDC(nullptr);
    const int dots = GetDeviceCaps(screen, LOGPIXELSX);
    ReleaseDC(nullptr, screen);
    return dots;
}

std::vector<Sample> DrawnDialogs()
{
    std::vector<Sample> dialogs = Samples();
    for (const char* language : {"English", "German"})
        dialogs.push_back({LYT_DRAWINGS "/sizes", language, false});
    return dialogs;
}

// What is drawn of a dialog: the window and, in their order, the visible controls.
std::vector<Drawn> DrawingOf(const Sample& sample)
{
    std::ifstream file(LYT_DRAWINGS "/drawn-" + std::to_string(DotsPerInch()) + ".txt");
    const std::string title = std::filesystem::path(sample.file).filename().string() + " in " + sample.language;
    std::string line;
    while (std::getline(file, line) && line != title)
        continue;
    std::vector<Drawn> drawn;
    while (std::getline(file, line) && !line.empty())
    {
        const size_t end = line.rfind(": ");
        drawn.push_back({line.substr(0, end), line.substr(end + 2)});
    }
    return drawn;
}

std::string PlaceText(LONG left, LONG top, LONG width, LONG height)
{
    return std::to_string(left) + ", " + std::to_string(top) + " " + std::to_string(width) + " by " +
           std::to_string(height);
}

std::string PlaceText(const RECT& place)
{
    return PlaceText(place.left, place.top, place.right - place.left, place.bottom - place.top);
}

// What the frame of a window leaves, within that window. The scroll bar of a list is in its frame.
std::string InsideOf(HWND window)
{
    RECT whole{};
    RECT client{};
    POINT corner{};
    GetWindowRect(window, &whole);
    GetClientRect(window, &client);
    MapWindowPoints(window, nullptr, &corner, 1);
    const LONG left = corner.x - whole.left;
    return PlaceText(left, corner.y - whole.top, whole.right - whole.left - 2 * left, client.bottom);
}

// The place of a control and, where it has a field or items, that of their room.
std::string PlaceOf(HWND control)
{
    const std::string place = PlaceText(robot::PlaceOf(control));
    const std::string kind = robot::ClassOf(control);
    if (kind == "Edit" || (kind == "ListBox" && SendMessageA(control, LB_GETCOUNT, 0, 0) > 0))
        return place + ", " + InsideOf(control);
    HWND field = FindWindowExA(control, nullptr, "Edit", nullptr);
    return field != nullptr ? place + ", " + PlaceText(robot::PlaceOf(field)) : place;
}

std::vector<std::string> PlacesOf(HWND dialog)
{
    std::vector<std::string> places = {InsideOf(dialog)};
    for (HWND child : robot::ChildrenOf(dialog))
    {
        if (IsWindowVisible(child) != FALSE)
            places.push_back(PlaceOf(child));
    }
    return places;
}

using SamplePlaces = SampleDialog;

} // namespace

TEST_P(SamplePlaces, AreThoseOfTheDrawing)
{
    std::vector<std::string> places;
    robot.On("",
             [&](HWND dialog)
             {
                 places = PlacesOf(dialog);
                 robot::Press(GetDlgItem(dialog, IDCANCEL));
             });
    EXPECT_EQ(Open(), 0);
    const std::vector<Drawn> drawn = DrawingOf(GetParam());
    ASSERT_EQ(places.size(), drawn.size());
    for (size_t index = 0; index < drawn.size(); ++index)
        EXPECT_EQ(places[index], drawn[index].place)
            << drawn[index].control << " at " << DotsPerInch() << " dots per inch, in the window and in the drawing";
}

INSTANTIATE_TEST_SUITE_P(Dialog, SamplePlaces, testing::ValuesIn(DrawnDialogs()), NameOfSample);
