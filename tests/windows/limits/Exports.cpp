#include "Exports.h"

#include "Scene.h"

#include <cstring>
#include <type_traits>

namespace
{

void Nothing(Scene& /*scene*/) {}

// A group and a symbol below it, again and again.
int32_t NextRecord(lytTreeRecord* record)
{
    static int delivered = 0;
    delivered = (delivered + 1) % 3;
    record->nLevel = delivered;
    record->nType = delivered == 1 ? LYT_TREE_GROUP : LYT_TREE_SYMBOL;
    std::strcpy(record->szKey, delivered == 1 ? "group" : "symbol");
    return delivered;
}

void ServeCatalogue(Scene& scene)
{
    scene.Partner("lytsrc").treeNext = NextRecord;
}

void ServeSymbol(Scene& scene)
{
    scene.Partner("lytsrc").treeNext = [](lytTreeRecord* record)
    {
        const int32_t result = NextRecord(record);
        record->nType = LYT_TREE_SYMBOL;
        return result;
    };
}

void StartChildren(Scene& scene)
{
    ServeCatalogue(scene);
    scene.OpenBrowser();
    scene.Get<decltype(lytTreeStartChildNode)>("lytTreeStartChildNode")("group");
}

void StartList(Scene& scene)
{
    scene.Get<decltype(lytListFromIniStart)>("lytListFromIniStart")("lists/list");
}

void GatherReport(Scene& scene)
{
    scene.Get<decltype(lytSystemInfoInit)>("lytSystemInfoInit")("");
}

constexpr OddNumber asTwo = {2, "as 2: the dialog of a repetition, and only a key with \"BNG\" is split"};
constexpr OddNumber beyondTheEnd = {100'000, "0, and the report is freed, as beyond its end"};

// A number after a buffer is its size.
template <class TYPE>
constexpr Kind kindOf = Kind::number;
template <>
constexpr Kind kindOf<const char*> = Kind::text;
template <>
constexpr Kind kindOf<char*> = Kind::buffer;

template <class FUNCTION>
struct Signature;
template <class RESULT, class... ARGUMENTS>
struct Signature<RESULT(ARGUMENTS...)>
{
    static constexpr bool hasResult = !std::is_void_v<RESULT>;
    static std::vector<Kind> Kinds() { return {kindOf<ARGUMENTS>...}; }
};

std::vector<Argument> ArgumentsOf(const std::vector<Kind>& kinds, const std::vector<Argument>& values)
{
    std::vector<Argument> arguments;
    auto value = values.begin();
    for (const Kind kind : kinds)
    {
        if (kind == Kind::buffer)
            arguments.push_back({.kind = kind});
        else if (kind == Kind::number && !arguments.empty() && arguments.back().kind == Kind::buffer)
            arguments.push_back({.kind = Kind::size});
        else
        {
            arguments.push_back(*value++);
            arguments.back().kind = kind;
        }
    }
    return arguments;
}

// The values are good ones for the texts and numbers.
template <class FUNCTION>
Export Of(const char* name, const std::vector<Argument>& values = {}, void (*prepare)(Scene& scene) = Nothing)
{
    return {name, Signature<FUNCTION>::hasResult, ArgumentsOf(Signature<FUNCTION>::Kinds(), values), prepare};
}

// The last buffer may be missing.
Export WithSpare(Export function)
{
    const auto size = function.arguments.rbegin();
    size[0].kind = Kind::spareSize;
    size[1].kind = Kind::spare;
    return function;
}

} // namespace

const std::vector<Export>& Exports()
{
    static const std::vector<Export> exports = {
        Of<decltype(lytSymbolPropertyDialog)>("lytSymbolPropertyDialog", {{"a"}}),
        Of<decltype(lytPhrasePropertyDialog)>("lytPhrasePropertyDialog", {{"a"}}),
        WithSpare(Of<decltype(lytGroupPropertyDialog)>(
            "lytGroupPropertyDialog", {{.negative = asTwo, .huge = asTwo, .name = "kind"}, {"(a)/1b"}})),
        Of<decltype(lytWizard)>("lytWizard", {}, ServeSymbol),
        Of<decltype(lytOpenTreeView)>("lytOpenTreeView", {{"W"}}, ServeCatalogue),
        Of<decltype(lytOpenTreeViewPara)>("lytOpenTreeViewPara", {{"P"}}, ServeCatalogue),
        Of<decltype(lytGetSymbolfromTree)>("lytGetSymbolfromTree", {{"s"}}, ServeCatalogue),
        Of<decltype(lytTreeStartChildNode)>("lytTreeStartChildNode", {{"group"}}, StartChildren),
        Of<decltype(lytTreeReadChildNode)>("lytTreeReadChildNode", {}, StartChildren),
        Of<decltype(lytGetTextForKey)>("lytGetTextForKey", {{"Buttons"}, {"001"}, {"x"}}),
        Of<decltype(lytGetTextFromIniFile)>("lytGetTextFromIniFile", {{"lists/list"}}),
        Of<decltype(lytListFromIniStart)>("lytListFromIniStart", {{"lists/list"}}),
        Of<decltype(lytListFromIniNext)>("lytListFromIniNext", {}, StartList),
        Of<decltype(lytWriteToLogFile)>("lytWriteToLogFile", {{"text"},
                                                              {.number = 1,
                                                               .negative = {0, "as 0: written whenever there is a log"},
                                                               .huge = {1'000, "not written"},
                                                               .name = "level"}}),
        Of<decltype(lytSystemInfoInit)>("lytSystemInfoInit", {{"C:\\nowhere"}}),
        Of<decltype(lytSystemInfoRead)>(
            "lytSystemInfoRead", {{.number = 1, .negative = beyondTheEnd, .huge = beyondTheEnd, .name = "index"}},
            GatherReport),
        Of<decltype(lytSetDialogDefine)>("lytSetDialogDefine", {{"A"}}),
        Of<decltype(lytGetInitializationPath)>("lytGetInitializationPath"),
        Of<decltype(lytGetCurrentDocName)>("lytGetCurrentDocName"),
        Of<decltype(FreeGlobalObject)>("FreeGlobalObject"),
        Of<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment",
                                               {{"doc.rtf"}, {"C:\\nowhere"}, {"C:\\nowhere"}}),
    };
    return exports;
}
