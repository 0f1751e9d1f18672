// The sample dialogs, worked by generated sequences of acts: keys, letters, clicks, choices. A sequence follows from its
// number and from what the windows show, so where two kinds of windows show the same it is the same on both.
#include "Stage.h"

#include "base/PartnerLibrary.h"
#include "dialog/ClytDialog.h"
#include "environment/ClytEnvironment.h"
#include "environment/ProcessState.h"
#include "support/Dice.h"
#include "tree/ClytNode.h"

#include <regex>

namespace
{

struct Sample
{
    const char* file;
    const char* input;
    // The dialog that scans what this one composes, and then composes the same again as long as the user has entered no
    // separator of its scan. None scans what the group's wizard composes: it is handed out in pieces.
    const char* scanner;
};

constexpr Sample samples[] = {
    {"lytInSym", "S1:area(2,kWh/(m2a))=\"n. a.\"", "lytInSym"},
    {"lytInSym", "", "lytInSym"},
    {"lytInPhr", "P1{roof.tiles}see plan 4[three|north]", "lytInPhr"},
    {"lytInPhr", "P1{date}", "lytInPhr"},
    {"lytCdGrp", "(area>=20)", "lytCdGrp"},
    {"lytCdGrp", "()", "lytCdGrp"},
    {"lytRpGrp",
     "(Findings;R;roofing;Team North;101 Hall|102 Kitchen;Xroof|Xcellar;PC75;DIN 18338;;Cracks; medium; wall)",
     "lytRpGrp"},
    {"lytRpGrp", "", "lytRpGrp"},
    {"finding", "Cracks in the plaster; severe; north wall", "finding"},
    {"finding", "", "finding"},
    {"lytWzSym", "roof.tiles.area/Area", "lytInSym"},
    {"lytWzPhr", "Walls", "lytInPhr"},
    {"lytWzGrp", "site.access.path.paving/Paving", nullptr},
};

// What a dialog composes from values without separators comes back when it is scanned, but for these texts.
struct Loss
{
    const char* file;
    const char* texts; // a regular expression
    const char* reason;
};

constexpr Loss losses[] = {
    {"lytInPhr", "^P1\\{date\\}", "this phrase brings its texts along"},
    {"lytRpGrp", "[;|]-[a-z]", "a part without its mark is not listed again"},
    {"lytRpGrp", "[P-]C;", "an empty rate leaves the preset one"},
};

const char* ReasonOfLoss(const Sample& sample, const std::string& composed)
{
    for (const Loss& loss : losses)
    {
        if (std::string(loss.file) == sample.scanner && std::regex_search(composed, std::regex(loss.texts)))
            return loss.reason;
    }
    return "?";
}

// The catalogue that a sample asks for is another dialog: nobody confirms it here.
int AnswerNothing(const char* /*parameter*/, char* /*text*/, int /*size*/)
{
    lytTreeResult = 0;
    return 0;
}

class NoCatalogue : public ClytOwnLibraries
{
public:
    HMODULE Load(const char* name) override
    {
        return CString(name).CompareNoCase("lyt64.dll") == 0 ? m_handle : nullptr;
    }
    bool Owns(HMODULE library) const override { return library == m_handle; }
    FARPROC Find(HMODULE /*library*/, const char* /*function*/) override
    {
        return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(AnswerNothing));
    }

private:
    HMODULE m_handle = reinterpret_cast<HMODULE>(this);
};

bool IsClass(HWND window, const char* name)
{
    return robot::ClassOf(window) == name;
}

bool IsList(HWND window)
{
    return IsClass(window, "ListBox") || IsClass(window, "ComboBox");
}

bool IsInReach(HWND window)
{
    return IsWindowVisible(window) != FALSE && IsWindowEnabled(window) != FALSE;
}

std::string StateOf(HWND child)
{
    std::string text = robot::ClassOf(child) + " '" + robot::TextOf(child) + "'";
    text += IsWindowEnabled(child) != FALSE ? "" : " disabled";
    text += IsWindowVisible(child) != FALSE ? "" : " hidden";
    if (IsClass(child, "Button"))
        text += " " + std::to_string(SendMessageA(child, BM_GETCHECK, 0, 0));
    if (!IsList(child))
        return text;
    text += " " + std::to_string(robot::SelectedItemOf(child)) + " of";
    for (const std::string& item : robot::ItemsOf(child))
        text += " '" + item + "'";
    return text;
}

