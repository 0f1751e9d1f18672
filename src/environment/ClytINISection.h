// One section of a configuration file as an ordered list of lines, with the lengths that their columns need.
#pragma once

#include <afx.h>

#include <list>

class ClytINIStruct
{
public:
    ClytINIStruct() = default;
    ClytINIStruct(const ClytINIStruct&) = default;
    ClytINIStruct& operator=(const ClytINIStruct&) = default;
    virtual ~ClytINIStruct() = default;

    CString key;
    CString value;
};

class ClytINISection : public std::list<ClytINIStruct>
{
public:
    // A null pointer is an empty text.
    ClytINISection(const char* file, const char* section) : fileName(file), sectionName(section) {}
    ClytINISection(const ClytINISection&) = default;
    ClytINISection& operator=(const ClytINISection&) = default;
    virtual ~ClytINISection() = default;

    // Reads the section afresh, at most 2 KB of it; true when it has lines. The lengths only ever grow.
    virtual bool Read();

    const CString& GetSectionName() const { return sectionName; }
    size_t GetLongestKey() const { return longestKey; }
    size_t GetLongestValue() const { return longestValue; }

private:
    void AddLine(const char* line);

    CString fileName;
    CString sectionName;
    size_t longestKey = 0;
    size_t longestValue = 0;
};
