// Every export with its arguments: a good value of each, and what a bad one means.
#pragma once

#include <vector>

class Scene;

enum class Kind
{
    text,
    number,
    buffer, // followed by its size
    spare,  // the same, for a buffer that may be missing
    size,
    spareSize,
};

// A number out of range gives the same as another, which the page words.
struct OddNumber
{
    int same;
    const char* wording;
};

struct Argument
{
    const char* text = ""; // a good one
    int number = 0;
    OddNumber negative = {};
    OddNumber huge = {};
    const char* name = ""; // of a number
    Kind kind = {};
};

struct Export
{
    const char* name;
    bool hasResult;
    std::vector<Argument> arguments;
    void (*prepare)(Scene& scene);
};

// The environment last, since dialogs need it.
const std::vector<Export>& Exports();