// What a dialog shows, line by line; the children go by their order.
std::vector<std::string> LinesOf(HWND dialog)
{
    if (robot::IsMessageBox(dialog))
        return {"message '" + robot::MessageTextOf(dialog) + "'"};
    std::vector<std::string> lines = {"dialog '" + robot::TextOf(dialog) + "'"};
    std::string focus = GetFocus() == dialog ? "dialog" : "none";
    for (HWND child : robot::ChildrenOf(dialog))
    {
        if (child == GetFocus() || IsChild(child, GetFocus()))
            focus = std::to_string(lines.size());
        lines.push_back(StateOf(child));
    }
    lines.push_back("focus " + focus);
    return lines;
}

ClytDialog DialogOf(const char* file, const std::string& input)
{
    lytInputKey = input.c_str();
    lytCommandSeen = 0;
    return {lytEnvironment.GetDescriptionFile(CString(file) + ".dlg"), CString()};
}

class Sequence
{
public:
    Sequence(unsigned number, bool isShown)
        : m_number(number),
          m_isShown(isShown),
          m_isPlain(number / std::size(samples) % 2 == 0),
          m_sample(samples[number % std::size(samples)]),
          m_dice(number)
    {
    }

    void Run()
    {
        lytWizardGroup.Empty();
        ClytDialog dialog = DialogOf(m_sample.file, m_sample.input);
        for (size_t acts = 2 + m_dice.Below(12); acts > 0; --acts)
            Step([this] { Act(robot::ActiveDialog()); });
        // Then all is confirmed, and what is not is cancelled.
        for (const int button : {IDOK, IDOK, IDCANCEL, IDCANCEL, IDCANCEL, IDCANCEL})
            Step([this, button] { Press(robot::ActiveDialog(), button); });
        m_isConfirmed = dialog.DoModal() == IDOK;
        m_hasGivenUp = m_robot.HasGivenUp();
        m_result = dialog.GetResult().GetString();
        m_digest.Add(m_result);
    }

    // Number, dialog, digest, and what it came to.
    std::string Line() const
    {
        char digest[17];
        std::snprintf(digest, sizeof digest, "%016llx", static_cast<unsigned long long>(m_digest.Value()));
        const std::string head = std::to_string(m_number) + " " + m_sample.file + " " + digest + " ";
        return head + (m_hasGivenUp ? "given up" : m_isConfirmed ? "'" + m_result + "'" : "cancelled");
    }
    // Empty, or what is lost when the text is scanned, why.
    std::string Lost() const
    {
        if (!m_isConfirmed || !m_isPlain || m_sample.scanner == nullptr || Returns())
            return "";
        return std::string(", lost: ") + ReasonOfLoss(m_sample, m_result);
    }

private:
    bool Returns() const
    {
        ClytDialog dialog = DialogOf(m_sample.scanner, Placeholder(m_result));
        robot::Robot user;
        for (const int button : {IDOK, IDCANCEL})
            user.On("", [button](HWND top)
                    { robot::Press(GetDlgItem(top, robot::IsMessageBox(top) ? int{IDOK} : button)); });
        const bool isConfirmed = dialog.DoModal() == IDOK;
        return isConfirmed && Placeholder(dialog.GetResult().GetString()) == Placeholder(m_result);
    }
    // Without what goes to the macros.
    static std::string Placeholder(const std::string& composed)
    {
        const size_t end = composed.find(")/1");
        return end != std::string::npos ? composed.substr(0, end + 1) : composed;
    }

    void Step(std::function<void()> act)
    {
        m_robot.When(
            "act", [] { return robot::ActiveDialog() != nullptr; },
            [this, act = std::move(act)]
            {
                Look();
                act();
            });
    }

    void Look()
    {
        for (const std::string& line : LinesOf(robot::ActiveDialog()))
            Tell("  " + line);
    }

    void Tell(const std::string& line)
    {
        m_digest.Add(line);
        if (m_isShown)
            std::printf("%s\n", line.c_str());
    }

    void Press(HWND dialog, int button)
    {
        const bool isBox = robot::IsMessageBox(dialog);
        Tell(isBox ? "answer" : "press " + std::to_string(button));
        if (isBox)
        {
            robot::AnswerBox(dialog);
            return;
        }
        robot::BeginAct();
        robot::Press(GetDlgItem(dialog, button));
    }

