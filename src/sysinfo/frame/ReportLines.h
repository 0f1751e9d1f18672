// The report's end at which every probe appends.
#pragma once

#include <afxcoll.h>

void AddReportLine(CString line);
void AddReportLines(const CStringList& lines);
