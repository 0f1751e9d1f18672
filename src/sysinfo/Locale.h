// How the machine's locale is set, and for which languages Windows is installed.
#pragma once

#include <afxcoll.h>

#include <functional>

// A text of the locale tables, empty when it cannot be read.
using ReadLocaleText = std::function<CString(unsigned locale, unsigned type)>;
// Whether a language group is installed.
using IsGroupInstalled = std::function<bool(unsigned group)>;

void AddLocaleLines(const ReadLocaleText& readText, CStringList& lines);

// An empty function stands for a Windows that does not know the groups: then there are no lines.
void AddLanguageGroupLines(const IsGroupInstalled& isInstalled, CStringList& lines);
