#include "lytdlg/text/NewDialogTexts.h"

#include "environment/ClytException.h"
#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/SampleLanguages.h"

#include <algorithm>
#include <array>

namespace lytdlg
{

namespace
{

// A language that the samples speak, and a new dialog therefore as well.
struct Language
{
    const char* name;
    const char* sampleFile;
    const char* head;
    const char* messages;
    const char* texts;
    const char* title;
    const char* nameMissing;
};

constexpr std::array newDialogLanguages = {
    Language{"English", sampleEnglish,
             "; Texts of the dialogs, English. Code page 1252; a text has at most 74 characters.\n",
             "@NameMissing=Please enter a name.\n",
             "Title=Properties of @\nFrame=Placeholder\nName=&Name:\nValue=&Value:\n", "Properties of @",
             "Please enter a name."},
    Language{"German", sampleGerman, "; Texte der Dialoge, Deutsch. Codepage 1252; ein Text hat maximal 74 Zeichen.\n",
             "@NameMissing=Bitte einen Namen eingeben.\n",
             "Title=Eigenschaften von @\nFrame=Platzhalter\nName=&Name:\nValue=&Wert:\n", "Eigenschaften von @",
             "Bitte einen Namen eingeben."},
};

const Language& LanguageOf(const std::string& name)
{
    const auto found =
        std::ranges::find_if(newDialogLanguages, [&](const Language& each) { return name == each.name; });
    return found != newDialogLanguages.end() ? *found : newDialogLanguages.front();
}

bool IsOfLibrary(const LanguageKey& key)
{
    return key.section == "Buttons" || key.section == "Label" || key.section == lytErrorSection;
}

} // namespace

std::string NewDescription()
{
    return "; @.dlg: say here what the dialog is for.\n"
           ";\n"
           "; It takes a text apart, and puts it together again:\n"
           ";     area=20\n"
           "; that is a name and a value. A text without = is a name alone.\n"
           "\n"
           "$VERSION 1\n"
           "$LAYOUT @\n"
           "\n"
           "Begin Dialog Box 464, 123, \"Title\", .Main\n"
           "    GroupBox   16,   6, 431,  75, \"Frame\"\n"
           "    Text       32,  27, 100,  12, \"Name\", .NameLabel\n"
           "    TextBox   152,  24, 279,  19, .Name\n"
           "    Text       32,  53, 100,  12, \"Value\", .ValueLabel\n"
           "    TextBox   152,  50, 279,  19, .Value\n"
           "    OKButton  211,  93, 112,  22, .Ok\n"
           "    CancelButton 335, 93, 112, 22, .Cancel\n"
           "End Dialog\n"
           "\n"
           "$VALUES\n"
           "\n"
           "$DEPENDANCES\n"
           "    ; A value without a name is of no use.\n"
           "    Value/ACTIVE = Name(NOTNULL)\n"
           "\n"
           "$EVALUATION, x\n"
           "    Name = NULL: @NameMissing\n"
           "\n"
           "$INPUT, parent\n"
           "    ; What comes before the sign is the name; all that follows is the value.\n"
           "    Start: (\"=\", Value = Name\n"
           "    Value: (999, End = Value\n"
           "\n"
           "$OUTPUT, parent\n"
           "    Value(NULL) = (\"%s\", Name)\n"
           "    (\"%s=%s\", Name, Value)\n"
           "$END\n";
}

std::string NewCase(const std::string& prefix, const std::string& language)
{
    const Language& spoken = LanguageOf(language);
    return "# What @.dlg makes of a text.\ndialog: " + prefix + "@.dlg\nlanguage: " + language +
           "\n\n"
           "case: a name with a value comes back as it is\n"
           "input: area=20\n"
           "expect title = \"" +
           spoken.title +
           "\"\n"
           "expect Name = \"area\"\n"
           "expect Value = \"20\"\n"
           "ok\n"
           "expect result = \"area=20\"\n\n"
           "case: a name alone has no value\n"
           "input: area\n"
           "expect Value = \"\"\n"
           "ok\n"
           "expect result = \"area\"\n\n"
           "case: a name is needed, for a value and at all\n"
           "expect Value disabled\n"
           "ok\n"
           "expect message \"" +
           spoken.nameMissing +
           "\"\n"
           "expect refused\n";
}

const std::vector<std::string>& KnownLanguages()
{
    static const std::vector<std::string> names = []
    {
        std::vector<std::string> made;
        for (const Language& language : newDialogLanguages)
            made.emplace_back(language.name);
        return made;
    }();
    return names;
}

std::string LibraryTextsOf(const std::string& language)
{
    const Language& spoken = LanguageOf(language);
    std::string texts = spoken.head;
    std::string section;
    for (const LanguageKey& key : ReadLanguageKeys(spoken.sampleFile))
    {
        if (!IsOfLibrary(key))
            continue;
        if (key.section != section)
            texts += "\n[" + key.section + "]\n";
        section = key.section;
        texts += key.name + "=" + key.text + "\n";
    }
    return texts;
}

std::string LibraryTextIn(const std::string& language, const std::string& section, const std::string& key)
{
    const std::vector<LanguageKey> keys = ReadLanguageKeys(LanguageOf(language).sampleFile);
    const auto found = std::ranges::find_if(
        keys, [&](const LanguageKey& each) { return IsSameName(each.section, section) && IsSameName(each.name, key); });
    return found != keys.end() ? found->text : "";
}

std::string NewMessages(const std::string& language)
{
    return LanguageOf(language).messages;
}

std::string NewTexts(const std::string& language)
{
    return LanguageOf(language).texts;
}

} // namespace lytdlg
