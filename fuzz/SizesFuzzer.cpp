// Hands the exports that give texts buffers of any size.
#include "fuzz/frame/Attempt.h"
#include "fuzz/frame/Fuzzer.h"
#include "fuzz/frame/InputText.h"
#include "fuzz/frame/Partners.h"
#include "fuzz/frame/Stage.h"

#include "lyt64.h"

#include <algorithm>

namespace
{
namespace sizes_fuzzer
{

constexpr int mostBytes = 2'000;

void AskForTexts(const std::string& path, const std::string& argument, const Room& room)
{
    const size_t slash = std::min(path.find('/'), path.size());
    const std::string section = path.substr(0, slash);
    const std::string key = path.substr(std::min(slash + 1, path.size()));
    lytGetTextForKey(section.c_str(), key.c_str(), argument.c_str(), room.Data(), room.Size());
    lytGetTextFromIniFile(path.c_str(), room.Data(), room.Size());
}

// Both texts get one byte more than they say, which the function may write.
void AskForItems(const std::string& path, int size, int otherSize)
{
    const Room value(size, 1);
    const Room display(otherSize, 1);
    lytListFromIniStart(path.c_str());
    while (lytListFromIniNext(value.Data(), value.Size(), display.Data(), display.Size()) == 1)
        continue;
}

void AskForNodes(const std::string& key, const Room& label, const Room& path)
{
    lytGetSymbolfromTree(key.c_str(), label.Data(), label.Size());
    lytTreeStartChildNode(key.c_str());
    while (lytTreeReadChildNode(label.Data(), label.Size(), path.Data(), path.Size()) == 1)
        continue;
}

void Run(const std::string& input)
{
    const Stage stage;
    InputText lines(input);
    const int size = lines.Number(-1, mostBytes);
    const int otherSize = lines.Number(-1, mostBytes);
    const int level = lines.Number();
    // The log of a document without a dot in its name would be outside the stage.
    const std::string name = lines.Line();
    const std::string document = std::string(stageFolder) + "/" + name.substr(0, name.find('\0')) + ".doc";
    const std::string path = lines.Line();
    const std::string argument = lines.Line();
    stage.PutFile("lyt.ini", "[global]\nCurrent Language=Test\n" + lines.Rest());
    stage.PutFile("lang/Test.nls", lines.Rest());
    SetCatalogue(lines.Rest());

    const Room room(size);
    lytInitialiseEnvironment(document.c_str(), stageFolder, stageFolder);
    lytGetCurrentDocName(room.Data(), room.Size());
    lytGetInitializationPath(room.Data(), room.Size());
    CallAsUserActs("", [&] { AskForTexts(path, argument, room); });
    Attempt([&] { AskForItems(path, size, otherSize); });
    Attempt([&] { AskForNodes(argument, room, Room(otherSize)); });
    Attempt([&] { lytWriteToLogFile(argument.c_str(), level); });
}

std::vector<std::string> Seeds()
{
    return {
        "20\n10\n1\nplan.doc\nLists/Items\nb.r\n[LogLevel]\nlevel=1\n[Lists]\nItems=one,two,,three\n",
        "5\n4\n0\n\nDialog_Error/212\n12\n[Dialog_Error]\n212=Line '' is wrong\n",
        "0\n-1\n9\nx.y\nnone\nArea\n01Building\tb\n12Roof\tb.r\n23Area\tb.r.a\n",
    };
}

} // namespace sizes_fuzzer
} // namespace

const Fuzzer sizesFuzzer = {"sizes", "two sizes; log level; document; section/key; argument; lyt.ini and catalogue",
                            sizes_fuzzer::Run, sizes_fuzzer::Seeds};
