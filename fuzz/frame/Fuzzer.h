// What a fuzzer is. A fuzzer reads and writes memory only; each input comes to its end, and changes nothing that
// another one would notice. Inputs are texts: a few lines first, and after them what fills the rest.
#pragma once

#include <span>
#include <string>
#include <vector>

struct Fuzzer
{
    const char* name;
    const char* input; // the lines of an input, for whoever reads one
    void (*run)(const std::string& input);
    std::vector<std::string> (*seeds)(); // what it begins with: made of the samples
};

std::span<const Fuzzer* const> Fuzzers();
// Null when none has the name.
const Fuzzer* FindFuzzer(const std::string& name);

extern const Fuzzer checkFuzzer;
extern const Fuzzer descriptionFuzzer;
extern const Fuzzer fmtFuzzer;
extern const Fuzzer formatFuzzer;
extern const Fuzzer groupsFuzzer;
extern const Fuzzer lspFuzzer;
extern const Fuzzer profileFuzzer;
extern const Fuzzer propertyFuzzer;
extern const Fuzzer reportFuzzer;
extern const Fuzzer scanFuzzer;
extern const Fuzzer sizesFuzzer;
extern const Fuzzer treeFuzzer;
extern const Fuzzer wizardFuzzer;
