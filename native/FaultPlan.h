// Calls that fail on request, as the platform's do when memory, handles or a disk run out.
//
// The program under test is the library: its work begins with a call of an export, and pauses while the platform works for
// it. What the robot, a tool or a test does beside it never fails, and neither does an allocation of the platform's own.
#pragma once

namespace platform
{

enum class FaultKind
{
    Allocation, // std::bad_alloc
    Window,     // not created
    Item,       // no room for it in a list, a combo box or a tree
    Library,    // not loaded
    Profile,    // the file of a profile function cannot be read
    Open,       // of a text stream
    Read,
    Write,
    Flush // what is written is taken, and lost when the stream is closed
};

// While it lives, one call of a kind fails: the one after so many others. There is one plan at a time.
class FaultPlan
{
public:
    FaultPlan(FaultKind kind, int callsBefore);
    FaultPlan(const FaultPlan&) = delete;
    FaultPlan& operator=(const FaultPlan&) = delete;
    ~FaultPlan();

    bool HasFailed() const { return m_callsLeft < 0; }

private:
    friend bool IsToFail(FaultKind kind);

    FaultKind m_kind;
    int m_callsLeft;
};

// Counts a call; true for the one that is to fail.
bool IsToFail(FaultKind kind);

bool IsProgramAtWork();

// Who works while an object lives.
struct Work
{
    bool isProgram; // and not the platform for it
    bool isCalled;  // the program, further up the stack at least
};
class Worker
{
public:
    Worker(const Worker&) = delete;
    Worker& operator=(const Worker&) = delete;
    ~Worker();

protected:
    explicit Worker(bool isProgram);

private:
    Work m_before;
};

class ProgramAtWork : public Worker
{
public:
    ProgramAtWork() : Worker(true) {}
};

class PlatformAtWork : public Worker
{
public:
    PlatformAtWork() : Worker(false) {}
};

} // namespace platform
