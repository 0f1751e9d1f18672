#include "ModuleReference.h"

#include <cstddef>

#include <winternl.h>

namespace
{

// The loader's record of a module, as far as it is read here. The platform has no function that tells how many hold a
// module, and where the loader counts them depends on its version: in the record itself, or in a node beside it. So each
// object first looks which of the two goes up with its own reference.
struct LoaderNode
{
    LIST_ENTRY modules;
    void* tags;
    LONG count;
};
struct LoaderRecord
{
    LIST_ENTRY loadOrder;
    LIST_ENTRY memoryOrder;
    LIST_ENTRY initialisationOrder;
    void* base;
    void* entryPoint;
    ULONG size;
    UNICODE_STRING path;
    UNICODE_STRING name;
    ULONG flags;
    SHORT count;
    USHORT threadSlot;
    LIST_ENTRY hashed;
    ULONG time;
    void* activationContext;
    void* lock;
    const LoaderNode* node;
};
static_assert(offsetof(LoaderRecord, base) == 0x30);
static_assert(offsetof(LoaderRecord, count) == 0x6C);
static_assert(offsetof(LoaderRecord, node) == 0x98);
static_assert(offsetof(LoaderNode, count) == 0x18);

// Of this module; lives as long as it is loaded.
const LoaderRecord* ownRecord = nullptr;
// References that had to stay.
int stayed = 0;

const LoaderRecord* FindRecord(HMODULE module) noexcept
{
    const PEB* process = nullptr;
    asm("movq %%gs:0x60,%0" : "=r"(process));
    const LIST_ENTRY& head = process->Ldr->InMemoryOrderModuleList;
    for (const LIST_ENTRY* entry = head.Flink; entry != &head; entry = entry->Flink)
    {
        const auto* record = CONTAINING_RECORD(entry, LoaderRecord, memoryOrder);
        if (record->base == module)
            return record;
    }
    return nullptr;
}

LONG CountInNode() noexcept
{
    return ownRecord != nullptr && ownRecord->node != nullptr ? ownRecord->node->count : 0;
}

LONG CountInRecord() noexcept
{
    return ownRecord != nullptr ? ownRecord->count : 0;
}

} // namespace

void ModuleReference::Prepare(HMODULE module) noexcept
{
    ownRecord = FindRecord(module);
}

ModuleReference::ModuleReference() noexcept
{
    const LONG inNode = CountInNode();
    const LONG inRecord = CountInRecord();
    if (!::GetModuleHandleExA(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS, reinterpret_cast<LPCSTR>(&FindRecord), &m_module))
        return;
    if (CountInNode() == inNode + 1)
        m_counter = CountInNode;
    else if (CountInRecord() == inRecord + 1)
        m_counter = CountInRecord;
}

ModuleReference::~ModuleReference()
{
    if (m_module == nullptr)
        return;
    ++stayed;
    for (; stayed > 0 && !IsLast(); --stayed)
        ::FreeLibrary(m_module);
}
