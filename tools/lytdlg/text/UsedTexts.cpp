#include "lytdlg/text/UsedTexts.h"

#include "dlgfile/ClytDialogFile.h"
#include "environment/ClytException.h"
#include "lytdlg/text/DescriptionLines.h"
#include "lytdlg/text/TextFile.h"
#include "model/ClytControlDep.h"

#include <algorithm>
#include <array>
#include <map>

namespace lytdlg
{

namespace
{

constexpr const char* messageSection = "MsgBox";

// The numbers that messages of the library have, and those that stand above another message.
constexpr std::array messageNumbers = {"200", "201", "202", "204", "205", "206", "207", "208", "209", "210", "212",
                                       "213", "214", "215", "216", "217", "222", "232", "233", "234", "235", "236",
                                       "238", "240", "241", "242", "245", "246", "247", "248", "250", "251", "254"};

// Where the key of a first item stands in the statement of a library, after its word.
constexpr int firstItemPlace = 4;

class PassingSink final : public ErrorSink
{
public:
    void Tell(std::unique_ptr<ClytException> /*failure*/, const ClytSpan& /*place*/) override {}
    void TellShortLine(const ClytSpan& /*place*/) override {}
};

bool IsCombo(const std::string& type)
{
    return type == "ComboBox" || type == "DropListBox";
}

bool IsList(const std::string& type)
{
    return IsCombo(type) || type == "ListBox" || type == "CheckListBox";
}

// Reads a dialog up to its checks, which are the last to ask for texts.
class DialogReader
{
public:
    DialogReader(const std::filesystem::path& fileName, const std::string& defines, std::vector<TextUse>& uses)
        : m_name(fileName.filename().string()), m_file(defines.c_str(), m_sink), m_uses(uses)
    {
        OpenDescription(m_file, fileName);
    }

    void Read()
    {
        ReadHead();
        ReadControls();
        ReadValues();
        for (int more = 1; more != 0;)
        {
            ClytControlDep rule;
            more = m_file.ReadDependencyStatement(rule);
        }
        ReadChecks();
    }

private:
    void Use(const std::string& section, const CString& key)
    {
        if (section.empty() || key.IsEmpty())
            return;
        m_uses.push_back({section, key.GetString(), section == m_section, m_name, m_file.GetLinePlace().line});
    }

    void ReadHead()
    {
        CString text;
        CStringList words;
        m_file.ReadVersionHeader(text);
        m_file.TakeTokens(words);
        if (words.GetCount() > 1)
            m_section = words.GetAt(words.FindIndex(1)).GetString();
        CString title;
        int number = 0;
        static_cast<void>(m_file.ReadDialogHeader(number, number, title, text)); // what follows is read in any case
        Use(m_section, title);
    }

    void ReadControls()
    {
        ClytControlStatement control;
        while (m_file.ReadControlStatement(control) != 0)
        {
            Use(m_section, control.text);
            m_types[control.name.GetString()] = control.type.GetString();
        }
    }

    void ReadValues()
    {
        CString name;
        CString keyword;
        CStringList values;
        while (m_file.ReadValueStatement(name, keyword, values) != 0)
        {
            const auto type = m_types.find(name.GetString());
            if (type == m_types.end() || keyword.IsEmpty())
                continue;
            if (IsList(type->second))
                ReadItem(type->second, keyword, values);
            else if (type->second == "PushButton")
                ReadButton(keyword, values);
        }
    }

    void ReadItem(const std::string& type, const CString& keyword, const CStringList& values)
    {
        const auto meaning = lytMeaningOf<ClytKeyword>(keyword);
        if (meaning == ClytKeyword::FilledBy)
        {
            if (IsCombo(type) && values.GetCount() > firstItemPlace)
                UseFirstItem(values.GetAt(values.FindIndex(firstItemPlace)).GetString());
        }
        else if (meaning != ClytKeyword::DoubleClick)
            Use(m_section, keyword);
    }

    void UseFirstItem(const std::string& item) { Use(m_section, item.substr(0, item.find('/')).c_str()); }

    void ReadButton(const CString& keyword, const CStringList& values)
    {
        const auto action = lytMeaningOf<ClytAction>(keyword);
        if ((action == ClytAction::Visible || action == ClytAction::Active) && values.GetCount() > 1)
            Use(m_section, values.GetAt(values.FindIndex(1)));
    }

    void ReadChecks()
    {
        for (int more = 1; more != 0;)
        {
            ClytCtrlValList own;
            ClytCtrlValList other;
            CString key;
            more = m_file.ReadEvaluationStatement(own, other, key);
            Use(messageSection, key);
        }
    }

    PassingSink m_sink;
    std::string m_name;
    ClytDialogFile m_file;
    std::string m_section;
    std::map<std::string, std::string> m_types;
    std::vector<TextUse>& m_uses;
};

bool IsEarlier(const TextUse& left, const TextUse& right)
{
    return std::tie(left.line, left.section, left.key) < std::tie(right.line, right.section, right.key);
}

bool IsSameUse(const TextUse& left, const TextUse& right)
{
    return !IsEarlier(left, right) && !IsEarlier(right, left);
}

} // namespace

std::vector<TextUse> TextsOfDialog(const std::filesystem::path& fileName)
{
    std::vector<TextUse> uses;
    const DescriptionLines split = ReadDescriptionLines(fileName, ReadWholeFile(fileName).value_or(""));
    for (const std::string& choice : ChoicesOf(DefinesOf(split.lines)))
        DialogReader(fileName, choice, uses).Read();
    std::ranges::stable_sort(uses, IsEarlier);
    uses.erase(std::unique(uses.begin(), uses.end(), IsSameUse), uses.end());
    return uses;
}

std::vector<TextUse> TextsOfLibrary()
{
    std::vector<TextUse> uses = {
        {"Buttons", "001", true, {}}, {"Buttons", "002", true, {}}, {"Label", "TreeDlgLabel", true, {}}};
    for (const char* number : messageNumbers)
        uses.push_back({lytErrorSection, number, false, {}});
    return uses;
}

} // namespace lytdlg
