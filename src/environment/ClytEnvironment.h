// Knows where things are: the folders, the document, the configuration file, the language and its texts.
#pragma once

#include "environment/ClytReportLines.h"

// What a language text reads as when the language file does not hold it.
inline constexpr const char* lytNoValue = "no value present";
// What a value of `lyt.ini` reads as when it is not there.
inline constexpr const char* lytNoEntry = "Entry not found";

class ClytEnvironment : public CObject
{
public:
    void SetInitPath(CString path) { initPath = std::move(path); }
    void SetDialogPath(CString path) { dialogPath = std::move(path); }
    void SetDocName(CString name) { docName = std::move(name); }
    const CString& GetInitPath() const { return initPath; }
    const CString& GetDialogPath() const { return dialogPath; }
    // The full name of a file in the dialog folder.
    CString GetDescriptionFile(const CString& name) const { return dialogPath + "\\" + name; }
    const CString& GetDocName() const { return docName; }

    // The define list: texts joined by commas, handed to every description file that is read.
    void AddDialogDefine(const CString& define);
    void ClearDialogDefine() { dialogDefine.Empty(); }
    const CString& GetDialogDefine() const { return dialogDefine; }

    // The full name of `lyt.ini`.
    CString GetIniFileName() const;
    // The current language of `lyt.ini`, at most 74 bytes, or the sentinel.
    CString GetLanguage() const;
    // The full name of that language's file, whether it exists or not.
    CString GetLanguageFileName() const;
    // The log level as text, or "0".
    CString GetLogLevel() const;
    // A display text of the language file, at most 74 bytes before the argument is put after its first apostrophe.
    CString GetText(const char* section, const char* key, const CString& argument) const;
    CString GetText(const char* section, const char* key) const { return GetText(section, key, CString()); }
    // A value of `lyt.ini`, at most 1023 bytes.
    CString GetIniValue(const char* section, const char* key) const;

    // Empties what belongs to one run of calls; the define list and the version in use stay.
    void Reset();

    CString lytWordVersions;  // the installed word processors, joined by "; "
    CString lytWordCurrent;   // the one in use
    CString lytOfficeRelease; // Office's release ids
    CString lytOfficeVersion; // Office's version
    ClytReportLines lytReportLines;

private:
    CString initPath;
    CString dialogPath;
    CString docName;
    CString dialogDefine;
};

extern ClytEnvironment lytEnvironment;
