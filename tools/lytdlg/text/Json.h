// JSON for programs that read what a command prints.
#pragma once

#include <nlohmann/json.hpp>

namespace lytdlg
{

// In the order in which it is written.
using Json = nlohmann::ordered_json;

// To standard output. Texts are in UTF-8; bytes that are none, as a path may hold them, are replaced.
void PrintJson(const Json& json);

} // namespace lytdlg
