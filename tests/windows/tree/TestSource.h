// A data source that serves what a test hands it. It is loaded as lytsrc.dll; its functions are found by name.
#pragma once

#include <lytsrc.h>

struct TestSourceScript
{
    const lytTreeRecord* records; // must live as long as they are served
    int count;
    int startResult;
};

extern "C"
{
    // Sets what one catalogue serves ('P' the para tree, 'S' the symbol tree) and forgets its calls.
    void TestSourceServe(char kind, const TestSourceScript* script);
    // The number of start calls since then that were given the empty text; any other text counts a hundred.
    int TestSourceStarts(char kind);
    int TestSourceNexts(char kind);
    // Acts from inside a next call: that which delivers the record of this number, counted from 1 in each run.
    void TestSourceInterrupt(int record, void (*act)());
}
