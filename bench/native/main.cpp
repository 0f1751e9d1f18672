// What the engine, and a whole dialog on windows in memory, cost.
#include "native/Works.h"

int main(int argc, char** argv)
{
    return RunBenches(argc, argv,
                      {
                          {"statements", {100, 1000, 10000}, MeasureStatements},
                          {"construction", {100, 1000, 10000}, MeasureConstruction},
                          {"rules-in-memory", {10, 100, 1000}, MeasureRules},
                          {"scan", {10'000, 100'000, 1'000'000}, MeasureScan},
                          {"scan-into-fields", {10'000, 100'000, 1'000'000}, MeasureScanIntoFields},
                          {"composition", {10'000, 100'000, 1'000'000}, MeasureComposition},
                          {"report-lines", {100, 1000, 10000}, MeasureReportLines},
                          {"tree-fill", {1000, 10'000, 100'000}, MeasureTreeFill},
                          {"tree-refill", {1000, 10'000, 100'000}, MeasureTreeRefill},
                          {"tree-search", {1000, 10'000, 100'000}, MeasureTreeSearch},
                          {"journey-symbol", {1}, MeasureSymbolJourney},
                          {"journey-form", {1}, MeasureFormJourney},
                          {"check", {10, 100, 1000}, MeasureCheck},
                          {"fmt", {10, 100, 1000}, MeasureFmt},
                          {"preview", {10, 100, 1000}, MeasurePreview},
                          {"editor-change", {100, 500}, MeasureEditorChange},
                          {"editor-completion", {100, 500}, MeasureEditorCompletion},
                          {"editor-rename", {10, 100}, MeasureEditorRename},
                          {"editor-memory", {500}, MeasureEditorMemory},
                      });
}
