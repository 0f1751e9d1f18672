#include "lytdlg/text/NewDialogTexts.h"

#include "environment/ClytException.h"
#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/NamedDialog.h"
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

// What a new dialog makes of a text: the comment that says so, its input and output, and the texts of its case.
struct TextForm
{
    const char* about;
    const char* input;
    const char* output;
    const char* withValue;
    const char* alone;
    const char* resultWithValue;
    const char* resultAlone;
    bool hasValue = true;    // the text brings a value
    bool isComposed = false; // the result is another text
};

constexpr const char* cutAtSign = "    ; What comes before the sign is the name; all that follows is the value.\n"
                                  "    Start: (\"=\", Value = Name\n"
                                  "    Value: (999, End = Value\n";
constexpr const char* joinedBySign = "    Value(NULL) = (\"%s\", Name)\n"
                                     "    (\"%s=%s\", Name, Value)\n";
constexpr const char* cutInBracket = "    ; The outer brackets are dropped.\n"
                                     "    Start: (\"(\", Name)\n"
                                     "    Name: (\"=\", Value, \")\", End = Name\n"
                                     "    Value: (\")\", End = Value\n";
constexpr const char* cutAtSlash = "    ; What comes before the slash is the key; all that follows is the label.\n"
                                   "    Start: (\"/\", Value = Name\n"
                                   "    Value: (999, End = Value\n";

constexpr const char* aboutGroup =
    "; The document keeps the head of the placeholder; the dialog sees and answers its bracket:\n"
    ";     (area=20)\n"
    "; that is a name and a value. Without = it is a name alone. After the bracket the answer continues with the text\n"
    "; for the macros, which begins with 1 and gets three letters of the placeholder as its sixth to eighth.\n";

constexpr TextForm plainForm = {.about = "; It takes a text apart, and puts it together again:\n"
                                         ";     area=20\n"
                                         "; that is a name and a value. A text without = is a name alone.\n",
                                .input = cutAtSign,
                                .output = joinedBySign,
                                .withValue = "area=20",
                                .alone = "area",
                                .resultWithValue = "area=20",
                                .resultAlone = "area"};

constexpr TextForm keyForm = {
    .about = "; The macros hand it the key of a placeholder, and take its answer for the new key:\n"
             ";     area=20\n"
             "; that is a name and a value. A key without = is a name alone.\n",
    .input = cutAtSign,
    .output = joinedBySign,
    .withValue = "area=20",
    .alone = "area",
    .resultWithValue = "area=20",
    .resultAlone = "area"};

constexpr struct
{
    ClytNamed which;
    TextForm form;
} namedForms[] = {
    {ClytNamed::Symbol, keyForm},
    {ClytNamed::Phrase, keyForm},
    {ClytNamed::Condition,
     {.about = aboutGroup,
      .input = cutInBracket,
      .output = "    Value(NULL) = (\"(%s)/1COND\", Name)\n"
                "    (\"(%s=%s)/1COND\", Name, Value)\n",
      .withValue = "(area=20)",
      .alone = "(area)",
      .resultWithValue = "(area=20)/1COND",
      .resultAlone = "(area)/1COND"}},
    {ClytNamed::Repetition,
     {.about = aboutGroup,
      .input = cutInBracket,
      .output = "    Value(NULL) = (\"(%s)/1REPT\", Name)\n"
                "    (\"(%s=%s)/1REPT\", Name, Value)\n",
      .withValue = "(area=20)",
      .alone = "(area)",
      .resultWithValue = "(area=20)/1REPT",
      .resultAlone = "(area)/1REPT"}},
    {ClytNamed::WizardGroup,
     {.about = "; The wizard hands it the key and the label of a group, with a slash between them. It answers the head "
               "of the\n"
               "; group and, after /LIST and an opening brace, the texts to insert one by one, with | between them; "
               "here the\n"
               "; key alone:\n"
               ";     G1:area(20)/LIST{area\n",
      .input = cutAtSlash,
      .output = "    Value(NULL) = (\"G1:%s/LIST{%s\", Name, Name)\n"
                "    (\"G1:%s(%s)/LIST{%s\", Name, Value, Name)\n",
      .withValue = "area/20",
      .alone = "area/",
      .resultWithValue = "G1:area(20)/LIST{area",
      .resultAlone = "G1:area/LIST{area",
      .isComposed = true}},
    {ClytNamed::WizardPhrase,
     {.about = "; The wizard hands it the label of a heading. It answers the placeholder to insert:\n"
               ";     P1{area}20\n"
               "; that is the label and a value.\n",
      .input = "    ; All of the text is the name.\n"
               "    Start: (999, End = Name\n",
      .output = "    Value(NULL) = (\"P1{%s}\", Name)\n"
                "    (\"P1{%s}%s\", Name, Value)\n",
      .withValue = "area",
      .alone = "area",
      .resultWithValue = "P1{area}20",
      .resultAlone = "P1{area}",
      .hasValue = false,
      .isComposed = true}},
    {ClytNamed::WizardSymbol,
     {.about = "; The wizard hands it the key and the label of a symbol, with a slash between them. It answers the\n"
               "; placeholder to insert:\n"
               ";     S1:area=20\n",
      .input = cutAtSlash,
      .output = "    Value(NULL) = (\"S1:%s\", Name)\n"
                "    (\"S1:%s=%s\", Name, Value)\n",
      .withValue = "area/20",
      .alone = "area/",
      .resultWithValue = "S1:area=20",
      .resultAlone = "S1:area",
      .isComposed = true}},
};

const TextForm& FormOf(const std::string& name)
{
    const ClytNamedDialog* named = NamedDialogOf(name + ".dlg");
    if (named == nullptr)
        return plainForm;
    return std::ranges::find_if(namedForms, [&](const auto& each) { return each.which == named->which; })->form;
}

bool IsOfLibrary(const LanguageKey& key)
{
    return key.section == "Buttons" || key.section == "Label" || key.section == lytErrorSection;
}

} // namespace

std::string NewDescription(const std::string& name)
{
    const TextForm& form = FormOf(name);
    return std::string("; @.dlg: say here what the dialog is for.\n;\n") + form.about +
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
           "$INPUT, parent\n" +
           form.input +
           "\n"
           "$OUTPUT, parent\n" +
           form.output + "$END\n";
}

std::string NewCase(const std::string& name, const std::string& prefix, const std::string& language)
{
    const Language& spoken = LanguageOf(language);
    const TextForm& form = FormOf(name);
    return "# What @.dlg makes of a text.\ndialog: " + prefix + "@.dlg\nlanguage: " + language +
           "\n\n"
           "case: a name with a value " +
           (form.isComposed ? "is composed" : "comes back as it is") + "\ninput: " + form.withValue +
           "\nexpect title = \"" + spoken.title + "\"\nexpect Name = \"area\"\n" +
           (form.hasValue ? "expect Value = \"20\"\n" : "set Value = 20\n") + "ok\nexpect result = \"" +
           form.resultWithValue + "\"\n\ncase: a name alone has no value\ninput: " + form.alone +
           "\nexpect Value = \"\"\nok\nexpect result = \"" + form.resultAlone +
           "\"\n\n"
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
