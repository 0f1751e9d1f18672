// Texts as no author would write them: samples with random changes, and descriptions of random statements. The same number
// gives the same text on every machine.
#pragma once

#include <string>
#include <vector>

class Mutations
{
public:
    explicit Mutations(std::vector<std::string> seeds) : m_seeds(std::move(seeds)) {}

    // A seed with up to so many changes.
    std::string Changed(unsigned number, size_t mostChanges = 8) const;
    // A description with every section, of random words and delimiters.
    static std::string Generated(unsigned number);

private:
    std::vector<std::string> m_seeds;
};
