#include "Exports.h"

#include <cstring>

namespace
{

Argument Text(const char* name, const char* good)
{
    return {name, Kind::text, good};
}

Argument Buffer(const char* name)
{
    return {name, Kind::buffer};
}

Argument Size(const char* name)
{
    return {name, Kind::size};
}

Argument Number(const char* name, int good, OddNumber negative, OddNumber huge)
{
    return {name, Kind::number, "", good, negative, huge};
}

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

} // namespace

const std::vector<Export>& Exports()
{
    static const std::vector<Export> exports = {
        {"lytInitialiseEnvironment",
         false,
         {Text("docName", "doc.rtf"), Text("dialogFolder", "C:\\nowhere"), Text("initFolder", "C:\\nowhere")},
         Nothing},
        {"lytSetDialogDefine", false, {Text("define", "A")}, Nothing},
        {"lytGetInitializationPath", true, {Buffer("buffer"), Size("size")}, Nothing},
        {"lytGetCurrentDocName", true, {Buffer("buffer"), Size("size")}, Nothing},
        {"FreeGlobalObject", false, {}, Nothing},
        {"lytSymbolPropertyDialog", true, {Text("key", "a"), Buffer("result"), Size("size")}, Nothing},
        {"lytPhrasePropertyDialog", true, {Text("key", "a"), Buffer("result"), Size("size")}, Nothing},
        {"lytGroupPropertyDialog",
         true,
         {Number("kind", 0, asTwo, asTwo),
          Text("key", "(a)/1b"),
          Buffer("first"),
          Size("firstSize"),
          {"second", Kind::spare},
          {"secondSize", Kind::spareSize}},
         Nothing},
        {"lytOpenTreeView", true, {Text("request", "W"), Buffer("target"), Size("size")}, ServeCatalogue},
        {"lytOpenTreeViewPara", true, {Text("request", "P"), Buffer("target"), Size("size")}, ServeCatalogue},
        {"lytGetSymbolfromTree", true, {Text("text", "s"), Buffer("target"), Size("size")}, ServeCatalogue},
        {"lytTreeStartChildNode", true, {Text("key", "group")}, StartChildren},
        {"lytTreeReadChildNode",
         true,
         {Buffer("text"), Size("textSize"), Buffer("path"), Size("pathSize")},
         StartChildren},
        {"lytGetTextForKey",
         true,
         {Text("section", "Buttons"), Text("key", "001"), Text("argument", "x"), Buffer("buffer"), Size("size")},
         Nothing},
        {"lytGetTextFromIniFile", true, {Text("path", "lists/list"), Buffer("buffer"), Size("size")}, Nothing},
        {"lytListFromIniStart", true, {Text("path", "lists/list")}, Nothing},
        {"lytListFromIniNext",
         true,
         {Buffer("value"), Size("valueSize"), Buffer("display"), Size("displaySize")},
         StartList},
        {"lytWriteToLogFile",
         false,
         {Text("text", "text"),
          Number("level", 1, {0, "as 0: written whenever there is a log"}, {1'000, "not written"})},
         Nothing},
        {"lytWizard", true, {Buffer("buffer"), Size("size")}, ServeSymbol},
        {"lytSystemInfoInit", true, {Text("directory", "C:\\nowhere")}, Nothing},
        {"lytSystemInfoRead",
         true,
         {Number("index", 1, beyondTheEnd, beyondTheEnd), Buffer("target"), Size("size")},
         GatherReport},
    };
    return exports;
}
