// The report's end at which every probe appends.
#pragma once

#include <afx.h>

void AddReportLine(CString line);
