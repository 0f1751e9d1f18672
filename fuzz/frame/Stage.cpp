#include "fuzz/frame/Stage.h"

#include "environment/ErrorTable.h"
#include "environment/ProcessState.h"
#include "fuzz/frame/Attempt.h"
#include "fuzz/frame/Despair.h"
#include "fuzz/frame/Partners.h"
#include "native/MemoryFiles.h"
#include "robot/ActingUser.h"

#include "lyt64.h"

#include <algorithm>

namespace
{

constexpr const char* configuration = "[global]\nCurrent Language=Test\nTreeLevels=2\n[LogLevel]\nlevel=1\n"
                                      "[Lists]\nItems=one,two,,three\n";
// Every numbered message names its number.
std::string Texts()
{
    std::string texts = "[x]\nTitle=A title\nLabel=&Label ''\nMessage=No ''\n[Dialog_Error]\n";
    for (const ClytErrorRow& error : lytErrors)
        texts += std::string(error.number) + "=E" + error.number + " ''\n";
    return texts;
}

} // namespace

Stage::Stage()
{
    PutFile("lyt.ini", configuration);
    static const std::string texts = Texts();
    PutFile("lang/Test.nls", texts);
    SetCatalogue("");
    lytInitialiseEnvironment("memory:\\document.txt", stageFolder, stageFolder);
    lytTreeConfirmCount = 0;
}

Stage::~Stage()
{
    FreeGlobalObject();
    platform::RemoveMemoryFiles();
}

void Stage::PutFile(const std::string& name, const std::string& content) const
{
    platform::PutMemoryFile((std::string(stageFolder) + "/" + name).c_str(), content);
}

void Stage::PutDescription(const std::string& name, const std::string& content) const
{
    PutFile(name, content);
    PutFile("nested.dlg", content);
}

Room::Room(int size, int beyond)
    : m_size(size), m_bytes(std::make_unique<char[]>(static_cast<size_t>(std::max(size + beyond, 0))))
{
}

void CallAsUserActs(const std::string& acts, const std::function<void()>& call)
{
    const FillsAreActs fills;
    const robot::ActingUser user(acts, {"o", "x"});
    Attempt(call);
    DemandNone(user.Despair());
}
