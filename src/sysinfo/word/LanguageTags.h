// The tags of languages by their locale identifiers.
#pragma once

#include <afxtempl.h>

// Filled on first use, then kept.
extern CMap<int, int, CString, CString> lytLanguageTags;

// False when the identifier is not known; `tag` is then left alone.
bool FindLanguageTag(int locale, CString& tag);
