#include "lytdlg/text/Json.h"

#include <cstdio>

namespace lytdlg
{

void PrintJson(const Json& json)
{
    std::puts(json.dump(2, ' ', false, Json::error_handler_t::replace).c_str());
}

} // namespace lytdlg