    void Act(HWND dialog)
    {
        if (robot::IsMessageBox(dialog))
        {
            Press(dialog, IDOK);
            return;
        }
        robot::BeginAct();
        const std::vector<HWND> children = robot::ChildrenOf(dialog);
        const size_t place = m_dice.Below(children.size());
        using Doing = void (Sequence::*)(HWND);
        static constexpr Doing onChildren[] = {&Sequence::Focus,      &Sequence::Click,   &Sequence::Choose,
                                               &Sequence::Choose,     &Sequence::Replace, &Sequence::Replace,
                                               &Sequence::DoubleClick};
        static constexpr Doing onFocus[] = {&Sequence::StrikeKey, &Sequence::StrikeKey, &Sequence::TypeLetters,
                                            &Sequence::StrikeMnemonic};
        if (m_dice.Is(2))
        {
            (this->*m_dice.Of(onFocus))(dialog);
            return;
        }
        const Doing doing = m_dice.Of(onChildren);
        Tell("child " + std::to_string(place + 1));
        if (IsInReach(children[place]))
            (this->*doing)(children[place]);
    }

    void Focus(HWND child)
    {
        Tell("focus");
        if (!IsClass(child, "Static"))
            robot::Focus(child);
    }
    void Click(HWND child)
    {
        Tell("click");
        robot::Click(child);
    }
    void DoubleClick(HWND child)
    {
        Tell("double click");
        if (IsClass(child, "ListBox"))
            robot::DoubleClickAt(child, 5, 5 + static_cast<int>(m_dice.Below(40)));
    }
    void Choose(HWND child)
    {
        const size_t count = IsList(child) ? robot::ItemsOf(child).size() : 0;
        Tell("choose of " + std::to_string(count));
        if (count != 0)
            robot::SelectItem(child, static_cast<int>(m_dice.Below(count)));
        else if (IsClass(child, "Button"))
            robot::Press(child);
    }
    void Replace(HWND child)
    {
        static constexpr const char* plain[] = {"", "volume", "0", "3", "roof.slates", "two"};
        static constexpr const char* any[] = {"a;b", "x(y)", "\"q\"", "m|n", "n=,2", "}", " c "};
        const std::string text = m_isPlain ? m_dice.Of(plain) : m_dice.Of(any);
        Tell("replace by " + text);
        const bool isCombo = IsClass(child, "ComboBox") && GetWindow(child, GW_CHILD) != nullptr;
        if (IsClass(child, "Edit") || isCombo)
            robot::ReplaceText(child, text);
    }
    void StrikeKey(HWND /*dialog*/)
    {
        static constexpr UINT keys[] = {VK_TAB,  VK_TAB, VK_DOWN,  VK_UP,    VK_LEFT,   VK_RIGHT,
                                        VK_HOME, VK_END, VK_SPACE, VK_SPACE, VK_RETURN, VK_ESCAPE};
        const UINT key = m_dice.Of(keys);
        Tell("key " + std::to_string(key));
        robot::PressKey(key);
    }
    void TypeLetters(HWND /*dialog*/)
    {
        static constexpr const char* plain[] = {"a", "t", "5", "\b", "\b\b"};
        static constexpr const char* any[] = {";", "(b", ")", " ", "\\n"};
        const std::string text = m_isPlain ? m_dice.Of(plain) : m_dice.Of(any);
        Tell("type " + text);
        robot::TypeText(text);
    }
    void StrikeMnemonic(HWND /*dialog*/)
    {
        const char letter = static_cast<char>('a' + m_dice.Below(26));
        Tell(std::string("mnemonic ") + letter);
        robot::PressMnemonic(letter);
    }

    unsigned m_number;
    bool m_isShown;
    bool m_isPlain; // nothing is typed that a scan takes for a separator
    const Sample& m_sample;
    Dice m_dice;
    robot::Robot m_robot{20000};
    Digest m_digest;
    bool m_isConfirmed = false;
    bool m_hasGivenUp = false;
    std::string m_result;
};

std::string ProgramFolder()
{
    char path[MAX_PATH] = "";
    GetModuleFileNameA(nullptr, path, sizeof path);
    const std::string program = path;
    return program.substr(0, program.find_last_of("\\/"));
}

std::string LineOf(unsigned number, bool isShown)
{
    Sequence sequence(number, isShown);
    sequence.Run();
    lytDeleteNodes();
    return sequence.Line() + sequence.Lost();
}

} // namespace

void Generated(unsigned begin, unsigned end, bool isShown)
{
    const std::string folder = ProgramFolder() + "\\samples";
    lytEnvironment.SetDialogPath((folder + "\\dialogs").c_str());
    lytEnvironment.SetInitPath((folder + "\\init").c_str());
    NoCatalogue noCatalogue;
    lytOwnLibraries = &noCatalogue;
    for (unsigned number = begin; number < end; ++number)
        std::printf("%s\n", LineOf(number, isShown).c_str());
    lytOwnLibraries = nullptr;
}
