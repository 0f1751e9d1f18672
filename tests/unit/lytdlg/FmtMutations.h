// Descriptions as no author would write them: samples with random changes, and files of random statements. The same number
// gives the same text on every machine.
#pragma once

#include <random>
#include <string>
#include <vector>

class FmtMutations
{
public:
    explicit FmtMutations(std::vector<std::string> seeds) : m_seeds(std::move(seeds)) {}

    // A seed with up to eight changes.
    std::string Changed(unsigned number);
    // A file with every section, of random words and delimiters.
    static std::string Generated(unsigned number);

private:
    std::vector<std::string> m_seeds;
};
