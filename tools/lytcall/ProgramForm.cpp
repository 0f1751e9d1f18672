#include "lytcall/Commands.h"

#include <cstdint>

namespace lytcall
{

const commandline::ProgramForm& TheProgram()
{
    static const commandline::ProgramForm form = {
        "lytcall",
        "lytcall calls any function of lyt64.dll from a command line.",
        {
            {"symbol", "[KEY]", 0, 1, "the properties of a value"},
            {"phrase", "[KEY]", 0, 1, "the properties of a phrase"},
            {"group", "[KEY]", 0, 1, "the properties of a group; --kind 0 for a condition, 1 for a repetition"},
            {"wizard", "", 0, 0, "the catalogue, then the dialog of the choice; all texts to insert"},
            {"tree", "[REQUEST]", 0, 1, "the catalogue; REQUEST is S, G, P or W, followed by the entry to select"},
            {"child", "KEY [REQUEST]", 1, 2, "the catalogue, and once it is confirmed the entries below KEY"},
            {"find", "KEY", 1, 1, "the first symbol of the catalogue whose key begins with KEY"},
            {"text", "SECTION KEY [ARGUMENT]", 2, 3, "a text of the language file"},
            {"ini", "SECTION/KEY", 1, 1, "a value of lyt.ini"},
            {"list", "SECTION/KEY", 1, 1, "a value of lyt.ini, item by item"},
            {"log", "TEXT", 1, 1, "write to the log of the document; see --level"},
            {"report", "[FOLDER]", 0, 2,
             "the report on this machine, with the files of FOLDER listed; see --out, --json, --redact"},
            {"doctor", "FOLDER...", 1, SIZE_MAX,
             "check a deployment: the library, lyt.ini, texts, dialogs and partner libraries in these folders"},
            {"path", "", 0, 0, "the folder of lyt.ini, as the library holds it"},
            {"doc", "", 0, 0, "the name of the document, as the library holds it"},
            {"help", "[script]", 0, 1, "this text, or the steps of a script"},
        },
        {
            {"--dialogs", "FOLDER", false, "the dialog descriptions (default: the samples beside this program)"},
            {"--init", "FOLDER", false, "the folder of lyt.ini (default: the samples)"},
            {"--document", "FILE", false, "the name of the document (default: inspection.doc in the temporary folder)"},
            {"--define", "WORD", false, "switch lines of the descriptions on; may be given more than once"},
            {"--language", "NAME", false, "use this language and not that of lyt.ini"},
            {"--kind", "N", true, "the kind of a group (default 1)"},
            {"--size", "N", true, "the size of the buffer (default 1024)"},
            {"--second-size", "N", true, "the size of the second buffer of group and child (default 1024)"},
            {"--level", "N", true, "the level of a log message (default 1)"},
            {"--para", nullptr, false, "open the catalogue under its other name, lytOpenTreeViewPara"},
            {"--script", "FILE", false, "operate the windows by the steps in this file; without it you do"},
            {"--shot", "FILE", false, "save a picture of the first window (a bitmap file)"},
            {"--limit", "SECONDS", true, "how long a step of a script may wait (default 10)"},
            {"--out", "FILE", false, "write the report there instead of printing it"},
            {"--json", nullptr, false, "write the report as JSON, block by block"},
            {"--redact", nullptr, false,
             "replace names and addresses in the report, also in a saved one: `report --redact FILE`"},
            {"--diff", nullptr, false, "compare two saved reports, `report --diff FILE FILE`; 1 when they differ"},
            {"--library", "FILE", false, "the library to call (default: lyt64.dll beside this program)"},
            {"--host", "FILE", false, "for doctor: the word processor's program (default: the one that is registered)"},
            {"--partners", "FOLDER", false, "for doctor: a folder to search for libraries, in place of this machine's"},
            {"--format", "FORMAT", false, "what doctor prints: text (default) or json"},
            {"--help", nullptr, false, "print this text"},
            commandline::versionOption,
        },
        "Results are printed one on each line, as \"name = value\". The program ends with 0\n"
        "when the call was made and its result is not 0, with 1 when it failed or answered 0 or when a step of the\n"
        "script failed, and with 2 when the command line or the script cannot be understood. `doctor` ends with 1\n"
        "when it finds something; it checks what is in its folders, and not the samples.\n\n"
        "`lytcall help script` lists the steps of a script.\n"};
    return form;
}

} // namespace lytcall
