// A data library that fills edits, inside the test program: its one function answers what the test says.
#pragma once

#include <afx.h>

#include <functional>

class DataFunction
{
public:
    using Answer = std::function<CString(const CString& parameter)>;

    // What a value statement names: library and function.
    static constexpr const char* source = "FILLEDBY, unit-tests.exe, FillText";

    // Answers until the object dies; without one, nothing is written.
    explicit DataFunction(Answer answer);
    DataFunction(const DataFunction&) = delete;
    DataFunction& operator=(const DataFunction&) = delete;
    ~DataFunction();

    // The function of the library, as lytdata.h declares it.
    static int Call(const char* parameter, char* text, int size);
};
