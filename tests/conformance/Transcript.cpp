#include "Transcript.h"

#include "Acts.h"

#include <fstream>
#include <map>
#include <stdexcept>
#include <vector>

namespace
{

struct StageLines
{
    std::string title;
    std::vector<std::string> preparations;
    std::vector<std::string> acts;
};

std::vector<StageLines> ReadStages(const std::string& path)
{
    std::ifstream file(path);
    if (!file)
        throw std::runtime_error("cannot read " + path);
    std::vector<StageLines> stages;
    for (std::string line; std::getline(file, line);)
    {
        if (line.starts_with("## "))
            stages.push_back({line.substr(3), {}, {}});
        else if (line.starts_with(": "))
            stages.back().preparations.push_back(line.substr(2));
        else if (line.starts_with("# "))
            stages.back().acts.push_back(line.substr(2));
    }
    return stages;
}

class PreparedStage
{
public:
    explicit PreparedStage(const StageLines& lines) : m_stage(lines.title)
    {
        for (const std::string& line : lines.preparations)
        {
            Prepare(line);
            m_stage.Note(": " + line);
        }
        for (const std::string& line : lines.acts)
        {
            m_stage.Act(line, ReadActs(m_stage, line));
            for (const auto& look : m_looks)
                m_stage.Look(look);
        }
    }

    void Work()
    {
        m_stage.Run();
        if (m_end)
            m_end();
    }

private:
    void Prepare(const std::string& line)
    {
        Words words(m_stage, line);
        const std::string word = words.Word();
        if (word == "after")
            m_looks.push_back(ReadActs(m_stage, words.Rest()));
        else if (word == "opening")
            m_stage.onOpen = ReadActs(m_stage, words.Rest());
        else if (word == "finally")
            m_end = ReadActs(m_stage, words.Rest());
        else if (word == "on")
        {
            const int id = words.Number();
            m_stage.onClick[id] = ReadActs(m_stage, words.Rest());
        }
        else
            AddControl(word, words);
    }

    // Buttons bring their texts; a label and a group box are named after their kinds.
    void AddControl(const std::string& kind, Words& words)
    {
        static const std::map<std::string, DWORD, std::less<>> buttons = {
            {"button", BS_PUSHBUTTON},
            {"check", BS_AUTOCHECKBOX},
            {"option", BS_AUTORADIOBUTTON},
            {"first-option", BS_AUTORADIOBUTTON | WS_GROUP},
        };
        using Adding = void (*)(Stage & stage, int id);
        static const std::map<std::string, Adding, std::less<>> others = {
            {"ok", [](Stage& stage, int /*id*/) { stage.Ok(); }},
            {"cancel", [](Stage& stage, int /*id*/) { stage.Cancel(); }},
            {"label", [](Stage& stage, int id) { stage.Static(id, "&Label"); }},
            {"box", [](Stage& stage, int id) { stage.Add<CButton>(id, "Button", "&Box", BS_GROUPBOX | WS_GROUP); }},
            {"edit", [](Stage& stage, int id) { stage.Edit(id); }},
            {"list", [](Stage& stage, int id) { stage.List(id); }},
            {"check-list", [](Stage& stage, int id) { stage.CheckList(id); }},
            {"drop-down-list", [](Stage& stage, int id) { stage.Combo(id, CBS_DROPDOWNLIST); }},
            {"combo-box", [](Stage& stage, int id) { stage.Combo(id, CBS_DROPDOWN | CBS_AUTOHSCROLL); }},
            {"tree", [](Stage& stage, int id) { stage.Tree(id); }},
        };
        const int id = words.AtEnd() ? 0 : words.Number();
        if (const auto button = buttons.find(kind); button != buttons.end())
            m_stage.Button(id, words.Rest(), button->second);
        else if (const auto other = others.find(kind); other != others.end())
            other->second(m_stage, id);
        else
            throw std::runtime_error("no kind of control: " + kind);
    }

    Stage m_stage;
    std::vector<std::function<void()>> m_looks; // after each act
    std::function<void()> m_end;
};

} // namespace

void WorkTranscript(const std::string& path, const std::string& title)
{
    for (const StageLines& lines : ReadStages(path))
    {
        if (title.empty() || lines.title == title)
            PreparedStage(lines).Work();
    }
}
