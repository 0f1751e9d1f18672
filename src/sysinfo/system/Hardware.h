// Processors, memory, disks and screen.
#pragma once

#include <afxcoll.h>

#include <vector>

// One pair of disk lines; a root is a drive with its separator, in upper case.
struct DiskFacts
{
    CString root;
    unsigned long long total = 0;
    unsigned long long freeToCaller = 0;
};

// Sizes are in bytes.
struct HardwareFacts
{
    unsigned processors = 0;
    CString processorName;
    unsigned processorSpeed = 0;
    unsigned memoryLoad = 0;
    unsigned long long totalPhysical = 0;
    unsigned long long freePhysical = 0;
    unsigned long long totalPagingFile = 0;
    unsigned long long freePagingFile = 0;
    unsigned long long totalVirtual = 0;
    unsigned long long freeVirtual = 0;
    unsigned pageSize = 0;
    unsigned granularity = 0;
    std::vector<DiskFacts> disks; // those that could be asked
};

HardwareFacts ReadHardwareFacts();

// The roots of the two directories, only one when both are on one drive.
std::vector<CString> DiskRoots(const CString& windowsDirectory, const CString& installDirectory);

void AddHardwareLines(const HardwareFacts& facts, CStringList& lines);

CString ScreenLine(int width, int height);
