// The sample dialogs in one language, in a separate folder, for the library to open.
#pragma once

#include "support/TestFolder.h"

#include <string>

class SampleSet
{
public:
    explicit SampleSet(const std::string& language);
    SampleSet(const SampleSet&) = delete;
    SampleSet& operator=(const SampleSet&) = delete;
    ~SampleSet();

    // Opens the dialog of that file on a text, and answers as the export does.
    int Open(const std::string& file, const std::string& text) const;

private:
    TestFolder m_folder;
};
