// The language files of the samples hold what the sample dialogs and the library ask for, in a form that fits.
#include "dlgfile/ClytDialogFile.h"
#include "environment/ClytEnvironment.h"
#include "environment/ClytException.h"
#include "model/ClytControlDep.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <map>
#include <set>

namespace
{

namespace fs = std::filesystem;

// What a text of a language file, and a message box, shows at most.
constexpr size_t longestText = 74;

using Keys = std::set<std::string>;
using Section = std::map<std::string, std::string>;

// A control of a description: the keys of its captions, of which a button that toggles something has two.
struct Captions
{
    std::string name;
    std::string type;
    std::vector<std::string> keys;
    bool isHidden = false;
    bool leadsToNext = false; // its access key gives the focus to the control after it

    bool IsButton() const { return type == "PushButton" || type == "CheckBox" || type == "OptionButton"; }
    bool IsList() const { return type.ends_with("ListBox") || type == "ComboBox"; }
    bool IsField() const { return IsList() || type == "TextBox"; }
};

// The texts of one dialog, by the section in which they are looked up.
class DialogTexts
{
public:
    DialogTexts(const fs::path& description, const char* defines) : m_file(defines)
    {
        EXPECT_TRUE(m_file.Open(description.string().c_str(), CFile::modeRead)) << description;
        ReadLayout();
        ReadValues();
        FindLabels();
        SkipDependencies();
        ReadMessages();
    }

    const std::vector<Captions>& Controls() const { return m_controls; }
    const Keys& Labels() const { return m_labels; }
    const Keys& Messages() const { return m_messages; }
    const Keys& ListValues() const { return m_listValues; }
    const std::string& SectionName() const { return m_section; }

private:
    void ReadLayout()
    {
        CString version;
        CString title;
        CString lastText;
        CStringList sections;
        int width = 0;
        int height = 0;
        m_file.ReadVersionHeader(version);
        m_file.TakeTokens(sections);
        m_section = sections.GetTail().GetString();
        EXPECT_EQ(m_file.ReadDialogHeader(width, height, title, lastText), 1);
        m_labels.insert(title.GetString());
        ClytControlStatement statement;
        for (; m_file.ReadControlStatement(statement) == 1; statement = {})
        {
            if (statement.type.IsEmpty())
                continue;
            m_controls.push_back({statement.name.GetString(), statement.type.GetString(), {}});
            if (statement.text.IsEmpty())
                continue;
            m_controls.back().keys.emplace_back(statement.text.GetString());
            m_labels.insert(statement.text.GetString());
        }
    }

    // Items of lists and combo boxes, first items of their fills and second captions of buttons are keys too.
    void ReadValues()
    {
        CString name;
        CString keyword;
        CStringList values;
        while (m_file.ReadValueStatement(name, keyword, values) == 1)
        {
            const auto control = std::ranges::find(m_controls, name.GetString(), &Captions::name);
            const std::string word = keyword.GetString();
            if (control == m_controls.end() || values.IsEmpty())
                continue;
            control->isHidden = control->isHidden || values.GetHead() == "HIDDEN";
            if (word.empty())
                continue;
            if (control->IsList())
                ReadItem(word, values);
            else if ((word == "VISIBLE" || word == "ACTIVE") && values.GetCount() > 1)
            {
                control->keys.emplace_back(values.GetTail().GetString());
                m_labels.insert(values.GetTail().GetString());
            }
        }
    }

    // A text is the label of the field or the options after it, and a frame that of a list that it begins with.
    void FindLabels()
    {
        // What is never shown is only there for the library, and for screen readers.
        std::erase_if(m_controls, [](const Captions& control) { return control.isHidden; });
        for (size_t i = 0; i + 1 < m_controls.size(); ++i)
        {
            const Captions& next = m_controls[i + 1];
            m_controls[i].leadsToNext =
                (m_controls[i].type == "Text" && (next.IsField() || next.type == "OptionGroup")) ||
                (m_controls[i].type == "GroupBox" && next.IsList());
        }
    }

