#include "environment/ProfileFile.h"
#include "lytdlg/text/LanguageFiles.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <set>

namespace
{

using namespace std::string_literals;
using lytdlg::LanguageFiles;
using lytdlg::LanguageKey;

// A folder of dialogs with one language file.
class OneLanguage
{
public:
    explicit OneLanguage(const std::string& content)
        : m_file(m_folder.Write("lang/Test.nls", content)), m_languages(m_folder.Path())
    {
    }

    const std::string& File() const { return m_file; }
    const LanguageFiles* operator->() const { return &m_languages; }

private:
    TestFolder m_folder;
    std::string m_file;
    LanguageFiles m_languages;
};

std::string Shown(const ClytSpan& place)
{
    return std::to_string(place.line) + ":" + std::to_string(place.column) + "+" + std::to_string(place.length);
}

} // namespace

TEST(LanguageFiles, FindWhatTheLibraryFinds)
{
    static const std::string contents[] = {
        "k=v\r\n[s]\r\nk=w\r\n",
        "[s]\nk = \" a \"\n",
        "[S]\rK='it''s'\r",
        "[s]x\r\n;k=1\r\n ; k=2\r\nk=3\r\nk=4\r\n",
        "[s]\r\nk\r\nk=2\r\n",
        "[s]\r\nk=\r\nk=2\r\n",
        "[s]\r\na=1\r\n[s]\r\nk=2\r\n",
        "[ s ]\r\n k\t= v \r\n",
        "[s\r\nk=v\r\n",
        "[s]\r\nk=a=b\x1A\r\n",
        "[s]\r\nk\0x=a\0b\r\n"s,
        "[]\r\nk=v\r\n",
        "[s]]\r\nk=v\r\n[s]\r\n\xDC=v\r\n",
        "x[s]\r\nk=v",
        "",
    };
    for (const std::string& content : contents)
    {
        SCOPED_TRACE(content);
        const OneLanguage language(content);
        for (const char* section : {"s", "S", "", " s ", "s]", "x"})
        {
            for (const char* key : {"k", "K", " k ", "", "a", "\xDC"})
            {
                const std::string text = language->Text("Test", section, key);
                EXPECT_EQ(
                    text,
                    lytReadProfileText(section, key, "no value present", 200, language.File().c_str()).GetString())
                    << section << "/" << key;
                EXPECT_EQ(language->Has("Test", section, key), text != "no value present") << section << "/" << key;
            }
        }
    }
}

TEST(LanguageFiles, GiveWholeTextsThatTheLibraryCuts)
{
    const std::string text(80, 'x');
    EXPECT_EQ(OneLanguage("[s]\r\nk=" + text + "\r\n")->Text("Test", "s", "k"), text);
    EXPECT_EQ(lytdlg::longestLanguageText, 74U);
}

TEST(LanguageFiles, TellTheLineAndColumnOfAKey)
{
    const OneLanguage language("[s]\r\n; note\r\n\r\n  key = v\r\nb=1\rc=1\nd=1");
    EXPECT_EQ(Shown(language->Place("Test", "s", "KEY")), "4:2+3");
    EXPECT_EQ(Shown(language->Place("Test", "s", "b")), "5:0+1");
    EXPECT_EQ(Shown(language->Place("Test", "s", "c")), "6:0+1");
    EXPECT_EQ(Shown(language->Place("Test", "s", "d")), "7:0+1");
    EXPECT_EQ(Shown(language->Place("Test", "s", "none")), "0:0+0");
    EXPECT_EQ(Shown(language->Place("None", "s", "b")), "0:0+0");
}

TEST(LanguageFiles, ListTheKeysOfASectionThatTheLibraryReaches)
{
    const OneLanguage language("[s]\r\na=1\r\nb\r\nA=2\r\n[t]\r\nc=1\r\n[S]\r\nd=1\r\n");
    std::string names;
    for (const LanguageKey& key : language->Keys("Test", "S"))
        names += key.name + (key.hasText ? "=" : " ");
    EXPECT_EQ(names, "a=b ");
    EXPECT_TRUE(language->Keys("None", "s").empty());

    std::string all;
    for (const LanguageKey& key : language->FileOf("Test")->Keys())
        all += key.section + "/" + key.name + (key.isReached ? " " : "! ");
    EXPECT_EQ(all, "s/a s/b s/A! t/c S/d! ");
}

TEST(LanguageFiles, AreThoseOfTheFolderInTheOrderOfTheirNames)
{
    const TestFolder folder;
    EXPECT_TRUE(LanguageFiles(folder.Path()).Languages().empty());
    for (const char* name : {"lang/German.nls", "lang/English.NLS", "lang/notes.txt", "lang/old.nls/x"})
        folder.Write(name, "[s]\r\nk=v\r\n");
    EXPECT_EQ(LanguageFiles(folder.Path()).Languages(), (std::vector<std::string>{"English", "German"}));
}

TEST(LanguageFiles, HoldTheSamples)
{
    const LanguageFiles samples(LYT_SOURCE_FOLDER "/samples/dialogs");
    EXPECT_EQ(samples.Languages(), (std::vector<std::string>{"English", "German"}));
    EXPECT_EQ(samples.Text("English", "Buttons", "001"), "O&K");
    EXPECT_EQ(samples.Text("German", "wizardgroup", "key"), samples.Text("German", "WizardGroup", "Key"));
    EXPECT_EQ(samples.Keys("English", "Label").size(), 1U);
}
