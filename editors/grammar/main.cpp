// Writes how editors colour descriptions, from the tables of words that the library itself reads by.
#include "controls/TypeWords.h"
#include "dlgfile/Sections.h"
#include "model/ClytWords.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

namespace
{

using Json = nlohmann::ordered_json;
using Words = std::vector<std::string>;

// Words of one meaning, with the names that editors have for how they look.
struct Group
{
    const char* scope;     // in a TextMate grammar
    const char* highlight; // in Vim
    Words words;
};

template <class MEANING>
void Add(Words& words)
{
    for (const ClytKnownWord<MEANING>& word : ClytWordTable<MEANING>::words)
        words.emplace_back(word.text);
}

Words Sorted(Words words)
{
    std::ranges::sort(words);
    words.erase(std::unique(words.begin(), words.end()), words.end());
    return words;
}

Words TypeWords()
{
    Words words;
    for (const ClytType& type : lytTypes)
        words.emplace_back(type.word);
    return words;
}

// A word has several meanings, and looks the same in all of them.
Words MeaningWords()
{
    Words words;
    Add<ClytState>(words);
    Add<ClytOption>(words);
    Add<ClytAction>(words);
    Add<ClytKeyword>(words);
    Add<ClytFillAction>(words);
    Add<ClytValueWord>(words);
    return Sorted(words);
}

std::vector<Group> Groups()
{
    return {{"storage.type", "Type", TypeWords()},
            {"constant.language", "Constant", MeaningWords()},
            {"keyword.control", "Statement", {"Begin", "Dialog", "Box", "End", "Start", "Rest"}}};
}

std::string Joined(const Words& words, const char* between)
{
    std::string text;
    for (const std::string& word : words)
        text += (text.empty() ? "" : between) + word;
    return text;
}

Words SectionNames()
{
    Words names;
    for (const char* word : lytSectionWords)
        names.emplace_back(word + 1);
    return names;
}

std::string TextMate()
{
    Json patterns = {
        {{"name", "comment.line.semicolon"}, {"match", "(?<=^|[\\s,=:()/<>]);.*$"}},
        {{"name", "meta.preprocessor"}, {"match", "^(?:<!?[^\\s;]*|>)"}},
        {{"match", "^\\s*(\\$(?:" + Joined(SectionNames(), "|") + "))\\b"},
         {"captures", {{"1", {{"name", "keyword.control.section"}}}}}},
        {{"name", "string.quoted.double"},
         {"begin", "\""},
         {"end", "\"|$"},
         {"patterns",
          {{{"name", "constant.character.escape"}, {"match", "\\\\[\"nt\\\\]"}},
           {{"name", "constant.other.placeholder"}, {"match", "%(?:\\d*(?:\\.\\d+)?s|%)"}}}}},
        {{"name", "constant.numeric"}, {"match", "(?<![\\w.])\\d+(?!\\w)"}},
        {{"match", "(?<=[,\\s])\\.(\\w+)"}, {"captures", {{"1", {{"name", "entity.name.variable"}}}}}},
    };
    for (const Group& group : Groups())
        patterns.push_back({{"name", group.scope}, {"match", "(?<!\\w)(?:" + Joined(group.words, "|") + ")(?!\\w)"}});
    return Json{{"name", "Dialog description"}, {"scopeName", "source.lytdlg"}, {"patterns", patterns}}.dump(2) + "\n";
}

std::string Vim()
{
    std::string text = "if exists('b:current_syntax')\n  finish\nendif\nsyntax case match\n";
    for (const Group& group : Groups())
        text += std::string("syntax keyword lytdlg") + group.highlight + " " + Joined(group.words, " ") +
                "\nhighlight default link lytdlg" + group.highlight + " " + group.highlight + "\n";
    text += "syntax match lytdlgNumber /\\<\\d\\+\\>/\n"
            "syntax match lytdlgSection /^\\s*\\$\\(" +
            Joined(SectionNames(), "\\|") +
            "\\)\\>/\n"
            "syntax match lytdlgMark /^\\(<!\\?[^ \\t;]*\\|>\\)/\n"
            "syntax match lytdlgPlaceholder /%\\(\\d*\\(\\.\\d\\+\\)\\?s\\|%\\)/ contained\n"
            "syntax region lytdlgString start=/\"/ skip=/\\\\\"/ end=/\"/ oneline contains=lytdlgPlaceholder\n"
            "syntax match lytdlgComment /\\(^\\|[ \\t,=:()/<>]\\)\\@<=;.*/\n";
    for (const auto& [own, common] :
         {std::pair("Number", "Number"), std::pair("Section", "PreProc"), std::pair("Mark", "PreCondit"),
          std::pair("Placeholder", "SpecialChar"), std::pair("String", "String"), std::pair("Comment", "Comment")})
        text += std::string("highlight default link lytdlg") + own + " " + common + "\n";
    return text + "let b:current_syntax = 'lytdlg'\n";
}

// A user-defined language of Notepad++, version 2.1.
std::string NotepadPlusPlus()
{
    const Words sections(std::begin(lytSectionWords), std::end(lytSectionWords));
    std::string lists =
        "<Keywords name=\"Comments\">00; 01 02 03 04</Keywords>\n"
        "<Keywords name=\"Operators1\">( ) , = : /</Keywords>\n"
        "<Keywords name=\"Delimiters\">00&quot; 01\\ 02&quot; 03 04 05 06 07 08 09 10 11 12 13 14 15 16 17 "
        "18 19 20 21 22 23</Keywords>\n"
        "<Keywords name=\"Keywords1\">" +
        Joined(sections, " ") + "</Keywords>\n";
    int number = 2;
    for (const Group& group : Groups())
        lists +=
            "<Keywords name=\"Keywords" + std::to_string(number++) + "\">" + Joined(group.words, " ") + "</Keywords>\n";
    std::string styles;
    for (const auto& [name, colour] :
         {std::pair("DEFAULT", "000000"), std::pair("COMMENTS", "008000"), std::pair("NUMBERS", "FF8000"),
          std::pair("KEYWORDS1", "8000FF"), std::pair("KEYWORDS2", "0000FF"), std::pair("KEYWORDS3", "800000"),
          std::pair("KEYWORDS4", "8000FF"), std::pair("OPERATORS", "000080"), std::pair("DELIMITERS1", "808080")})
        styles += std::string("<WordsStyle name=\"") + name + "\" fgColor=\"" + colour +
                  "\" bgColor=\"FFFFFF\" fontStyle=\"0\" nesting=\"0\" />\n";
    return "<NotepadPlus>\n<UserLang name=\"Dialog description\" ext=\"dlg\" udlVersion=\"2.1\">\n<Settings>\n"
           "<Global caseIgnored=\"no\" allowFoldOfComments=\"no\" foldCompact=\"no\" forcePureLC=\"0\" "
           "decimalSeparator=\"0\" />\n"
           "<Prefix Keywords1=\"no\" Keywords2=\"no\" Keywords3=\"no\" Keywords4=\"no\" Keywords5=\"no\" "
           "Keywords6=\"no\" Keywords7=\"no\" Keywords8=\"no\" />\n</Settings>\n<KeywordLists>\n" +
           lists + "</KeywordLists>\n<Styles>\n" + styles + "</Styles>\n</UserLang>\n</NotepadPlus>\n";
}

struct Form
{
    const char* name;
    std::string (*write)();
};

constexpr Form forms[] = {{"textmate", TextMate}, {"vim", Vim}, {"notepad++", NotepadPlusPlus}};

} // namespace

int main(int count, char** words)
{
    const auto* form =
        std::ranges::find_if(forms, [&](const Form& each) { return count == 3 && std::string(words[1]) == each.name; });
    if (form == std::end(forms))
    {
        std::cerr
            << "usage: make-grammar textmate|vim|notepad++ FILE\n\nWrites the colours of descriptions for editors.\n";
        return 2;
    }
    std::ofstream file(words[2], std::ios::binary);
    file << form->write();
    file.close();
    if (file.fail())
        std::cerr << "make-grammar: " << words[2] << " cannot be written\n";
    return file.fail() ? 1 : 0;
}
