/* What a caller written in C finds in lyt64.h. */
#pragma once

#ifdef __cplusplus
extern "C"
{
#endif

    int ReadDocNameFromC(const char* docName, char* buffer, int size);

#ifdef __cplusplus
}
#endif
