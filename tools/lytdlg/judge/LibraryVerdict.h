// What the library says when it constructs the dialog of a description.
#pragma once

#include "lytdlg/judge/Description.h"

#include <optional>

namespace lytdlg
{

// Why the library refuses a description, and at which line of the file.
struct Refusal
{
    std::string number; // of its message; empty for a failure of the class library
    std::string words;  // what it shows, as far as that needs no language file
    std::string argument;
    int line = 0;
};

// Constructs the dialog, without texts and with an empty input; nothing when the library takes it. Messages on the way
// are answered.
std::optional<Refusal> RefusalOf(const Description& description);

} // namespace lytdlg
