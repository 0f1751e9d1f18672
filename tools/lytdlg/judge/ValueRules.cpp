#include "lytdlg/judge/ValueRules.h"

#include "lytdlg/judge/ControlValues.h"
#include "lytdlg/judge/LineTokens.h"

#include <algorithm>
#include <map>
#include <set>

namespace lytdlg
{

namespace
{

constexpr Rule unknownControl = {
    "value-control-unknown",
    Level::Warning,
    "A statement of $VALUES names no control, and is passed over.",
    "The name is that of a control of the layout, letter by letter and without its point. A blank\n"
    "does not separate: after the name comes a sign or a colon.",
    "$VALUES\nUnti = m",
    "$VALUES\nUnit = m"};

constexpr Rule unused = {
    "value-unused",
    Level::Warning,
    "A control makes nothing of a statement.",
    "OK and Cancel take no statement at all. Texts and frames take HIDDEN, INVISIBLE, DISPLAYONLY and\n"
    "INACTIVE only.",
    "$VALUES\nOk = INACTIVE",
    "$VALUES\nAdd = INACTIVE"};

constexpr Rule optionWord = {"option-word",
                             Level::Warning,
                             "A value was meant as HIDDEN, INVISIBLE, DISPLAYONLY or INACTIVE, and is spelt otherwise.",
                             "Words are compared letter by letter. Any other text is what the control begins with.",
                             "$VALUES\nUnit = Hidden",
                             "$VALUES\nUnit = HIDDEN"};

constexpr Rule keyword = {
    "keyword-unknown",
    Level::Warning,
    "A word means nothing to its control.",
    "A field knows FILLEDBY, a check box ON and OFF, a list FILLEDBY and DBLCLICK. An option and an\n"
    "option group know none. Of a list, any other word is the key of an item's text.",
    "$VALUES\n-Order = s\nOrder: x = s",
    "$VALUES\nOrder = s\n-Order = s"};

constexpr Rule noText = {
    "item-without-text",
    Level::Warning,
    "A statement gives a list an item without a text.",
    "A list takes no value to begin with from $VALUES. A statement with one word makes an item that\n"
    "shows as \"no value present\": an item has the key of its text and its value.",
    "$VALUES\nRooms = x",
    "$VALUES\nRooms: Hall = x"};

constexpr Rule itemTwice = {"item-twice",
                            Level::Warning,
                            "Two items of a list have one value.",
                            "A value leads to the first item that has it. The other can be chosen by the user only.",
                            "$VALUES\nPlace: Attic = hall place",
                            "$VALUES\nPlace: Attic = attic place"};

constexpr Rule itemIsKey = {
    "item-is-key",
    Level::Warning,
    "The value of an item of a check list is also the key of a text.",
    "When all items of a check list go into a result, each value is looked up once more in the\n"
    "dialog's texts, in upper or lower case. One that is a key goes out as its text, without its mark.",
    "$VALUES\nParts: Hall = hall",
    "$VALUES\nParts: Hall = the hall"};

constexpr Rule defaultUnknown = {
    "default-unknown",
    Level::Warning,
    "No option has the value that its group begins with.",
    "A group begins with the option whose value its statement names. When none has it, nothing is\n"
    "chosen.",
    "$VALUES\n-Order = s\nOrder = x",
    "$VALUES\n-Order = s\nOrder = l"};

constexpr Rule defaultEarly = {
    "default-early",
    Level::Warning,
    "A group's statement stands above the value of its option.",
    "A group looks for its option when the statement is read. Write it after the values of the\n"
    "options.",
    "$VALUES\n-Long = l\n-Order = s\nOrder = l\nLong = l",
    "$VALUES\n-Long = l\n-Order = s\nLong = l\nOrder = l"};

constexpr Rule checkDefault = {"check-default",
                               Level::Error,
                               "A check box begins with neither of its two texts.",
                               "What a check box begins with is its ON or its OFF text. Anything else ends the dialog.",
                               "$VALUES\n-Pictures = -\nPictures = x",
                               "$VALUES\n-Pictures = -\nPictures = P"};

constexpr Rule checkTexts = {
    "check-texts",
    Level::Warning,
    "A check box lacks its ON or its OFF text, or both are one.",
    "The value of a check box is its ON or its OFF text. One that is missing is an empty text.",
    "$VALUES\n-Pictures: ON = P",
    "$VALUES"};

constexpr Rule twice = {"value-twice",
                        Level::Warning,
                        "A statement is undone by a later one.",
                        "Of statements that say the same of a control, the last one counts.",
                        "$VALUES\nUnit = m\nUnit = km",
                        "$VALUES\nUnit = km"};

// A statement with the places of its words.
struct Statement
{
    const Case& judged;
    const ValueStatement& value;
    const Kind kind;
    const Role role;

