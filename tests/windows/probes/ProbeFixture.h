// Facts of one test and the lines that a probe adds for them.
#pragma once

#include "support/RegistryFacts.h"
#include "support/TestFolder.h"
#include "sysinfo/frame/Probes.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

class ProbeFixture : public testing::Test
{
protected:
    using Texts = std::vector<std::string>;

    ProbeFixture();
    ~ProbeFixture() override;

    // The lines added since the last call.
    static Texts TakeLines();
    // The lines that a probe adds.
    template <class Probe>
    static Texts LinesOf(Probe probe)
    {
        TakeLines();
        probe();
        return TakeLines();
    }
    // This test program's own file: a 64-bit program.
    static std::string OwnFile();
    // Registers an installation directory.
    void Install(const std::string& directory);

    // Word processors as their set-ups register them.
    void SetCurrentVersion(const std::string& program);
    void SetWordProgram(const std::string& file);

    RegistryFacts registry;
    const TestFolder folder;
};
