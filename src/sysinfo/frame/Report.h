// The system report: one text that says how a workstation is set up, gathered as a whole and pulled line by line.
//
// A probe is split in two. *Facts* are plain records that platform calls fill; *lines* are functions without a platform
// that word them. A probe X consists of
//
//     X.h           the records, the functions that word them, and the function that fills the records
//     XLines.cpp    the wording; portable, in lyt_engine
//     XFacts.cpp    the platform calls, and the probe's own operation; Windows, in lyt_windows
//
// Its operation is declared in Probes.h and called at its place in Report.cpp.
#pragma once

#include <afxcoll.h>
#include <afxmt.h>

// Keeps two reports from being gathered at the same time.
extern CCriticalSection lytReportLock;

// Gathers the report, with `directory` as the directory to examine, in place of what the store held. Returns 1.
int lytGatherReport(const char* directory);

// Copies the line of that index, cut to size - 1 bytes, and returns 1. Without such a line it empties the store and
// returns 0. A null target or a size below 1 is answered with 0, and the store stays.
int lytReadReportLine(int index, char* target, int size);

// Every probe appends its lines.
void AddReportLine(CString line);
void AddReportLines(const CStringList& lines);