    void ReadItem(const std::string& word, const CStringList& values)
    {
        if (word != "FILLEDBY" && word != "DBLCLICK")
        {
            m_labels.insert(word);
            m_listValues.insert(values.GetHead().GetString());
        }
        if (word != "FILLEDBY" || values.GetCount() != 5)
            return;
        const std::string firstItem = values.GetTail().GetString();
        m_labels.insert(firstItem.substr(0, firstItem.find('/')));
        m_listValues.insert(firstItem.substr(firstItem.find('/') + 1));
    }

    void SkipDependencies()
    {
        for (int more = 1; more == 1;)
        {
            ClytControlDep rule;
            more = m_file.ReadDependencyStatement(rule);
        }
    }

    void ReadMessages()
    {
        for (int more = 1; more == 1;)
        {
            ClytCtrlValList own;
            ClytCtrlValList other;
            CString key;
            more = m_file.ReadEvaluationStatement(own, other, key);
            if (!key.IsEmpty())
                m_messages.insert(key.GetString());
        }
    }

    ClytDialogFile m_file;
    std::string m_section;
    std::vector<Captions> m_controls;
    Keys m_labels;
    Keys m_messages;
    Keys m_listValues;
};

std::string LowerCase(std::string text)
{
    std::ranges::transform(text, text.begin(),
                           [](unsigned char letter) { return static_cast<char>(std::tolower(letter)); });
    return text;
}

// A file of sections as it stands; a line without `=` is a key without a text.
std::map<std::string, Section> SectionsOf(const fs::path& name)
{
    std::map<std::string, Section> sections;
    std::ifstream file(name, std::ios::binary);
    std::string section;
    for (std::string line; std::getline(file, line);)
    {
        if (line.empty() || line.front() == ';')
            continue;
        const size_t sign = line.find('=');
        if (line.front() == '[')
            section = line.substr(1, line.size() - 2);
        else
            sections[section][line.substr(0, sign)] = sign != std::string::npos ? line.substr(sign + 1) : "";
    }
    return sections;
}

Keys KeysOf(const Section& section)
{
    Keys keys;
    for (const auto& [key, text] : section)
        keys.insert(key);
    return keys;
}

// The letter after the mark of an access key, in lower case; '\0' unless there is one mark.
char AccessKeyOf(const std::string& text)
{
    const size_t mark = text.find('&');
    if (std::ranges::count(text, '&') != 1 || mark + 1 == text.size())
        return '\0';
    return LowerCase(text.substr(mark + 1, 1)).front();
}

// The environment speaks one of the sample languages.
class SampleTexts : public testing::TestWithParam<const char*>
{
protected:
    SampleTexts()
    {
        m_init.Write("lyt.ini", std::string("[global]\r\nCurrent Language=") + GetParam() + "\r\n");
        lytEnvironment.SetInitPath(m_init.Path().c_str());
        lytEnvironment.SetDialogPath(dialogs);
    }
    ~SampleTexts() override { lytEnvironment.Reset(); }

    static std::vector<fs::path> Descriptions()
    {
        std::vector<fs::path> files;
        for (const auto& entry : fs::directory_iterator(dialogs))
        {
            if (entry.path().extension() == ".dlg")
                files.push_back(entry.path());
        }
        return files;
    }

    static void ExpectLabel(const std::string& section, const std::string& key)
    {
        const std::string text = lytEnvironment.GetText(section.c_str(), key.c_str()).GetString();
        EXPECT_NE(text, lytNoValue) << section << "/" << key;
        // A label ends at an apostrophe.
        EXPECT_EQ(text.find('\''), std::string::npos) << section << "/" << key;
    }

    static std::map<std::string, Section> SectionsIn(const char* language)
    {
        return SectionsOf(std::string(dialogs) + "/lang/" + language + ".nls");
    }

    static constexpr const char* dialogs = LYT_SOURCE_FOLDER "/samples/dialogs";

private:
    TestFolder m_init;
};

std::string MessageOf(const char* number, const char* prefix, const char* argument)
{
    const ClytException message(lytErrorSection, number, prefix, argument);
    char buffer[300] = "";
    message.GetErrorMessage(buffer, sizeof buffer);
    return buffer;
}

} // namespace

TEST_P(SampleTexts, HoldEveryTextThatADialogShows)
{
    const std::vector<fs::path> descriptions = Descriptions();
    EXPECT_GE(descriptions.size(), 8U);
    for (const fs::path& description : descriptions)
    {
        SCOPED_TRACE(description.filename());
        const DialogTexts texts(description, nullptr);
        EXPECT_GE(texts.Labels().size(), 5U);
        for (const std::string& key : texts.Labels())
            ExpectLabel(texts.SectionName(), key);
        for (const std::string& key : texts.Messages())
            ExpectLabel("MsgBox", key);
    }
}

