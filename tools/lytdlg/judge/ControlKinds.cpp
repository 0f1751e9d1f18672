#include "lytdlg/judge/ControlKinds.h"

#include <algorithm>
#include <initializer_list>

namespace lytdlg
{

namespace
{

struct KnownType
{
    const char* word;
    Kind kind;
    const char* name;
};

constexpr KnownType knownTypes[] = {{"Text", Kind::Text, "a text"},
                                    {"TextBox", Kind::Field, "a field"},
                                    {"GroupBox", Kind::Frame, "a frame"},
                                    {"ListBox", Kind::List, "a list"},
                                    {"CheckListBox", Kind::CheckList, "a check list"},
                                    {"DropListBox", Kind::DropList, "a drop-down list"},
                                    {"ComboBox", Kind::Combo, "a combo box"},
                                    {"CheckBox", Kind::CheckBox, "a check box"},
                                    {"OptionGroup", Kind::OptionGroup, "an option group"},
                                    {"OptionButton", Kind::Option, "an option"},
                                    {"PushButton", Kind::Button, "a button"},
                                    {"OKButton", Kind::Ok, "the OK button"},
                                    {"CancelButton", Kind::Cancel, "the Cancel button"}};

bool IsOneOf(Kind kind, std::initializer_list<Kind> kinds)
{
    return std::ranges::find(kinds, kind) != kinds.end();
}

} // namespace

Kind KindOf(const std::string& typeWord)
{
    const auto known = std::ranges::find_if(knownTypes, [&](const KnownType& type) { return typeWord == type.word; });
    return known != std::end(knownTypes) ? known->kind : Kind::Unknown;
}

const std::vector<std::string>& TypeWords()
{
    static const std::vector<std::string> words = []
    {
        std::vector<std::string> all;
        for (const KnownType& type : knownTypes)
            all.emplace_back(type.word);
        return all;
    }();
    return words;
}

const char* NameOf(Kind kind)
{
    const auto known = std::ranges::find(knownTypes, kind, &KnownType::kind);
    return known != std::end(knownTypes) ? known->name : "a control";
}

bool IsDefault(Kind kind)
{
    return IsOneOf(kind, {Kind::Ok, Kind::Cancel});
}

bool HasItems(Kind kind)
{
    return IsOneOf(kind, {Kind::List, Kind::CheckList, Kind::DropList, Kind::Combo});
}

bool IsOpenList(Kind kind)
{
    return IsOneOf(kind, {Kind::List, Kind::CheckList});
}

bool HasValue(Kind kind)
{
    return HasItems(kind) || IsOneOf(kind, {Kind::Field, Kind::CheckBox, Kind::OptionGroup, Kind::Option});
}

bool IsFilledByLibrary(Kind kind)
{
    return HasItems(kind) || kind == Kind::Field;
}

bool ShowsText(Kind kind)
{
    return IsOneOf(kind, {Kind::Text, Kind::Frame, Kind::CheckBox, Kind::Option, Kind::Button});
}

bool HasSize(Kind kind)
{
    return !IsOneOf(kind, {Kind::Text, Kind::CheckBox, Kind::Option, Kind::OptionGroup, Kind::Unknown});
}

} // namespace lytdlg
