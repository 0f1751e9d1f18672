// Names of directories as the report joins them with names of files.
#pragma once

#include <afx.h>

inline CString WithSeparator(const CString& directory)
{
    return directory.Right(1) == "\\" ? directory : directory + "\\";
}
