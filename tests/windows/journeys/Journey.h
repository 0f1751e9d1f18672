// One whole way from a macro's call to its result: a description on disk, a key in, steps on the live window, buffers
// and result code out.
#pragma once

#include "robot/WindowRobot.h"
#include "support/TestFolder.h"

#include <functional>
#include <string>
#include <vector>

struct JourneyResult
{
    int code = -1;
    std::string first;  // the result buffer, or a group's first
    std::string second; // a group's second buffer
    std::vector<std::string> messages;
    std::string log;
    bool done = false;
};

class Journey
{
public:
    // Lays out dialog folder, language file and lyt.ini, and initialises the library on them.
    Journey();

    // The language file's sections beside the ones every journey has.
    void Texts(const std::string& sections);
    // A description file in the dialog folder.
    void Describe(const std::string& fileName, const std::string& description);

    // Plans steps on the live windows, in order.
    robot::Robot& Steps() { return m_robot; }
    // The n-th child of the active dialog, in order of creation.
    static HWND Control(size_t index);

    // Calls the export; what stood in the buffers before is "before".
    JourneyResult Symbol(const std::string& key, int size = 200);
    JourneyResult Phrase(const std::string& key, int size = 200);
    JourneyResult Group(int kind, const std::string& key, int firstSize = 200, int secondSize = 200);

    const TestFolder& Folder() const { return m_folder; }

private:
    JourneyResult Finish(int code, const std::string& first, const std::string& second);

    TestFolder m_folder;
    robot::Robot m_robot;
};

// A description with these sections, the rest of it minimal: no rules, and an input part that takes nothing.
struct Sections
{
    std::string layout;
    std::string values;
    std::string dependances;
    std::string evaluation;
    std::string input = "Start: x = End\n";
    std::string output = "(\"ok\")\n";
    std::string text = "$LAYOUT TEXTS\n";
    std::string begin = "Begin Dialog Box 300, 200, \"TITLE\", .Main\n";
};
std::string Description(const Sections& sections);
