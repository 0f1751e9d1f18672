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

// What a dialog receives, with a value and without one, and the input that takes it apart. In these texts and
// in answers, <Name> and <Value> are what the fields hold.
struct Handed
{
    ClytHanded what;
    const char* withValue;
    const char* alone;
    const char* input;
};

constexpr Handed handedTexts[] = {
    {ClytHanded::Key, "<Name>=<Value>", "<Name>",
     "    ; What comes before the sign is the name; all that follows is the value.\n"
     "    Start: (\"=\", Value = Name\n"
     "    Value: (999, End = Value\n"},
    {ClytHanded::Bracket, "(<Name>=<Value>)", "(<Name>)",
     "    ; The outer brackets are dropped.\n"
     "    Start: (\"(\", Name)\n"
     "    Name: (\"=\", Value, \")\", End = Name\n"
     "    Value: (\")\", End = Value\n"},
    {ClytHanded::Entry, "<Name>/<Value>", "<Name>/",
     "    ; What comes before the slash is the key; all that follows is the label.\n"
     "    Start: (\"/\", Value = Name\n"
     "    Value: (999, End = Value\n"},
    {ClytHanded::Label, "<Name>", "<Name>",
     "    ; All of the text is the name.\n"
     "    Start: (999, End = Name\n"},
};

// The answer of a dialog, with a value and without one, and the comment that describes it.
struct Answer
{
    const char* about;
    const char* withValue;
    const char* alone;
};

constexpr Answer plainAnswer = {"; It takes a text apart, and puts it together again:\n"
                                ";     area=20\n"
                                "; that is a name and a value. A text without = is a name alone.\n",
                                "<Name>=<Value>", "<Name>"};

constexpr const char* aboutKey =
    "; The macros hand it the key of a placeholder, and take its answer for the new key:\n"
    ";     area=20\n"
    "; that is a name and a value. A key without = is a name alone. Quotes around a piece are dropped.\n";

constexpr const char* aboutGroup =
    "; The document keeps the head of the placeholder; the dialog sees and answers its bracket:\n"
    ";     (area=20)\n"
    "; that is a name and a value. Without = it is a name alone. Quotes around a piece are dropped. After the bracket\n"
    "; the answer continues with the text for the macros, which begins with 1 and gets three letters of the\n"
    "; placeholder as its sixth to eighth.\n";

constexpr struct
{
    ClytNamed which;
    Answer answer;
} namedAnswers[] = {
    {ClytNamed::Symbol, {aboutKey, "<Name>=<Value>", "<Name>"}},
    {ClytNamed::Phrase, {aboutKey, "<Name>=<Value>", "<Name>"}},
    {ClytNamed::Condition, {aboutGroup, "(<Name>=<Value>)/1COND", "(<Name>)/1COND"}},
    {ClytNamed::Repetition, {aboutGroup, "(<Name>=<Value>)/1REPT", "(<Name>)/1REPT"}},
    {ClytNamed::WizardGroup,
     {"; The wizard hands it the key and the label of a group, with a slash between them. It answers the head of the\n"
      "; group and, after /LIST and an opening brace, the texts to insert one by one, with | between them; here the\n"
      "; key alone:\n"
      ";     G1:area(20)/LIST{area\n",
      "G1:<Name>(<Value>)/LIST{<Name>", "G1:<Name>/LIST{<Name>"}},
    {ClytNamed::WizardPhrase,
     {"; The wizard hands it the label of a heading. It answers the placeholder to insert:\n"
      ";     P1{area}=20\n"
      "; that is the label and a value.\n",
      "P1{<Name>}=<Value>", "P1{<Name>}"}},
    {ClytNamed::WizardSymbol,
     {"; The wizard hands it the key and the label of a symbol, with a slash between them. It answers the\n"
      "; placeholder to insert:\n"
      ";     S1:area=20\n",
      "S1:<Name>=<Value>", "S1:<Name>"}},
};

const Handed& HandedTo(const std::string& name)
{
    const ClytNamedDialog* named = NamedDialogOf(name + ".dlg");
    return *std::ranges::find(handedTexts, named != nullptr ? named->handed : ClytHanded::Key, &Handed::what);
}

const Answer& AnswerOf(const std::string& name)
{
    const ClytNamedDialog* named = NamedDialogOf(name + ".dlg");
    if (named == nullptr)
        return plainAnswer;
    return std::ranges::find_if(namedAnswers, [&](const auto& each) { return each.which == named->which; })->answer;
}

// Puts what `make` makes of a field in the place of each field of a text.
template <class MAKE>
std::string WithFields(std::string text, MAKE make)
{
    for (size_t begin = text.find('<'); begin != std::string::npos; begin = text.find('<', begin))
    {
        const size_t end = text.find('>', begin);
        text.replace(begin, end + 1 - begin, make(text.substr(begin + 1, end - begin - 1)));
    }
    return text;
}

std::string Filled(const char* text)
{
    return WithFields(text, [](const std::string& field) { return field == "Name" ? "area" : "20"; });
}

// The output that composes a text.
std::string Composing(const char* text)
{
    std::string items;
    const std::string format = WithFields(text,
                                          [&](const std::string& field)
                                          {
                                              items += ", " + field;
                                              return "%s";
                                          });
    return "(\"" + format + "\"" + items + ")\n";
}

bool IsOfLibrary(const LanguageKey& key)
{
    return key.section == "Buttons" || key.section == "Label" || key.section == lytErrorSection;
}

} // namespace

std::string NewDescription(const std::string& name)
{
    const Answer& answer = AnswerOf(name);
    return std::string("; @.dlg: say here what the dialog is for.\n;\n") + answer.about +
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
           HandedTo(name).input +
           "\n"
           "$OUTPUT, parent\n"
           "    Value(NULL) = " +
           Composing(answer.alone) + "    " + Composing(answer.withValue) + "$END\n";
}

std::string NewCase(const std::string& name, const std::string& prefix, const std::string& language)
{
    const Language& spoken = LanguageOf(language);
    const Handed& handed = HandedTo(name);
    const Answer& answer = AnswerOf(name);
    const bool isOfWizard = handed.what == ClytHanded::Entry || handed.what == ClytHanded::Label;
    return "# What @.dlg makes of a text.\ndialog: " + prefix + "@.dlg\nlanguage: " + language +
           "\n\n"
           "case: a name with a value " +
           (isOfWizard ? "is composed" : "comes back as it is") + "\ninput: " + Filled(handed.withValue) +
           "\nexpect title = \"" + spoken.title + "\"\nexpect Name = \"area\"\n" +
           (handed.what == ClytHanded::Label ? "set Value = 20\n" : "expect Value = \"20\"\n") +
           "ok\nexpect result = \"" + Filled(answer.withValue) +
           "\"\n\ncase: a name alone has no value\ninput: " + Filled(handed.alone) +
           "\nexpect Value = \"\"\nok\nexpect result = \"" + Filled(answer.alone) +
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
    for (const LanguageKey& key : ReadLanguageLines(spoken.sampleFile).keys)
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
    const std::vector<LanguageKey> keys = ReadLanguageLines(LanguageOf(language).sampleFile).keys;
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
