// The end of the report, where every probe appends its lines.
#pragma once

#include <afxcoll.h>

void AddReportLine(CString line);
void AddReportLines(const CStringList& lines);
