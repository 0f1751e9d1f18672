// The command that a verb runs on files of one extension.
#pragma once

#include <afx.h>

#include <optional>

inline constexpr const char* lytShellExtension = ".pdf";

struct ShellCommandFacts
{
    bool isRegistered = false;      // the extension has a key
    std::optional<CString> type;    // of such files; none when it cannot be read
    bool isAvailable = false;       // the type has a key for the verb's command
    std::optional<CString> command; // none when it cannot be read
};

ShellCommandFacts ReadShellCommandFacts(const CString& verb);

// Nothing when type or command cannot be read.
std::optional<CString> ShellCommandLine(const CString& verb, const ShellCommandFacts& facts);
