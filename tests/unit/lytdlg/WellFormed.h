// Whether a text is well-formed XML, as far as lytdlg writes it.
#pragma once

#include <string>

// Empty for a well-formed text, else what is wrong and where.
std::string MistakeOfXml(const std::string& text);
