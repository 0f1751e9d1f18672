// How the machine's locale is set, and for which languages Windows is installed.
#pragma once

#include <afxcoll.h>

#include <functional>

// A text of the locale tables, empty when it cannot be read.
using ReadLocaleText = std::function<CString(unsigned locale, unsigned type)>;

// Whether a language group is installed. An empty function means a Windows that does not know the groups.
using IsGroupInstalled = std::function<bool(unsigned group)>;

void AddLocaleLines(const ReadLocaleText& readText, CStringList& lines);

// Adds nothing at all when the function is empty.
void AddLanguageGroupLines(const IsGroupInstalled& isInstalled, CStringList& lines);
