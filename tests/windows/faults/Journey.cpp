#include "Journey.h"

#include "commandline/WholeFile.h"
#include "environment/ClytException.h"
#include "lyt64.h"
#include "lytcall/Commands.h"
#include "lytcall/Session.h"
#include "native/FaultPlan.h"
#include "native/MemoryWindows.h"
#include "native/PartnerLibraries.h"
#include "tree/ClytWizardQueue.h"
#include "windows/dialogs/CreationHook.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <utility>

namespace fs = std::filesystem;

namespace
{

// An export as lytcall finds it: what happens inside is the work of the program under test.
template <auto FUNCTION>
struct Export;
template <class RESULT, class... ARGUMENTS, RESULT (*FUNCTION)(ARGUMENTS...)>
struct Export<FUNCTION>
{
    static RESULT Call(ARGUMENTS... arguments)
    {
        const platform::ProgramAtWork working;
        return FUNCTION(arguments...);
    }
    static void Add(const char* name) { platform::AddFunction("lyt64", name, Call); }
};

void WatchExports()
{
    Export<lytInitialiseEnvironment>::Add("lytInitialiseEnvironment");
    Export<lytSetDialogDefine>::Add("lytSetDialogDefine");
    Export<lytGetInitializationPath>::Add("lytGetInitializationPath");
    Export<lytGetCurrentDocName>::Add("lytGetCurrentDocName");
    Export<lytSymbolPropertyDialog>::Add("lytSymbolPropertyDialog");
    Export<lytPhrasePropertyDialog>::Add("lytPhrasePropertyDialog");
    Export<lytGroupPropertyDialog>::Add("lytGroupPropertyDialog");
    Export<lytOpenTreeView>::Add("lytOpenTreeView");
    Export<lytOpenTreeView>::Add("lytOpenTreeViewPara");
    Export<lytGetSymbolfromTree>::Add("lytGetSymbolfromTree");
    Export<lytTreeStartChildNode>::Add("lytTreeStartChildNode");
    Export<lytTreeReadChildNode>::Add("lytTreeReadChildNode");
    Export<lytGetTextForKey>::Add("lytGetTextForKey");
    Export<lytGetTextFromIniFile>::Add("lytGetTextFromIniFile");
    Export<lytListFromIniStart>::Add("lytListFromIniStart");
    Export<lytListFromIniNext>::Add("lytListFromIniNext");
    Export<lytWriteToLogFile>::Add("lytWriteToLogFile");
    Export<lytWizard>::Add("lytWizard");
}

std::string ContentOf(const std::string& file)
{
    std::ostringstream content;
    content << std::ifstream(file, std::ios::binary).rdbuf();
    return content.str();
}

std::vector<Journey> ReadJourneys()
{
    std::vector<Journey> journeys;
    std::ifstream calls(LYT_CALLS);
    for (std::string line; std::getline(calls, line);)
    {
        std::istringstream words(line);
        Journey journey;
        std::getline(words, journey.name, '\t');
        for (std::string word; std::getline(words, word, '\t');)
            journey.words.push_back(word);
        journeys.push_back(journey);
    }
    return journeys;
}

// What a C function prints goes into a text while it lives.
class Print
{
public:
    Print() : m_stream(open_memstream(&m_text, &m_length)), m_before(std::exchange(stdout, m_stream.get())) {}
    Print(const Print&) = delete;
    Print& operator=(const Print&) = delete;
    ~Print()
    {
        stdout = m_before;
        m_stream.reset();
        std::free(m_text);
    }

    std::string Text()
    {
        std::fflush(m_stream.get());
        return {m_text, m_length};
    }

private:
    char* m_text = nullptr;
    size_t m_length = 0;
    commandline::OwnedFile m_stream;
    std::FILE* m_before;
};

// Hears every message that is shown.
CreationHook HearMessages(std::vector<std::string>& messages)
{
    constexpr UINT_PTR messageTextId = 0xFFFF;
    return CreationHook(
        [&messages](const CREATESTRUCTA& create)
        {
            if (create.hMenu == reinterpret_cast<HMENU>(messageTextId))
                messages.emplace_back(create.lpszName);
            return true;
        });
}

void Call(const Journey& journey, Course& course)
{
    Print print;
    try
    {
        std::vector<std::string> words = {"--document", "inspection.doc", "--limit", "1"};
        words.insert(words.end(), journey.words.begin(), journey.words.end());
        const lytcall::Request request = commandline::ReadCommandLine(lytcall::TheProgram(), words);
        const lytcall::Session session(request);
        lytcall::RunCommand(session);
    }
    catch (CException* e)
    {
        course.raised = lytMessageOf(*e).GetString();
        e->Delete();
    }
    catch (const lytcall::CallError& e)
    {
        course.printed = e.what();
    }
    catch (const std::exception& e)
    {
        course.raised = e.what();
    }
    course.printed = print.Text() + course.printed;
}

} // namespace

const std::vector<Journey>& Journeys()
{
    static const std::vector<Journey> journeys = ReadJourneys();
    return journeys;
}

std::string Described(const Course& course)
{
    std::string text = course.printed;
    for (const std::string& message : course.messages)
        text += "message: " + message + "\n";
    return text + "raised: " + course.raised + "\n";
}

Course Travel(const Journey& journey)
{
    static const bool isWatched = (WatchExports(), true);
    static_cast<void>(isWatched);
    // A caller that stops early leaves texts of the wizard.
    while (lytWizardQueue.IsPending())
        lytWizardQueue.Deliver();
    fs::remove("inspection.log");

    Course course;
    const CreationHook hook = HearMessages(course.messages);
    Call(journey, course);
    platform::TakeStarvedRuns();
    course.printed += ContentOf("inspection.log");
    return course;
}
