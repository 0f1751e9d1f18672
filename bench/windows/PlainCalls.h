// The platform calls of the system report on a machine without a word processor, with their answers thrown away: what a
// report cannot cost less than.
#pragma once

// `directory` is the directory to examine, `iniFile` the full name of lyt.ini, `fonts` the names in it, ended by null.
void MakePlainCalls(const char* directory, const char* iniFile, const wchar_t* const* fonts);
