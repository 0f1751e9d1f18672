// All that the library reads of a description: every record with the number of the line that ends it, and every failure, in
// order. Two descriptions with the same records are the same dialog.
#pragma once

#include <string>

// The define list is a text of names joined by commas. After a failure, reading continues with the next line.
std::string RecordsOf(const std::string& fileName, const std::string& defines);
