#include "TestSource.h"

namespace
{

struct Catalogue
{
    TestSourceScript script;
    int next;
    int starts;
    int nexts;
};

int interrupted = 0;
void (*interrupt)() = nullptr;

Catalogue symbols;
Catalogue paragraphs;

Catalogue& CatalogueOf(char kind)
{
    return kind == 'P' ? paragraphs : symbols;
}

int32_t Start(Catalogue& catalogue, const char* selection)
{
    catalogue.starts += selection != nullptr && *selection == '\0' ? 1 : 100;
    catalogue.next = 0;
    return catalogue.script.startResult;
}

int32_t Next(Catalogue& catalogue, lytTreeRecord* record)
{
    ++catalogue.nexts;
    const TestSourceScript& script = catalogue.script;
    if (catalogue.next == script.count)
        return 0;
    *record = script.records[catalogue.next++];
    if (catalogue.next == interrupted)
        interrupt();
    return 1;
}

} // namespace

void TestSourceServe(char kind, const TestSourceScript* script)
{
    CatalogueOf(kind) = {*script, 0, 0, 0};
}

int TestSourceStarts(char kind)
{
    return CatalogueOf(kind).starts;
}

int TestSourceNexts(char kind)
{
    return CatalogueOf(kind).nexts;
}

void TestSourceInterrupt(int record, void (*act)())
{
    interrupted = record;
    interrupt = act;
}

int32_t lytTreeStart(const char* selection)
{
    return Start(symbols, selection);
}

int32_t lytTreeNext(lytTreeRecord* record)
{
    return Next(symbols, record);
}

int32_t lytParaTreeStart(const char* selection)
{
    return Start(paragraphs, selection);
}

int32_t lytParaTreeNext(lytTreeRecord* record)
{
    return Next(paragraphs, record);
}
