// The samples as the fuzzers begin with them.
#pragma once

#include <string>
#include <vector>

// The content of a file of the source folder.
std::string SourceFile(const std::string& name);
// The descriptions of the samples, and those that the tests of whole dialogs hold.
std::vector<std::string> SampleDescriptions();
// Each of them with the same lines before it.
std::vector<std::string> SampleDescriptionsAfter(const std::string& lines);
