#include "lytcall/Commands.h"
#include "lytcall/Session.h"

#include "commandline/Text.h"

#include <algorithm>
#include <cstdio>

namespace lytcall
{

using commandline::PrintNumber;
using commandline::PrintText;

namespace
{

// The shapes that the library's functions have.
using TextFunction = int __stdcall(char*, int);
using KeyFunction = int __stdcall(const char*, char*, int);
using GroupFunction = int __stdcall(int, const char*, char*, int, char*, int);
using TextForKeyFunction = int __stdcall(const char*, const char*, const char*, char*, int);
using StartFunction = int __stdcall(const char*);
using PairFunction = int __stdcall(char*, int, char*, int);
using LogFunction = void __stdcall(const char*, int);

const char* MeaningOf(int result)
{
    static const char* const meanings[] = {"not confirmed", "changed", "unchanged"};
    return result >= 0 && result <= 2 ? meanings[result] : "";
}

const char* WizardMeaningOf(int result)
{
    static const char* const meanings[] = {"the end", "a text of a group, more to come", "a symbol", "a phrase"};
    return result >= 0 && result <= 3 ? meanings[result] : "";
}

// ---- Dialogs

constexpr const char* findingsKey =
    "F-002REPfindings(Findings;R;roofing;Team North;101 Hall|102 Kitchen;Xroof|Xcellar;PC75;DIN 18338;;"
    "Cracks in the plaster; medium; north wall|Damp patch; severe)";

int CallPropertyDialog(const Session& session, const char* function, const char* defaultKey)
{
    const std::string key = session.Asked().Operand(0, defaultKey);
    std::vector<char> buffer = session.Buffer("--size");
    PrintText("key", key);
    const int result = session.WithWindows(
        [&] {
            return session.Library().Find<KeyFunction>(function)(key.c_str(), buffer.data(), session.SizeOf("--size"));
        });
    PrintNumber("result", result, MeaningOf(result));
    PrintText("text", buffer.data());
    return result;
}

int RunSymbol(const Session& session)
{
    return CallPropertyDialog(session, "lytSymbolPropertyDialog", "S1:area(2,kWh/(m2a))=\"n. a.\"");
}

int RunPhrase(const Session& session)
{
    return CallPropertyDialog(session, "lytPhrasePropertyDialog", "P1{roof.tiles}see plan 4[three|north]");
}

int RunGroup(const Session& session)
{
    const int kind = session.Asked().Number("--kind", 1);
    const std::string key = session.Asked().Operand(0, kind == 0 ? "F-001BNG(area>=20)" : findingsKey);
    std::vector<char> first = session.Buffer("--size");
    std::vector<char> second = session.Buffer("--second-size");
    PrintNumber("kind", kind);
    PrintText("key", key);
    const int result = session.WithWindows(
        [&]
        {
            return session.Library().Find<GroupFunction>("lytGroupPropertyDialog")(
                kind, key.c_str(), first.data(), session.SizeOf("--size"), second.data(),
                session.SizeOf("--second-size"));
        });
    PrintNumber("result", result, MeaningOf(result));
    PrintText("first", first.data());
    PrintText("second", second.data());
    return result;
}

int RunWizard(const Session& session)
{
    std::vector<char> buffer = session.Buffer("--size");
    bool delivered = false;
    int result = 1;
    // The windows belong to the first call; the others deliver what it left.
    const auto callOnce = [&]
    {
        std::ranges::fill(buffer, '\0');
        result = session.Library().Find<TextFunction>("lytWizard")(buffer.data(), session.SizeOf("--size"));
        PrintNumber("result", result, WizardMeaningOf(result));
        PrintText("text", buffer.data());
        delivered = delivered || result != 0;
        return result;
    };
    session.WithWindows(callOnce);
    while (result == 1)
        callOnce();
    return delivered ? 1 : 0;
}

// ---- Catalogue

int OpenTree(const Session& session, const std::string& request, std::vector<char>& buffer)
{
    const char* function = session.Asked().Has("--para") ? "lytOpenTreeViewPara" : "lytOpenTreeView";
    PrintText("request", request);
    const int result = session.WithWindows(
        [&] {
            return session.Library().Find<KeyFunction>(function)(request.c_str(), buffer.data(),
                                                                 session.SizeOf("--size"));
        });
    PrintNumber("result", result, result == 1 ? "confirmed" : "not confirmed");
    PrintText("choice", buffer.data());
    return result;
}

int RunTree(const Session& session)
{
    std::vector<char> buffer = session.Buffer("--size");
    return OpenTree(session, session.Asked().Operand(0, "S"), buffer);
}

int RunChild(const Session& session)
{
    std::vector<char> text = session.Buffer("--size");
    std::vector<char> path = session.Buffer("--second-size");
    // The pair walks the list that a catalogue window has left.
    if (OpenTree(session, session.Asked().Operand(1, "S"), text) != 1)
        return 0;
    const std::string key = session.Asked().Operand(0, "");
    PrintText("key", key);
    const int started = session.Library().Find<StartFunction>("lytTreeStartChildNode")(key.c_str());
    PrintNumber("started", started);
    while (started != 0 &&
           session.Library().Find<PairFunction>("lytTreeReadChildNode")(
               text.data(), session.SizeOf("--size"), path.data(), session.SizeOf("--second-size")) == 1)
    {
        PrintText("text", text.data());
        PrintText("path", path.data());
    }
    return started;
}

int RunFind(const Session& session)
{
    std::vector<char> buffer = session.Buffer("--size");
    const std::string key = session.Asked().Operand(0, "");
    const int result = session.Library().Find<KeyFunction>("lytGetSymbolfromTree")(key.c_str(), buffer.data(),
                                                                                   session.SizeOf("--size"));
    PrintNumber("result", result, result == 1 ? "found" : "not found");
    PrintText("key", buffer.data());
    return result;
}

// ---- Texts

int RunText(const Session& session)
{
    std::vector<char> buffer = session.Buffer("--size");
    const Request& asked = session.Asked();
    const int result = session.Library().Find<TextForKeyFunction>("lytGetTextForKey")(
        asked.Operand(0, "").c_str(), asked.Operand(1, "").c_str(), asked.Operand(2, "").c_str(), buffer.data(),
        session.SizeOf("--size"));
    PrintNumber("result", result, result == 1 ? "found" : "not found");
    PrintText("text", buffer.data());
    return result;
}

int RunIni(const Session& session)
{
    std::vector<char> buffer = session.Buffer("--size");
    const std::string path = session.Asked().Operand(0, "");
    const int result = session.WithWindows(
        [&]
        {
            return session.Library().Find<KeyFunction>("lytGetTextFromIniFile")(path.c_str(), buffer.data(),
                                                                                session.SizeOf("--size"));
        });
    PrintNumber("result", result);
    PrintText("value", buffer.data());
    return result;
}

int RunList(const Session& session)
{
    std::vector<char> value = session.Buffer("--size");
    std::vector<char> display = session.Buffer("--size");
    const int result =
        session.Library().Find<StartFunction>("lytListFromIniStart")(session.Asked().Operand(0, "").c_str());
    PrintNumber("result", result);
    while (session.Library().Find<PairFunction>("lytListFromIniNext")(value.data(), session.SizeOf("--size"),
                                                                      display.data(), session.SizeOf("--size")) == 1)
        PrintText("item", value.data());
    return result;
}

int RunLog(const Session& session)
{
    const int level = session.Asked().Number("--level", 1);
    session.Library().Find<LogFunction>("lytWriteToLogFile")(session.Asked().Operand(0, "").c_str(), level);
    PrintNumber("level", level);
    return 1;
}

// ---- Environment

int PrintStoredText(const Session& session, const char* function)
{
    std::vector<char> buffer = session.Buffer("--size");
    const int result = session.Library().Find<TextFunction>(function)(buffer.data(), session.SizeOf("--size"));
    PrintNumber("result", result);
    PrintText("text", buffer.data());
    return result;
}

int RunPath(const Session& session)
{
    return PrintStoredText(session, "lytGetInitializationPath");
}

int RunDoc(const Session& session)
{
    return PrintStoredText(session, "lytGetCurrentDocName");
}

} // namespace

int RunCommand(const Session& session)
{
    static const struct
    {
        const char* word;
        int (*run)(const Session&);
    } commands[] = {
        {"symbol", RunSymbol}, {"phrase", RunPhrase}, {"group", RunGroup}, {"wizard", RunWizard}, {"tree", RunTree},
        {"child", RunChild},   {"find", RunFind},     {"text", RunText},   {"ini", RunIni},       {"list", RunList},
        {"log", RunLog},       {"report", RunReport}, {"path", RunPath},   {"doc", RunDoc},
    };
    return std::ranges::find_if(commands, [&](const auto& known) { return session.Asked().command == known.word; })
        ->run(session);
}

} // namespace lytcall
