#include "sysinfo/system/Hardware.h"

namespace
{

unsigned long long Megabytes(unsigned long long bytes)
{
    return bytes >> 20;
}

CString CountLine(const char* label, unsigned count)
{
    CString line;
    line.Format("%s%u", label, count);
    return line;
}

CString MemoryLine(const char* label, unsigned long long bytes)
{
    CString line;
    line.Format("%s%llu MB", label, Megabytes(bytes));
    return line;
}

CString DiskLine(const char* label, const CString& root, const char* separator, unsigned long long bytes)
{
    CString line;
    line.Format("%s%s%s%7llu MB", label, root.GetString(), separator, Megabytes(bytes));
    return line;
}

CString Root(const CString& directory)
{
    CString root = directory.Left(3);
    root.MakeUpper();
    return root;
}

} // namespace

std::vector<CString> DiskRoots(const CString& windowsDirectory, const CString& installDirectory)
{
    std::vector<CString> roots = {Root(windowsDirectory)};
    const CString installRoot = Root(installDirectory);
    if (!(installRoot == roots.front()))
        roots.push_back(installRoot);
    return roots;
}

void AddHardwareLines(const HardwareFacts& facts, CStringList& lines)
{
    lines.AddTail(CountLine("Number Of Processors : ", facts.processors));
    if (!facts.processorName.IsEmpty())
        lines.AddTail("CPU Name  : " + facts.processorName);
    if (facts.processorSpeed != 0)
        lines.AddTail(CountLine("CPU Speed : ", facts.processorSpeed));
    lines.AddTail(CountLine("Memory in use: ", facts.memoryLoad) + " %");
    lines.AddTail(MemoryLine("Total physical memory : ", facts.totalPhysical));
    lines.AddTail(MemoryLine("Free physical memory  : ", facts.freePhysical));
    lines.AddTail(MemoryLine("Total paging file     : ", facts.totalPagingFile));
    lines.AddTail(MemoryLine("Free paging file      : ", facts.freePagingFile));
    lines.AddTail(MemoryLine("Total virtual memory  : ", facts.totalVirtual));
    lines.AddTail(MemoryLine("Free virtual memory   : ", facts.freeVirtual));
    lines.AddTail(CountLine("Page Size : ", facts.pageSize));
    lines.AddTail(CountLine("Virtual Memory Granularity : ", facts.granularity));
    for (const DiskFacts& disk : facts.disks)
    {
        lines.AddTail(DiskLine("Total Hard Disk Space on ", disk.root, " : ", disk.total));
        lines.AddTail(DiskLine("Free Hard Disk Space on ", disk.root, "  : ", disk.freeToCaller));
    }
}

CString ScreenLine(int width, int height)
{
    CString line;
    line.Format("Screen Resolution: %d x %d", width, height);
    return line;
}
