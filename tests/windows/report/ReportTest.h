// Gathers reports through the exports, from facts that the test lays into its prefix.
#pragma once

#include "lyt64.h"

#include "support/Library.h"
#include "support/RegistryFacts.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using Texts = std::vector<std::string>;

// A variable of the process's environment, back as it was when the object dies. Null takes it away.
class EnvironmentVariable
{
public:
    EnvironmentVariable(const char* name, const char* value);
    EnvironmentVariable(const EnvironmentVariable&) = delete;
    EnvironmentVariable& operator=(const EnvironmentVariable&) = delete;
    ~EnvironmentVariable();

private:
    std::string m_name;
    std::string m_before;
    bool m_wasSet;
};

class ReportTest : public testing::Test
{
protected:
    ReportTest();
    ~ReportTest() override;

    // Gathers a report and reads it to its end, which frees it.
    Texts Report(const char* directory = "");
    // The place of the folder of lyt.ini at the moment.
    std::string InitPath();
    // Writes `lyt.ini` into the folder that the library was given at first.
    void WriteIni(const std::string& content) { folder.Write("lyt.ini", content); }
    // Makes a folder of the test the installation directory.
    std::string InstallInto(const std::string& name);

    TestFolder folder;
    RegistryFacts registry;
    decltype(lytInitialiseEnvironment)* initialise =
        Call<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment");
    decltype(lytGetInitializationPath)* getInitPath =
        Call<decltype(lytGetInitializationPath)>("lytGetInitializationPath");
    decltype(FreeGlobalObject)* release = Call<decltype(FreeGlobalObject)>("FreeGlobalObject");
    decltype(lytSystemInfoInit)* gather = Call<decltype(lytSystemInfoInit)>("lytSystemInfoInit");
    decltype(lytSystemInfoRead)* readLine = Call<decltype(lytSystemInfoRead)>("lytSystemInfoRead");
};

// The place of the first line that begins so; the number of lines without one.
size_t FindLine(const Texts& lines, const std::string& beginning);
bool HasLine(const Texts& lines, const std::string& beginning);
// The first line that begins so.
std::string LineOf(const Texts& lines, const std::string& beginning);
// The lines after the first that begins with `first`, up to the next that begins with `last`.
Texts LinesBetween(const Texts& lines, const std::string& first, const std::string& last);
size_t CountLines(const Texts& lines, const std::string& beginning);
