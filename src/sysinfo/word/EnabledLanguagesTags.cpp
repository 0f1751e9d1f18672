#include "sysinfo/word/EnabledLanguages.h"

namespace
{

void FillTags()
{
    static const struct
    {
        int locale;
        const char* tag;
    } tags[] = {
        {1025, "ar-sa"}, {1026, "bg-bg"}, {1028, "zh-tw"},      {1029, "cs-cz"}, {1030, "da-dk"}, {1031, "de-de"},
        {1032, "el-gr"}, {1033, "en-us"}, {1035, "fi-fi"},      {1036, "fr-fr"}, {1037, "he-il"}, {1038, "hu-hu"},
        {1040, "it-it"}, {1041, "ja-jp"}, {1042, "ko-kr"},      {1043, "nl-nl"}, {1044, "nb-no"}, {1045, "pl-pl"},
        {1046, "pt-br"}, {1048, "ro-ro"}, {1049, "ru-ru"},      {1050, "hr-hr"}, {1051, "sk-sk"}, {1053, "sv-se"},
        {1054, "th-th"}, {1055, "tr-tr"}, {1057, "id-id"},      {1058, "uk-ua"}, {1060, "sl-si"}, {1061, "et-ee"},
        {1062, "lv-lv"}, {1063, "lt-lt"}, {1066, "vi-vn"},      {1081, "hi-in"}, {1086, "ms-my"}, {1087, "kk-kz"},
        {2052, "zh-cn"}, {2070, "pt-pt"}, {2074, "sr-latn-cs"}, {3082, "es-es"},
    };
    for (const auto& each : tags)
        lytLanguageTags.SetAt(each.locale, each.tag);
}

} // namespace

bool FindLanguageTag(int locale, CString& tag)
{
    if (lytLanguageTags.IsEmpty())
        FillTags();
    return lytLanguageTags.Lookup(locale, tag);
}
