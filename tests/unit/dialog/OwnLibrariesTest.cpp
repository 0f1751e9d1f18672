// Libraries that a program has inside, and what it hears of the controls that ask for them.
#include "Form.h"

#include "base/PartnerLibrary.h"
#include "model/ClytObserver.h"

#include <cstring>

namespace
{

int AnswerInside(const char* parameter, char* text, int size)
{
    std::strncpy(text, parameter[0] != '\0' ? parameter : "from inside", static_cast<size_t>(size));
    return 1;
}

// The library `inside` with its function `Answer`.
class LibraryInside : public ClytOwnLibraries
{
public:
    LibraryInside() { lytOwnLibraries = this; }
    LibraryInside(const LibraryInside&) = delete;
    LibraryInside& operator=(const LibraryInside&) = delete;
    ~LibraryInside() { lytOwnLibraries = nullptr; }

    HMODULE Load(const char* name) override { return std::strcmp(name, "inside") == 0 ? Handle() : nullptr; }
    bool Owns(HMODULE library) const override { return library == Handle(); }
    FARPROC Find(HMODULE /*library*/, const char* function) override
    {
        if (std::strcmp(function, "Answer") != 0)
            return nullptr;
        return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(AnswerInside));
    }

private:
    static HMODULE Handle()
    {
        static int library = 0;
        return reinterpret_cast<HMODULE>(&library);
    }
};

class AskedControls : public ClytObserver
{
public:
    AskedControls() { lytObserver = this; }
    AskedControls(const AskedControls&) = delete;
    AskedControls& operator=(const AskedControls&) = delete;
    ~AskedControls() { lytObserver = nullptr; }

    void LibraryAsked(const ClytControl& control) override { names += std::string(control.GetName()) + ";"; }
    void ScanBegan(const char* text) override { scans += std::string(text) + ";"; }

    std::string names;
    std::string scans;
};

} // namespace

TEST(OwnLibraries, ComeBeforeTheFilesOfTheSameName)
{
    const LibraryInside inside;
    HMODULE library = lytLoadLibrary("inside");
    ASSERT_NE(library, nullptr);
    auto* function = lytFindFunction<int(const char*, char*, int)>(library, "Answer");
    ASSERT_NE(function, nullptr);
    char text[20] = "";
    function("", text, sizeof text);
    EXPECT_STREQ(text, "from inside");
    EXPECT_EQ(lytFindFunction<int()>(library, "Other"), nullptr);
}

TEST(OwnLibraries, LeaveOtherLibrariesToThePlatform)
{
    const LibraryInside inside;
    EXPECT_EQ(lytLoadLibrary("no-such-library"), nullptr);
}

TEST(OwnLibraries, AreGoneWithTheirProgramPart)
{
    {
        const LibraryInside inside;
    }
    EXPECT_EQ(lytLoadLibrary("inside"), nullptr);
}

using AskedControl = FormTest;

TEST_F(AskedControl, IsToldBeforeItsLibraryIsLookedFor)
{
    AskedControls asked;
    text.layout = "TextBox 1, 2, 3, 4, .A\nListBox 1, 2, 3, 4, .B\nComboBox 1, 2, 3, 4, .C\n";
    text.values = "A = FILLEDBY, nowhere, Answer\nB = FILLEDBY, nowhere, Start, Next\nC = FILLEDBY, nowhere, Start, "
                  "Next\n";
    text.input = "Start: (99, End = A(FILL), B(FILL), C(FILL)\n";
    Open("text");
    EXPECT_EQ(asked.names, "A;B;C;");
    EXPECT_EQ(asked.scans, "text;");
}