TEST_P(SampleTexts, HoldNothingThatNoDialogShows)
{
    std::map<std::string, Section> held = SectionsIn(GetParam());
    Keys messages;
    for (const fs::path& description : Descriptions())
    {
        SCOPED_TRACE(description.filename());
        const DialogTexts texts(description, nullptr);
        EXPECT_EQ(KeysOf(held[texts.SectionName()]), texts.Labels());
        messages.insert(texts.Messages().begin(), texts.Messages().end());
    }
    EXPECT_EQ(KeysOf(held["MsgBox"]), messages);
}

TEST_P(SampleTexts, FitTheRoomOfAText)
{
    for (const auto& [section, texts] : SectionsIn(GetParam()))
    {
        for (const auto& [key, text] : texts)
        {
            EXPECT_GT(text.size(), 0U) << section << "/" << key;
            EXPECT_LE(text.size(), longestText) << section << "/" << key;
        }
    }
}

TEST_P(SampleTexts, HaveTheKeysOfTheOtherLanguage)
{
    const std::map<std::string, Section> english = SectionsIn("English");
    std::map<std::string, Section> own = SectionsIn(GetParam());
    EXPECT_EQ(own.size(), english.size());
    for (const auto& [section, texts] : english)
        EXPECT_EQ(KeysOf(own[section]), KeysOf(texts)) << section;
}

// Both captions of a button that toggles something count, and may share a letter: only one is there at a time.
TEST_P(SampleTexts, GiveEveryLabelAndButtonAnAccessKeyOfItsOwn)
{
    std::map<std::string, Section> sections = SectionsIn(GetParam());
    for (const fs::path& description : Descriptions())
    {
        SCOPED_TRACE(description.filename());
        const DialogTexts texts(description, nullptr);
        std::map<char, std::string> owners = {{AccessKeyOf(sections["Buttons"]["001"]), "OK"},
                                              {AccessKeyOf(sections["Buttons"]["002"]), "Cancel"}};
        EXPECT_EQ(owners.size(), 2U);
        for (const Captions& control : texts.Controls())
        {
            for (const std::string& key : control.keys)
            {
                const std::string text = sections[texts.SectionName()][key];
                const char letter = AccessKeyOf(text);
                EXPECT_EQ(letter != '\0', control.IsButton() || control.leadsToNext) << text;
                if (letter == '\0')
                    continue;
                // Letters beyond ASCII are not on every keyboard.
                EXPECT_NE(std::isalpha(static_cast<unsigned char>(letter)), 0) << text;
                EXPECT_EQ(owners.emplace(letter, control.name).first->second, control.name) << text;
            }
        }
    }
}

TEST_P(SampleTexts, MarkNoAccessKeyWhereNoneWorks)
{
    std::map<std::string, Section> sections = SectionsIn(GetParam());
    for (const char* section : {"Label", "MsgBox", "Dialog_Error"})
    {
        for (const auto& [key, text] : sections[section])
            EXPECT_EQ(text.find('&'), std::string::npos) << section << "/" << key;
    }
    for (const fs::path& description : Descriptions())
    {
        const DialogTexts texts(description, nullptr);
        Keys others = texts.Labels();
        for (const Captions& control : texts.Controls())
        {
            for (const std::string& key : control.keys)
                others.erase(key);
        }
        for (const std::string& key : others)
            EXPECT_EQ(sections[texts.SectionName()][key].find('&'), std::string::npos) << key;
    }
}

