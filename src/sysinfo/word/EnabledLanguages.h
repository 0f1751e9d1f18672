// The languages that the office package has enabled.
#pragma once

#include "sysinfo/frame/RegistryValue.h"

#include <afxtempl.h>

#include <vector>

// The number of the version in use, up to its first dot; 0 without a version.
int VersionNumberOf(const CString& currentVersion);
// The key of that version, below the user's own keys.
CString EnabledLanguagesKey(int n);
// Below version 16 a value is named by a locale identifier, later by the language's tag itself.
CString EnabledLanguageLine(int n, const RegistryValue& value);

// The values of the key, as far as they can be read.
std::vector<RegistryValue> ReadEnabledLanguages(int n);

// The tags of languages by their locale identifiers. Filled on first use, then kept.
extern CMap<int, int, CString, CString> lytLanguageTags;

// False when the identifier is not known; `tag` is then left alone.
bool FindLanguageTag(int locale, CString& tag);
