// Paths that the platform writes into a buffer; on Windows only.
#pragma once

#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <string>

namespace lytdlg
{

// What a function of the platform writes; empty when it fails.
template <class ASK>
std::filesystem::path AskedPath(ASK ask)
{
    constexpr DWORD longest = 32768;
    std::wstring path(longest, L'\0');
    path.resize(std::min<size_t>(ask(path.data(), longest), longest));
    return path;
}

} // namespace lytdlg
