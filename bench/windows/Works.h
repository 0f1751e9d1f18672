// The works that are measured with the library as it ships, under Wine.
#pragma once

#include "frame/Bench.h"

// A run of so many rules over 200 controls, and of 500 rules over so many controls.
void MeasureRulesOfForm(const BenchMeter& meter);
void MeasureControlsOfForm(const BenchMeter& meter);
// Lists with so many items from a data library, filled and emptied.
void MeasureListBox(const BenchMeter& meter);
void MeasureCheckList(const BenchMeter& meter);
void MeasureDropList(const BenchMeter& meter);
void MeasureListBoxEmptied(const BenchMeter& meter);
void MeasureCheckListEmptied(const BenchMeter& meter);
void MeasureDropListEmptied(const BenchMeter& meter);
// The values of so many items as the parameter of another list's fill.
void MeasureAllValues(const BenchMeter& meter);
// A dialog of so many controls, opened and closed.
void MeasureDialog(const BenchMeter& meter);
// Loading the library.
void MeasureLoading(const BenchMeter& meter);
// So many messages to the log, with a companion library and without one.
void MeasureLog(const BenchMeter& meter);
void MeasureLogWithoutCompanion(const BenchMeter& meter);
// The report on a workstation with so many files in the folder that it lists.
void MeasureReport(const BenchMeter& meter);
// So many keys of the registry as lines of the report.
void MeasureRegistry(const BenchMeter& meter);
// The browser over so many records, opened for the first time and again, and a lookup of the last of them.
void MeasureTreeFirst(const BenchMeter& meter);
void MeasureTreeLater(const BenchMeter& meter);
void MeasureTreeLookup(const BenchMeter& meter);
