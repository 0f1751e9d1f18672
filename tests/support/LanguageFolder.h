// A folder with `lyt.ini` and one language file, known to the environment while it lives.
#pragma once

#include "environment/ClytEnvironment.h"
#include "support/TestFolder.h"

class LanguageFolder : public TestFolder
{
public:
    // `texts` is the whole language file, `ini` what `lyt.ini` holds beside the choice of the language.
    explicit LanguageFolder(const std::string& texts, const std::string& ini = "")
    {
        Write("lang/Test.nls", texts);
        WriteIni(ini);
        lytEnvironment.SetDialogPath(Path().c_str());
        lytEnvironment.SetInitPath(Path().c_str());
    }
    LanguageFolder(const LanguageFolder&) = delete;
    LanguageFolder& operator=(const LanguageFolder&) = delete;
    ~LanguageFolder() { lytEnvironment.Reset(); }

    void WriteIni(const std::string& ini) const { Write("lyt.ini", "[global]\r\nCurrent Language=Test\r\n" + ini); }
};
