// Where the word processor's versions keep the user's and the workgroup's templates, and what they start with.
#pragma once

#include <afx.h>

#include <optional>

// A directory's place in the registry, below the user's own keys.
struct RegistryPlace
{
    enum class Kind
    {
        Value, // a value of the key
        Subkey // the default value of a subkey
    };

    CString key;
    CString name;
    Kind kind = Kind::Value;
};

// Nothing for a version that has no such directory.
std::optional<RegistryPlace> UserTemplatesPlace(int n);
std::optional<RegistryPlace> WorkgroupTemplatesPlace(int n);
std::optional<RegistryPlace> StartupPlace(int n);