    ClytSpan PlaceOfWord(size_t index) const
    {
        const std::vector<LineToken> words =
            TokensOf(judged.description.text.Line(value.span.line).text, Section::Values);
        if (index >= words.size())
            return judged.description.PlaceOf(value.span.line);
        return {value.span.line, words[index].column, std::max(1, static_cast<int>(words[index].text.size()))};
    }
    ClytSpan Place() const { return PlaceOfWord(0); }
    ClytSpan PlaceOfKeyword() const { return PlaceOfWord(1); }
    ClytSpan PlaceOfValue() const { return PlaceOfWord(value.keyword.empty() && value.values.size() == 1 ? 1 : 2); }
    std::string Name() const { return InQuotes(value.name); }
};

void JudgeUnknown(const Statement& statement)
{
    const Description& description = statement.judged.description;
    const std::string& name = statement.value.name;
    const std::string first = name.substr(0, name.find(' '));
    const bool isBlank = first != name && description.FindControl(first) != nullptr;
    statement.judged.findings.Add(
        unknownControl, statement.Place(), "no control is called " + InQuotes(name) + "; the statement is passed over",
        isBlank ? "a blank does not separate: write " + InQuotes(first + ":") + " before the rest"
                : MeantOr(name, ControlNames(description), "use the name of a control"));
}

bool IsMeantAsOption(const std::string& word)
{
    const std::string meant = MeantWord(word, OptionWords());
    const bool isInCapitals = std::ranges::none_of(word, [](char ch) { return ch >= 'a' && ch <= 'z'; });
    return !meant.empty() && meant != word && (meant.size() == word.size() || isInCapitals);
}

// A list takes any word before its value for the key of a text.
void JudgeWords(const Statement& statement)
{
    const ValueStatement& value = statement.value;
    if (value.keyword.empty() && statement.role != Role::Option && IsMeantAsOption(value.values.front()))
    {
        statement.judged.findings.Add(optionWord, statement.PlaceOfValue(),
                                      InQuotes(value.values.front()) + " is taken for a value",
                                      MeantOr(value.values.front(), OptionWords(), ""));
        return;
    }
    if (statement.role == Role::Nothing)
    {
        statement.judged.findings.Add(
            unused, statement.Place(), std::string(NameOf(statement.kind)) + " makes nothing of this statement",
            IsDefault(statement.kind) ? "it takes no statements; take it away"
                                      : "it takes HIDDEN, INVISIBLE, DISPLAYONLY and INACTIVE");
        return;
    }
    if (statement.role == Role::Item && value.keyword.empty())
    {
        statement.judged.findings.Add(noText, statement.Place(),
                                      "this adds an item without a text to " + statement.Name(),
                                      "write " + InQuotes(value.name + ": KEY = " + value.values.front()));
        return;
    }
    static const std::vector<std::string> listWords = {"FILLEDBY", "DBLCLICK"};
    static const std::vector<std::string> checkWords = {"ON", "OFF"};
    static const std::vector<std::string> fieldWords = {"FILLEDBY"};
    static const std::vector<std::string> noWords;
    const bool isWordless = statement.role == Role::Default || statement.role == Role::OptionValue;
    const bool isItemWord =
        statement.role == Role::Item && (!MeantWord(value.keyword, listWords).empty() || value.values.size() > 1);
    if (value.keyword.empty() || (!isWordless && !isItemWord))
        return;
    const bool isKnownElsewhere = value.keyword == listWords[0] || value.keyword == listWords[1];
    const std::vector<std::string>& known = statement.kind == Kind::CheckBox ? checkWords
                                            : HasItems(statement.kind)       ? listWords
                                            : statement.kind == Kind::Field  ? fieldWords
                                                                             : noWords;
    const std::string hint =
        isKnownElsewhere ? "take the word away" : MeantOr(value.keyword, known, "take the word away");
    statement.judged.findings.Add(keyword, statement.PlaceOfKeyword(),
                                  InQuotes(value.keyword) + " means nothing to " + NameOf(statement.kind), hint);
}

// Statements of a role of which the last one counts.
bool IsSingle(Role role)
{
    return role != Role::Nothing && role != Role::Option && role != Role::Item;
}

using Told = std::map<std::pair<std::string, Role>, const ValueStatement*>;

void JudgeTwice(const Case& judged)
{
    Told last;
    for (const ValueStatement& value : judged.description.values)
    {
        const Statement statement = {judged, value, KindOfControl(judged.description, value.name),
                                     RoleOf(judged.description, value)};
        if (!IsSingle(statement.role))
            continue;
        const ValueStatement*& before = last[{value.name, statement.role}];
        if (before != nullptr)
            judged.findings.Add(twice, judged.description.PlaceOf(before->span.line),
                                "line " + std::to_string(value.span.line) + " undoes this statement",
                                "take one of the two away");
        before = &value;
    }
}

void JudgeItems(const Case& judged)
{
    std::map<std::pair<std::string, std::string>, int> lines;
    for (const ValueStatement& value : judged.description.values)
    {
        const Statement statement = {judged, value, KindOfControl(judged.description, value.name),
                                     RoleOf(judged.description, value)};
        if (statement.role != Role::Item || value.keyword.empty())
            continue;
        const auto [first, isNew] = lines.emplace(std::pair(value.name, value.values.front()), value.span.line);
        if (!isNew)
            judged.findings.Add(itemTwice, statement.PlaceOfValue(),
                                "the item of line " + std::to_string(first->second) + " has the same value",
                                "give each item a value of its own");
        const std::string section = judged.description.TextSection();
        const std::vector<std::string> languages = judged.surroundings.texts.Languages();
        const auto isKey = [&](const std::string& language)
        { return judged.surroundings.texts.Has(language, section, value.values.front()); };
        if (statement.kind == Kind::CheckList && std::ranges::any_of(languages, isKey))
            judged.findings.Add(itemIsKey, statement.PlaceOfValue(),
                                InQuotes(value.values.front()) + " is also a key of the section [" + section + "]",
                                "give the item a value that is no key");
    }
}

void JudgeGroupDefault(const Statement& statement)
{
    const Description& description = statement.judged.description;
    const std::string& begin = statement.value.values.front();
    std::vector<std::string> values;
    const ValueStatement* own = nullptr;
    for (const std::string& option : OptionsOf(description, statement.value.name))
    {
        for (const ValueStatement* value : StatementsOf(description, option, Role::OptionValue))
        {
            values.push_back(value->values.front());
            own = value->values.front() == begin ? value : own;
        }
    }
    if (own == nullptr)
        statement.judged.findings.Add(defaultUnknown, statement.PlaceOfValue(),
                                      "no option of " + statement.Name() + " has the value " + InQuotes(begin),
                                      MeantOr(begin, values, "use the value of one of its options"));
    else if (own->span.line > statement.value.span.line)
        statement.judged.findings.Add(defaultEarly, statement.PlaceOfValue(),
                                      "the option gets this value in line " + std::to_string(own->span.line) +
                                          ", too late",
                                      "write the statement after the values of the options");
}

void JudgeCheckBox(const Case& judged, const std::string& name)
{
    const Description& description = judged.description;
    const auto last = [&](Role role)
    {
        const std::vector<const ValueStatement*> statements = StatementsOf(description, name, role);
        return statements.empty() ? nullptr : statements.back();
    };
    const auto textOf = [](const ValueStatement* value)
    { return value != nullptr ? value->values.front() : std::string(); };
    const ValueStatement* begin = last(Role::Default);
    const ValueStatement* on = last(Role::On);
    const ValueStatement* off = last(Role::Off);
    const std::string text = textOf(begin);
    if (begin != nullptr && !text.empty() && text != textOf(on) && text != textOf(off))
    {
        const Statement statement = {judged, *begin, Kind::CheckBox, Role::Default};
        judged.findings
            .Add(checkDefault, statement.PlaceOfValue(),
                 InQuotes(text) + " is neither the ON nor the OFF text of " + InQuotes(name),
                 MeantOr(text, {textOf(on), textOf(off)}, "use one of the two texts"))
            .number = "236";
    }
    const ClytControlStatement& control = *description.FindControl(name);
    const ClytSpan place = description.PlaceOf(control.span.line, "." + name, control.span.column);
    if (on == nullptr || off == nullptr)
        judged.findings.Add(checkTexts, place,
                            InQuotes(name) + " has no " +
                                (on != nullptr    ? "OFF text"
                                 : off != nullptr ? "ON text"
                                                  : "ON and no OFF text"),
                            "add " + InQuotes(name + (on != nullptr ? ": OFF = TEXT" : ": ON = TEXT")) + " to $VALUES");
    else if (textOf(on) == textOf(off))
        judged.findings.Add(checkTexts, place, "ON and OFF text of " + InQuotes(name) + " are the same",
                            "make them differ");
}

void JudgeStatement(const Statement& statement)
{
    if (statement.judged.description.FindControl(statement.value.name) == nullptr)
        JudgeUnknown(statement);
    else if (statement.kind != Kind::Unknown)
        JudgeWords(statement);
    if (statement.kind == Kind::OptionGroup && statement.role == Role::Default)
        JudgeGroupDefault(statement);
}

} // namespace

Family ValueRules()
{
    return {{&unknownControl, &unused, &optionWord, &keyword, &noText, &itemTwice, &itemIsKey, &defaultUnknown,
             &defaultEarly, &checkDefault, &checkTexts, &twice},
            [](const Case& judged)
            {
                const Description& description = judged.description;
                for (const ValueStatement& value : description.values)
                    JudgeStatement({judged, value, KindOfControl(description, value.name), RoleOf(description, value)});
                JudgeTwice(judged);
                JudgeItems(judged);
                std::set<std::string> boxes;
                for (const ClytControlStatement& control : description.controls)
                {
                    const std::string name = control.name.GetString();
                    const bool isBox = !name.empty() && KindOfControl(description, name) == Kind::CheckBox;
                    if (isBox && boxes.insert(name).second)
                        JudgeCheckBox(judged, name);
                }
            }};
}

} // namespace lytdlg
