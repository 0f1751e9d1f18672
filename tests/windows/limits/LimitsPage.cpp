#include "LimitsPage.h"

namespace
{

const char* const head = R"(# What happens when somebody breaks the rules

Each mistake has one outcome, and the process continues, unless its row says otherwise. A test tries every row. *The same* refers to
the row above.

## Bad arguments

*Refused* means: the result is 0, no buffer is written, no window is shown, and nothing else happens. A buffer must really have its
stated size, and one byte more where [exports.md](exports.md) says so: the library cannot check that. An invalid pointer ends the
process, and so does a text without an end.

)";

std::string TableOf(const LimitTable& table)
{
    std::string text = "\n## " + std::string(table.title) + "\n\n" + table.about + "\n\n";
    text += "| " + std::string(table.subject) + " | breach | outcome |\n|---|---|---|\n";
    for (const Limit& limit : table.limits)
        text += std::string("| ") + limit.subject + " | " + limit.breach + " | " + limit.outcome + " |\n";
    return text;
}

} // namespace

std::string PageOf(const std::string& arguments, const std::vector<const LimitTable*>& tables)
{
    std::string page = head + arguments;
    for (const LimitTable* table : tables)
        page += TableOf(*table);
    return page;
}
