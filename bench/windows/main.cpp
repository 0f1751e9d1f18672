// What the shipped library costs beside the same platform calls made by hand.
#include "windows/Works.h"

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    const int code = RunBenches(argc, argv,
                                {
                                    {"rules", {50, 500, 5000}, MeasureRulesOfForm},
                                    {"rules-by-controls", {20, 200, 2000}, MeasureControlsOfForm},
                                    {"dialog", {6, 60, 600}, MeasureDialog},
                                    {"list", {100, 1000, 10000}, MeasureListBox},
                                    {"check-list", {100, 1000, 10000}, MeasureCheckList},
                                    {"drop-list", {100, 1000, 10000}, MeasureDropList},
                                    {"list-emptied", {100, 1000, 10000}, MeasureListBoxEmptied},
                                    {"check-list-emptied", {100, 1000, 10000}, MeasureCheckListEmptied},
                                    {"drop-list-emptied", {100, 1000, 10000}, MeasureDropListEmptied},
                                    {"all-values", {10, 100, 1000}, MeasureAllValues},
                                    {"tree-first", {200, 2000, 20000}, MeasureTreeFirst},
                                    {"tree-later", {200, 2000, 20000}, MeasureTreeLater},
                                    {"tree-lookup", {200, 2000, 20000}, MeasureTreeLookup},
                                    {"log", {10, 100, 1000}, MeasureLog},
                                    {"log-alone", {1, 10, 100}, MeasureLogWithoutCompanion},
                                    {"report", {2, 20, 200}, MeasureReport},
                                    {"registry", {50, 500, 5000}, MeasureRegistry},
                                    {"load", {1}, MeasureLoading},
                                });
    // The forms and calls that the tests share say so when something is missing.
    return testing::UnitTest::GetInstance()->Failed() ? 1 : code;
}
