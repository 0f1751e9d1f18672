// What partner libraries write into their buffers, and what they raise instead.
#include "Limit.h"
#include "Ways.h"

#include <cstdio>
#include <cstring>
#include <limits>
#include <stdexcept>

namespace
{

// Delivers once and ends, again and again.
bool IsDue()
{
    static bool isDelivered = false;
    isDelivered = !isDelivered;
    return isDelivered;
}

void WriteEveryByte(char* text, int size)
{
    for (int index = 0; index <= size; ++index)
        text[index] = static_cast<char>(index % 255 + 1);
}

void FilledText(Scene& scene)
{
    scene.Partner("hostile").text = [](const char*, char* text, int size)
    {
        WriteEveryByte(text, size);
        return -1;
    };
    const std::string text = FillText(scene);
    EXPECT_EQ(text.size(), 2U + 255U);
    EXPECT_EQ(text.substr(0, 5), "1 \x01\x02\x03");
    EXPECT_EQ(Act(scene), "2 key");
}

void FilledItems(Scene& scene)
{
    scene.Partner("hostile").next = [](char* display, int size, char* value, int valueSize)
    {
        std::memset(display, 'D', static_cast<size_t>(size) + 1);
        std::memset(value, 'V', static_cast<size_t>(valueSize) + 1);
        return IsDue() ? std::numeric_limits<int>::min() : 0;
    };
    EXPECT_EQ(FillList(scene), Texts{std::string(255, 'D')});
}

void ServeOneRecord(Scene& scene, void (*fill)(lytTreeRecord& record))
{
    static void (*fillRecord)(lytTreeRecord&) = nullptr;
    fillRecord = fill;
    scene.Partner("lytsrc").treeNext = [](lytTreeRecord* record)
    {
        fillRecord(*record);
        return static_cast<int32_t>(IsDue() ? -1 : 0);
    };
}

void FilledRecord(Scene& scene)
{
    ServeOneRecord(scene,
                   [](lytTreeRecord& record)
                   {
                       record.nType = LYT_TREE_SYMBOL;
                       std::memset(record.szLabel, 'L', sizeof record.szLabel);
                       std::memset(record.szKey, 'k', sizeof record.szKey);
                   });
    EXPECT_EQ(scene.FindSymbol("k"), "0 as it was");
    EXPECT_EQ(scene.EndBrowser(IDOK).OpenBrowser(), "1 S//");
}

void OddRecord(Scene& scene)
{
    ServeOneRecord(scene,
                   [](lytTreeRecord& record)
                   {
                       record.nLevel = std::numeric_limits<int32_t>::min();
                       record.nType = std::numeric_limits<int32_t>::max();
                       std::memset(record.szLabel, 0xFF, sizeof record.szLabel - 1);
                       std::strcpy(record.szKey, "\x01");
                   });
    EXPECT_EQ(scene.FindSymbol("\x01"), "0 as it was");
    EXPECT_EQ(scene.EndBrowser(IDOK).OpenBrowser(), "1 H//" + std::string(99, '\xFF'));
}

void FilledVersion(Scene& scene)
{
    scene.Partner("LytRes64").version = [](char* text) { std::memset(text, 'x', 400); };
    EXPECT_EQ(VersionLine(scene), std::string(399, 'x'));
}

// ---- exceptions

[[noreturn]] void BreakOff()
{
    throw std::runtime_error("Broken off.");
}

void ConfirmMessage(Scene& scene)
{
    scene.robot.AnswerMessage();
}

std::string Failure(const std::string& library, const std::string& function, const std::string& reason)
{
    return "The library '" + library + "' failed in its function '" + function + "': " + reason;
}

void ExpectTold(const Scene& scene, const std::string& library, const std::string& function)
{
    EXPECT_EQ(scene.robot.Messages(), Texts{Failure(library, function, "Broken off.")});
}

void RaisingText(Scene& scene)
{
    scene.Partner("hostile").text = [](const char*, char*, int) -> int { BreakOff(); };
    EXPECT_EQ(FillText(scene, ConfirmMessage), "2 key");
    ExpectTold(scene, "hostile", "Text");
}

void RaisingRule(Scene& scene)
{
    scene.Partner("hostile").text = [](const char*, char*, int) -> int { BreakOff(); };
    scene.Describe("TextBox 10, 60, 60, 15, .B\n", "B=FILLEDBY,hostile,Text\n", "B/FILL = Key\n");
    scene.OnDialog([](HWND) { robot::TypeText("x"); }).robot.AnswerMessage().AnswerMessage();
    scene.EndDialog(IDOK).robot.AnswerMessage();
    scene.EndDialog(IDCANCEL).robot.AnswerMessage();
    EXPECT_EQ(scene.ShowSymbol(), "0 as it was");
}

void RaisingAction(Scene& scene)
{
    scene.Partner("hostile").text = [](const char*, char*, int) -> int { BreakOff(); };
    EXPECT_EQ(Act(scene, ConfirmMessage), "2 key");
    ExpectTold(scene, "hostile", "Text");
}

void NamelessText(Scene& scene)
{
    scene.Partner("hostile").text = [](const char*, char*, int) -> int { throw 1; };
    EXPECT_EQ(FillText(scene, ConfirmMessage), "2 key");
    EXPECT_EQ(scene.robot.Messages(), Texts{Failure("hostile", "Text", "an unknown exception")});
}

// Codes of the exceptions of other tool chains and of the system: native C++, .NET, two of Delphi, a division, a text for
// a debugger, a breakpoint, a guard page, and plain numbers.
constexpr DWORD foreignCodes[] = {0xE06D7363, 0xE0434352, 0x0EEDFADE, 0x0EEFFACE, 0xC000008C, 0x40010006,
                                  0x80000003, 0x80000001, 0xE0001234, 1,          0};

DWORD foreignCode = 0;

int RaiseForeign()
{
    RaiseException(foreignCode, 0, 0, nullptr);
    return 0;
}

std::string ForeignFailure(const std::string& library, const std::string& function)
{
    char number[11] = "";
    std::snprintf(number, sizeof number, "0x%08lX", foreignCode);
    return Failure(library, function, std::string("exception ") + number);
}

int TouchNothing()
{
    static int* volatile nothing = nullptr;
    return *nothing;
}

const char* const fault = "exception 0xC0000005";

void ForeignText(Scene& scene)
{
    Texts expected;
    scene.Partner("hostile").text = [](const char*, char*, int) { return RaiseForeign(); };
    for (const DWORD code : foreignCodes)
    {
        foreignCode = code;
        expected.push_back(ForeignFailure("hostile", "Text"));
        EXPECT_EQ(FillText(scene, ConfirmMessage), "2 key") << expected.back();
    }
    scene.Partner("hostile").text = [](const char*, char*, int) { return TouchNothing(); };
    expected.push_back(Failure("hostile", "Text", fault));
    EXPECT_EQ(Act(scene, ConfirmMessage), "2 key");
    EXPECT_EQ(scene.robot.Messages(), expected);
}

void TalkingText(Scene& scene)
{
    scene.Partner("hostile").text = [](const char*, char* text, int)
    {
        OutputDebugStringA("raises and handles an exception");
        std::strcpy(text, "talked");
        return 1;
    };
    EXPECT_EQ(FillText(scene), "1 talked");
}

void ForeignItem(Scene& scene)
{
    foreignCode = foreignCodes[0];
    scene.Partner("hostile").start = [](const char*) { RaiseForeign(); };
    EXPECT_EQ(FillList(scene, ConfirmMessage), Texts{});
    scene.Partner("hostile") = {};
    scene.Partner("hostile").next = [](char*, int, char*, int) { return TouchNothing(); };
    EXPECT_EQ(FillList(scene, ConfirmMessage), Texts{});
    EXPECT_EQ(scene.robot.Messages(), (Texts{ForeignFailure("hostile", "Start"), Failure("hostile", "Next", fault)}));
}

void ForeignRecord(Scene& scene)
{
    scene.Partner("lytsrc").treeNext = [](lytTreeRecord*) { return static_cast<int32_t>(TouchNothing()); };
    scene.robot.AnswerMessage();
    EXPECT_EQ(scene.EndBrowser(IDCANCEL).OpenBrowser(), "0 as it was");
    EXPECT_EQ(scene.robot.Messages(), Texts{Failure("lytsrc", "lytTreeNext", fault)});
    foreignCode = foreignCodes[0];
    scene.Partner("lytsrc").treeStart = [](const char*) { return static_cast<int32_t>(RaiseForeign()); };
    EXPECT_ANY_THROW(scene.FindSymbol("k"));
}

void ForeignVersion(Scene& scene)
{
    scene.Partner("LytRes64").version = [](char*) { TouchNothing(); };
    EXPECT_EQ(VersionLine(scene), NoVersion());
}

void RaisingItem(Scene& scene)
{
    scene.Partner("hostile").next = [](char* display, int, char* value, int)
    {
        if (!IsDue())
            BreakOff();
        std::strcpy(display, "first");
        std::strcpy(value, "first");
        return 1;
    };
    EXPECT_EQ(FillList(scene, ConfirmMessage), Texts{"first"});
    ExpectTold(scene, "hostile", "Next");
}

void RaisingRecord(Scene& scene)
{
    scene.Partner("lytsrc").treeNext = [](lytTreeRecord*) -> int32_t { BreakOff(); };
    scene.robot.AnswerMessage();
    EXPECT_EQ(scene.EndBrowser(IDCANCEL).OpenBrowser(), "0 as it was");
    ExpectTold(scene, "lytsrc", "lytTreeNext");
}

void RaisingLookup(Scene& scene)
{
    scene.Partner("lytsrc").treeNext = [](lytTreeRecord*) -> int32_t { BreakOff(); };
    EXPECT_THROW(scene.FindSymbol("k"), std::runtime_error);
    EXPECT_EQ(scene.EndDialog(IDOK).ShowSymbol(), "2 key");
}

void RaisingVersion(Scene& scene)
{
    scene.Partner("LytRes64").version = [](char*) { BreakOff(); };
    EXPECT_EQ(VersionLine(scene), NoVersion());
}

constexpr Limit answerRows[] = {
    {"text of a field or an action", "fills all 256 bytes, returns any number",
     "the text is the first 255 bytes; the number is ignored", FilledText},
    {"items of a list", "fill all 256 bytes of both buffers, return any number except 0",
     "the texts are the first 255 bytes; the list continues", FilledItems},
    {"record of the catalogue", "label or key without a NUL in its 100 bytes", "it is empty", FilledRecord},
    {"record of the catalogue", "an unknown type, a level of any size",
     "it has the type of the record before, or is a heading if it is the first; any level is valid", OddRecord},
    {"version of the resource library", "fills 400 bytes", "it is the first 399", FilledVersion},
    {"text of a field", "raises a C++ exception of the same tool chain",
     "a message shows library, function and the text of the exception; the field is as it was, and the dialog "
     "continues",
     RaisingText},
    {"text of an action", "the same", "the same, and nothing is scanned", RaisingAction},
    {"items of a list", "the same", "the same; the items before it stay in the list", RaisingItem},
    {"text of a field that a rule fills", "the same",
     "one message for each command of the user, and two for a typed letter; OK does nothing, Cancel ends the dialog",
     RaisingRule},
    {"record of the catalogue", "the same while it is shown",
     "a message as above; the catalogue is empty, and the next call reads it again", RaisingRecord},
    {"record of the catalogue", "the same in `lytGetSymbolfromTree`",
     "the exception reaches the caller, whose process may end; the library continues to work", RaisingLookup},
    {"version of the resource library", "the same", "the report shows no version", RaisingVersion},
    {"text of a field or an action", "raises any other exception, an access violation for instance",
     "the same as with a C++ exception; the message gives its number", ForeignText},
    {"text of a field", "raises something other than a `std::exception`",
     "the same; the message says that it is unknown", NamelessText},
    {"text of a field", "writes a text for a debugger", "nothing special: the system handles that itself", TalkingText},
    {"start or item of a list", "the same", "the same", ForeignItem},
    {"record of the catalogue", "the same", "the same", ForeignRecord},
    {"version of the resource library", "the same", "the report shows no version", ForeignVersion},
};

} // namespace

const LimitTable answerLimits = {
    "What partner libraries give",
    "An endless list or catalogue is cut after 1,000,000 items or records. A function that does not return cannot be\n"
    "stopped: the call does not return either. A partner that writes beyond its buffer, or calls itself without end,\n"
    "ends the process.",
    "what",
    answerRows,
};
