// The libraries that a description calls, and the functions that it calls in them.
#pragma once

#include "lytdlg/judge/Names.h"

namespace lytdlg
{

// A library that a statement names, with the functions that it calls.
struct PartnerCall
{
    const ValueStatement* statement = nullptr; // of the description
    Kind kind = Kind::Unknown;
    std::string library;
    std::vector<std::string> functions;
    bool isAction = false;
};

// In the order of the statements.
std::vector<PartnerCall> PartnerCallsOf(const Description& description);
// Where the statement of the call holds a word, its library or a function.
ClytSpan PlaceOf(const Description& description, const PartnerCall& call, const std::string& word);

// The name of a library's file, without a folder, as the platform completes it before it looks for the file.
std::string LibraryFileName(const std::string& name);
// What to do about a function that a library does not have, given those that it has.
std::string HintForFunction(const std::string& function, const std::vector<std::string>& known,
                            const std::string& otherwise);
// Whether a description names the library itself, which is not looked for.
bool IsOwnLibrary(const std::string& fileName);
// The functions of the library itself, as its definition has them.
const std::vector<std::string>& OwnFunctions();

} // namespace lytdlg
