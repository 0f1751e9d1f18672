// way-out: from every state that a user reaches in a dialog, however its rules fail, Cancel closes it.
#include "Cases.h"

#include "lyt64.h"

#include "commandline/CommandLine.h"
#include "robot/ActingUser.h"
#include "support/Library.h"
#include "support/NumberedTexts.h"
#include "support/TestFolder.h"

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>

namespace
{

namespace fs = std::filesystem;

const commandline::ProgramForm& TheProgram()
{
    static const commandline::ProgramForm form = {
        "way-out",
        "way-out opens dialogs whose rules fail, acts in them at random, and leaves them by Cancel.",
        {
            {"run", "", 0, 0, "play cases; of each that fails the description and the acts are printed"},
            {"show", "NUMBER", 1, 1, "print the case of this number"},
            {"help", "", 0, 0, "this text"},
        },
        {
            {"--count", "N", true, "how many cases (default 1000)"},
            {"--from", "N", true, "the number of the first (default 0)"},
            {"--shrink", nullptr, false, "leave out of a case that fails what it also fails without"},
            {"--help", nullptr, false, "print this text"},
        },
        "",
    };
    return form;
}

std::string ReadFile(const fs::path& name)
{
    std::ifstream file(name, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string Texts()
{
    return "[TEXTS]\nLABEL=&Label\nTITLE=A title\n[Buttons]\n001=OK\n002=Cancel\n[MsgBox]\nREFUSED=refused\n" +
           NumberedTexts();
}

class Campaign
{
public:
    Campaign()
    {
        m_folder.Write("lyt.ini", "[global]\r\nCurrent Language=Test\r\n");
        m_folder.Write("lang/Test.nls", Texts());
        for (const char* name : {"finding", "lytCdGrp", "lytInPhr", "lytInSym", "lytRpGrp"})
            m_samples.push_back(
                ReadFile(fs::path(ProgramFolder()) / "samples" / "dialogs" / (name + std::string(".dlg"))));
        Call<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")("doc", m_folder.Path().c_str(),
                                                                             m_folder.Path().c_str());
    }

    // True when the user got out of every dialog.
    bool Run(unsigned from, unsigned count, bool shrinks);
    void Show(unsigned number) const { Print(CaseOf(number, m_samples)); }

private:
    // Empty, or why a user despairs.
    std::string Play(const Case& played);
    Case Shrunk(Case failing);
    static void Print(const Case& shown)
    {
        std::printf("input: %s\nacts: %s\nleaving: %s\n%s---- nested.dlg\n%s", shown.input.c_str(), shown.acts.c_str(),
                    shown.leaving.c_str(), shown.description.c_str(), shown.nested.c_str());
    }

    TestFolder m_folder;
    std::vector<std::string> m_samples;
    size_t m_messages = 0;
};

bool Campaign::Run(unsigned from, unsigned count, bool shrinks)
{
    unsigned failures = 0;
    for (unsigned number = from; number < from + count; ++number)
    {
        // Is seen in the output when a case ends the process, or does not end.
        std::printf("case %u", number);
        std::fflush(stdout);
        const Case made = CaseOf(number, m_samples);
        const std::string despair = Play(made);
        std::printf("%s\n", despair.empty() ? "" : (" FAILED: " + despair).c_str());
        if (despair.empty())
            continue;
        ++failures;
        Print(shrinks ? Shrunk(made) : made);
    }
    std::printf("%u cases, %zu messages, %u failures\n", count, m_messages, failures);
    return failures == 0;
}

std::string Campaign::Play(const Case& played)
{
    m_folder.Write("lytInSym.dlg", played.description);
    m_folder.Write("nested.dlg", played.nested);
    const robot::ActingUser user(played.acts, {played.leaving});
    GuardedBuffer buffer(255);
    Call<decltype(lytSymbolPropertyDialog)>("lytSymbolPropertyDialog")(played.input.c_str(), buffer.Data(),
                                                                       buffer.Size());
    m_messages += user.Messages().size();
    if (user.Despair().empty())
        return "";
    // The last messages tell more than the one that was too many.
    std::string despair = user.Despair() + "; messages:";
    const std::vector<std::string>& messages = user.Messages();
    for (size_t index = messages.size() - std::min<size_t>(messages.size(), 6); index < messages.size(); ++index)
        despair += " " + messages[index].substr(0, messages[index].find('\n')) + ";";
    return despair;
}

// Without a line or a word at a time, as long as it fails in the same way.
Case Campaign::Shrunk(Case failing)
{
    const std::string despair = Play(failing);
    const auto leaveOut = [&](std::string Case::*text, char end)
    {
        for (size_t place = 0; place < (failing.*text).size();)
        {
            Case smaller = failing;
            std::string& whole = smaller.*text;
            const size_t next = std::min(whole.find(end, place), whole.size() - 1) + 1;
            whole.erase(place, next - place);
            if (Play(smaller) != despair)
                place = next;
            else
                failing = smaller;
        }
    };
    for (int round = 0; round < 2; ++round)
    {
        leaveOut(&Case::acts, ' ');
        leaveOut(&Case::description, '\n');
        leaveOut(&Case::nested, '\n');
    }
    return failing;
}

int Run(const commandline::Request& request)
{
    Campaign campaign;
    if (request.command == "run")
        return campaign.Run(static_cast<unsigned>(request.Number("--from", 0)),
                            static_cast<unsigned>(request.Number("--count", 1000)), request.Has("--shrink"))
                   ? 0
                   : 1;
    if (request.command == "show")
        campaign.Show(static_cast<unsigned>(std::stoul(request.Operand(0, "0"))));
    else
        std::printf("%s", commandline::HelpText(TheProgram()).c_str());
    return 0;
}

} // namespace

int main(int count, char** words)
{
    try
    {
        return Run(commandline::ReadCommandLine(TheProgram(), {words + 1, words + count}));
    }
    catch (const std::exception& error)
    {
        std::fprintf(stderr, "way-out: %s\n", error.what());
        return 2;
    }
}
