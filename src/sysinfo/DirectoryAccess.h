// Whether a directory can be read and written.
#pragma once

#include <afx.h>

#include <optional>

// What keeps the directory from being used; `error` is an `errno` value. Nothing for any other value.
std::optional<CString> DirectoryAccessLine(int error, const CString& directory);
