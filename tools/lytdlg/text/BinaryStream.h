// The standard streams byte for byte, where a platform would translate line ends on the way.
#pragma once

#include <cstdio>
#include <string>

namespace lytdlg
{

std::string ReadStandardInput();
// To the standard output, after all that has been printed there.
void WriteBytes(const std::string& bytes);

} // namespace lytdlg
