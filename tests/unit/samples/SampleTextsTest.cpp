// The language files of the samples hold what the sample dialogs and the library ask for, in a form that fits.
#include "dlgfile/ClytDialogFile.h"
#include "environment/ClytEnvironment.h"
#include "environment/ClytException.h"
#include "model/ClytControlDep.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <map>
#include <set>

namespace
{

namespace fs = std::filesystem;

// What a message box shows at most.
constexpr size_t longestMessage = 74;

// The text keys of one dialog, by the section in which they are looked up.
class TextKeys
{
public:
    explicit TextKeys(const fs::path& description) : m_file(nullptr)
    {
        EXPECT_TRUE(m_file.Open(description.string().c_str(), CFile::modeRead)) << description;
        ReadLayout();
        ReadValues();
        SkipDependencies();
        ReadMessages();
    }

    const std::set<std::string>& Labels() const { return m_labels; }
    const std::set<std::string>& Messages() const { return m_messages; }
    const std::string& Section() const { return m_section; }

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
        m_file.ReadDialogHeader(width, height, title, lastText);
        m_labels.insert(title.GetString());
        ClytControlStatement statement;
        for (; m_file.ReadControlStatement(statement) == 1; statement = {})
        {
            m_types[statement.name.GetString()] = statement.type.GetString();
            if (!statement.text.IsEmpty())
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
            const std::string type = m_types[name.GetString()];
            const std::string word = keyword.GetString();
            const bool isList = type.ends_with("ListBox") || type == "ComboBox";
            if (isList && !word.empty() && word != "FILLEDBY" && word != "DBLCLICK")
                m_labels.insert(word);
            if (isList && word == "FILLEDBY" && values.GetCount() == 5)
                m_labels.insert(std::string(values.GetTail().GetString()).substr(0, values.GetTail().Find('/')));
            if (type == "PushButton" && (word == "VISIBLE" || word == "ACTIVE") && values.GetCount() > 1)
                m_labels.insert(values.GetTail().GetString());
        }
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
    std::map<std::string, std::string> m_types;
    std::set<std::string> m_labels;
    std::set<std::string> m_messages;
};

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
        const TextKeys keys(description);
        EXPECT_GE(keys.Labels().size(), 5U);
        for (const std::string& key : keys.Labels())
            ExpectLabel(keys.Section(), key);
        for (const std::string& key : keys.Messages())
            ExpectLabel("MsgBox", key);
    }
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
    for (const auto& message : messages)
    {
        SCOPED_TRACE(message.number);
        const std::string prefix = *message.prefixKey != '\0' ? lytErrorText(message.prefixKey).GetString() : "";
        EXPECT_NE(prefix, lytNoValue);
        const std::string text = MessageOf(message.number, prefix.c_str(), message.argument);
        EXPECT_EQ(text.find(lytNoValue), std::string::npos);
        EXPECT_LE(text.size(), longestMessage) << text;
        // The pair of marks stands round the argument, and nowhere else.
        const std::string marked = "'" + std::string(message.argument) + "'";
        EXPECT_EQ(text.find(marked) != std::string::npos, *message.argument != '\0') << text;
        EXPECT_EQ(std::count(text.begin(), text.end(), '\''), *message.argument != '\0' ? 2 : 0) << text;
    }
}

INSTANTIATE_TEST_SUITE_P(Language, SampleTexts, testing::Values("English", "German"),
                         [](const auto& language) { return std::string(language.param); });
