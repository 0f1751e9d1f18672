// The log holds whole blocks, also when a program that writes it is ended, and a message that is not in it was refused
// with a number.
#include "LogBlocks.h"

#include "commandline/Program.h"
#include "support/ChildProcess.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace
{

using Texts = std::vector<std::string>;

// Events that a writer that pauses sets, and waits for.
class Event
{
public:
    explicit Event(const char* name) : m_event(CreateEventA(nullptr, TRUE, FALSE, name)) {}
    Event(const Event&) = delete;
    Event& operator=(const Event&) = delete;
    ~Event() { CloseHandle(m_event); }

    void Set() const { SetEvent(m_event); }
    void Wait() const
    {
        constexpr DWORD limit = 60000;
        EXPECT_EQ(WaitForSingleObject(m_event, commandline::Patience(limit)), WAIT_OBJECT_0);
    }

private:
    HANDLE m_event;
};

class LogOfProcesses : public testing::Test
{
protected:
    LogOfProcesses()
    {
        folder.Write("lyt.ini", "[global]\r\nCurrent Language=Test\r\n[LogLevel]\r\nlevel=1\r\n");
        folder.Write("lang/Test.nls", "[Dialog_Error]\r\n207=207\r\n208=208\r\n209=209\r\n");
    }

    // A program that logs a number of messages, each of so many of the letter.
    std::string Writer(int count, char letter, size_t length, const std::string& fault = "") const
    {
        return "log-writer.exe " + folder.Path() + " " + std::to_string(count) + " " + letter + " " +
               std::to_string(length) + " " + fault;
    }
    ChildEnd Write(int count, char letter, size_t length, const std::string& fault = "") const
    {
        return ChildProcess(Writer(count, letter, length, fault)).Wait();
    }
    // The messages of the log, which has to consist of whole blocks.
    Texts Messages() const
    {
        const LogBlocks blocks(folder.Read("doc.log"));
        EXPECT_EQ(blocks.rest, "");
        return blocks.messages;
    }

    const TestFolder folder;
};

// The number of a refused message is at the end of the line after its cause.
size_t CountRefusals(const std::string& output, const std::string& number)
{
    size_t count = 0;
    for (size_t place = output.find("\n" + number); place != std::string::npos;
         place = output.find("\n" + number, place + 1))
        ++count;
    return count;
}

} // namespace

TEST_F(LogOfProcesses, HoldsWholeBlocksWhereverItsWriterIsStopped)
{
    constexpr DWORD stopped = 99;
    constexpr size_t longerThanAnyBuffer = 20000;
    for (const size_t length : {size_t{4}, longerThanAnyBuffer})
    {
        SCOPED_TRACE(length);
        Texts expected = Messages();
        int operation = 0;
        for (DWORD code = stopped; code == stopped;)
        {
            ++operation;
            SCOPED_TRACE(operation);
            EXPECT_EQ(Write(1, 'a', length).code, 0U);
            expected.emplace_back(length, 'a');
            code = Write(1, 'b', length, "stop " + std::to_string(operation)).code;
            if (Messages().size() > expected.size())
                expected.emplace_back(length, 'b');
            EXPECT_EQ(Messages(), expected);
        }
        EXPECT_GT(operation, 3) << "opening, writing and closing are operations";
        EXPECT_EQ(expected.back(), std::string(length, 'b')) << "the last writer was not stopped";
    }
}

TEST_F(LogOfProcesses, RefusesASecondWriterWith207AndKeepsTheBlockOfTheFirst)
{
    // Wherever the first is once it has the file, up to the closing.
    for (const char* operation : {"pause 2", "pause 3", "pause 4"})
    {
        SCOPED_TRACE(operation);
        const size_t before = Messages().size();
        const Event paused("lyt-log-paused");
        const Event go("lyt-log-go");
        const ChildProcess first(Writer(1, 'a', 3000, operation));
        paused.Wait();
        const ChildEnd second = Write(1, 'b', 3000);
        EXPECT_EQ(second.code, 0U);
        EXPECT_EQ(second.output.substr(0, 19), "Access was denied: ");
        EXPECT_EQ(CountRefusals(second.output, "207"), 1U);
        go.Set();
        EXPECT_EQ(first.Wait().output, "");
        ASSERT_EQ(Messages().size(), before + 1);
        EXPECT_EQ(Messages().back(), std::string(3000, 'a'));
    }
}

TEST_F(LogOfProcesses, NeverMixesTheBlocksOfTwoWriters)
{
    constexpr int count = 200;
    const ChildProcess first(Writer(count, 'a', 3000));
    const ChildProcess second(Writer(count, 'b', 3000));
    const size_t refused = CountRefusals(first.Wait().output, "207") + CountRefusals(second.Wait().output, "207");
    const Texts messages = Messages();
    EXPECT_EQ(messages.size() + refused, size_t{2} * count);
    for (const std::string& message : messages)
        EXPECT_TRUE(message == std::string(3000, 'a') || message == std::string(3000, 'b')) << message;
}

TEST_F(LogOfProcesses, TellsAFailedClosingWith209AndWritesTheNextBlock)
{
    const ChildEnd end = Write(2, 'a', 10, "refuse 1");
    EXPECT_EQ(end.code, 0U);
    EXPECT_EQ(end.output.substr(0, 18), "The disk is full: ");
    EXPECT_EQ(CountRefusals(end.output, "209"), 1U);
    EXPECT_EQ(Messages(), Texts(2, std::string(10, 'a')));
}
