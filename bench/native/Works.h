// The works that are measured on windows in memory.
#pragma once

#include "frame/Bench.h"

// Reading a description of so many control statements; the same lines cut by the standard library alone.
void MeasureStatements(const BenchMeter& meter);
// Making the controls of a description of so many statements; the same windows by hand.
void MeasureConstruction(const BenchMeter& meter);
// A run of so many rules; with a listener as well.
void MeasureRules(const BenchMeter& meter);
// Scanning a text of so many bytes; one pass over the same text that looks for its separators.
void MeasureScan(const BenchMeter& meter);
// The same with the pieces set to two fields in turn; the fields alone.
void MeasureScanIntoFields(const BenchMeter& meter);
// Composing a text of so many bytes; one copy of it; the fields asked by hand and put together.
void MeasureComposition(const BenchMeter& meter);
// Reading a report of so many lines to its end; copying the same lines.
void MeasureReportLines(const BenchMeter& meter);
// A catalogue of so many records in several shapes: read from its source, shown again, searched in vain.
void MeasureTreeFill(const BenchMeter& meter);
void MeasureTreeRefill(const BenchMeter& meter);
void MeasureTreeSearch(const BenchMeter& meter);
// What somebody does with a sample dialog: open it on a placeholder, type into two fields, confirm, close; the same windows
// made, filled, typed into, read and destroyed by hand.
void MeasureSymbolJourney(const BenchMeter& meter);
// The same with the form that repeats a group, and a finding from the dialog inside it.
void MeasureFormJourney(const BenchMeter& meter);
// A description of so many fields judged; the reading of it alone.
void MeasureCheck(const BenchMeter& meter);
// Brought into its form, and drawn; its lines copied.
void MeasureFmt(const BenchMeter& meter);
void MeasurePreview(const BenchMeter& meter);
// What the language server does for a description of so many lines, and over so many dialogs.
void MeasureEditorChange(const BenchMeter& meter);
void MeasureEditorCompletion(const BenchMeter& meter);
void MeasureEditorRename(const BenchMeter& meter);
// The memory of a process with so many dialogs that are open and judged.
void MeasureEditorMemory(const BenchMeter& meter);