// A value that is a key, in whatever case, leaves a list as the text of that key.
TEST_P(SampleTexts, HaveNoKeyThatIsAValueOfAList)
{
    std::map<std::string, Section> sections = SectionsIn(GetParam());
    const std::map<std::string, Section> library = SectionsOf(LYT_SOURCE_FOLDER "/samples/lytdata/lytdata.txt");
    size_t lists = 0;
    for (const fs::path& description : Descriptions())
    {
        SCOPED_TRACE(description.filename());
        const DialogTexts texts(description, nullptr);
        Keys values = texts.ListValues();
        std::ifstream file(description, std::ios::binary);
        const std::string whole{std::istreambuf_iterator<char>(file), {}};
        for (const auto& [name, items] : library)
        {
            // A dialog asks for a list by its name alone or after the marks that it takes over.
            if (whole.find("\"" + name + "\"") == std::string::npos &&
                whole.find("/" + name + "\"") == std::string::npos)
                continue;
            ++lists;
            for (const auto& [item, value] : items)
                values.insert({item.substr(0, item.find_last_not_of(' ') + 1), value.substr(value.find(' ') + 1)});
        }
        Keys keys;
        for (const std::string& key : KeysOf(sections[texts.SectionName()]))
            keys.insert(LowerCase(key));
        for (const std::string& value : values)
            EXPECT_FALSE(keys.contains(LowerCase(value))) << value;
    }
    EXPECT_EQ(lists, 3U);
}

TEST_P(SampleTexts, ServeTheShortFormOfAPhraseToo)
{
    const DialogTexts whole(fs::path(dialogs) / "lytInPhr.dlg", nullptr);
    const DialogTexts shorter(fs::path(dialogs) / "lytInPhr.dlg", "SHORT");
    EXPECT_LT(shorter.Labels().size(), whole.Labels().size());
    EXPECT_TRUE(std::ranges::includes(whole.Labels(), shorter.Labels()));
}

TEST_P(SampleTexts, HoldTheTextsThatTheLibraryAsksForByItself)
{
    ExpectLabel("Buttons", "001");
    ExpectLabel("Buttons", "002");
    ExpectLabel("Label", "TreeDlgLabel");
}

TEST_P(SampleTexts, WordEveryNumberedMessageSoThatItFitsItsBox)
{
    // Prefix and argument are as long as they usually are; a caught message may be of any length.
    static const struct
    {
        const char* number;
        const char* prefixKey; // of a text that stands above the message
        const char* argument;
    } messages[] = {
        {"200", "", ""},
        {"201", "", ""},
        {"202", "", "FindingsList"},
        {"204", "", ""},
        {"205", "", ""},
        {"206", "", ""},
        {"207", "", "C:\\Inspection\\dialogs\\lytInSym.dlg"},
        {"208", "", "C:\\Inspection\\house.log"},
        {"209", "", "C:\\Inspection\\house.log"},
        {"210", "", ""},
        {"212", "", "1234"},
        {"213", "", ""},
        {"214", "", ""},
        {"215", "", ""},
        {"216", "", ""},
        {"217", "", "$DEPENDANCES"},
        {"222", "", ""},
        {"232", "238", ""},
        {"233", "", "partsdata.dll"},
        {"234", "", ""},
        {"235", "", ""},
        {"236", "", "Pictures"},
        {"240", "", ""},
        {"241", "242", ""},
        {"245", "", "FindingsList"},
        {"246", "", ""},
        {"247", "248", "FindingsList"},
        {"250", "", ""},
        {"251", "", "FindingsList"},
        {"254", "", "1024"},
    };
    Keys numbers = {"238", "242", "248"};
    for (const auto& message : messages)
    {
        SCOPED_TRACE(message.number);
        numbers.insert(message.number);
        const std::string prefix =
            *message.prefixKey != '\0' ? ClytPrefix::OfKey(message.prefixKey).Worded().GetString() : "";
        EXPECT_NE(prefix, lytNoValue);
        const std::string text = MessageOf(message.number, prefix.c_str(), message.argument);
        EXPECT_EQ(text.find(lytNoValue), std::string::npos);
        EXPECT_LE(text.size(), longestText) << text;
        // The pair of marks stands round the argument, and nowhere else.
        const std::string marked = "'" + std::string(message.argument) + "'";
        EXPECT_EQ(text.find(marked) != std::string::npos, *message.argument != '\0') << text;
        EXPECT_EQ(std::count(text.begin(), text.end(), '\''), *message.argument != '\0' ? 2 : 0) << text;
    }
    EXPECT_EQ(KeysOf(SectionsIn(GetParam())["Dialog_Error"]), numbers);
}

INSTANTIATE_TEST_SUITE_P(Language, SampleTexts, testing::Values("English", "German"),
                         [](const auto& language) { return std::string(language.param); });
