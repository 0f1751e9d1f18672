// The exports for texts, lists and the log, over a folder with `lyt.ini` and a language file.
#pragma once

#include "lyt64.h"

#include "support/Library.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

class TextsFixture : public testing::Test
{
protected:
    TextsFixture()
    {
        WriteIni("");
        WriteTexts("");
        SetDocument("doc.rtf");
    }
    ~TextsFixture() override { release(); }

    void WriteIni(const std::string& lines) const
    {
        folder.Write("lyt.ini", "[global]\r\nCurrent Language=Test\r\n" + lines);
    }
    void WriteTexts(const std::string& lines) const { folder.Write("lang/Test.nls", lines); }
    // Names a document in the folder.
    void SetDocument(const std::string& name) const
    {
        initialise((folder.Path() + "\\" + name).c_str(), folder.Path().c_str(), folder.Path().c_str());
    }

    const TestFolder folder;
    decltype(lytInitialiseEnvironment)* initialise =
        Call<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment");
    decltype(FreeGlobalObject)* release = Call<decltype(FreeGlobalObject)>("FreeGlobalObject");
    decltype(lytGetTextForKey)* textForKey = Call<decltype(lytGetTextForKey)>("lytGetTextForKey");
    decltype(lytGetTextFromIniFile)* textFromIni = Call<decltype(lytGetTextFromIniFile)>("lytGetTextFromIniFile");
    decltype(lytListFromIniStart)* listStart = Call<decltype(lytListFromIniStart)>("lytListFromIniStart");
    decltype(lytListFromIniNext)* listNext = Call<decltype(lytListFromIniNext)>("lytListFromIniNext");
    decltype(lytWriteToLogFile)* writeToLog = Call<decltype(lytWriteToLogFile)>("lytWriteToLogFile");
};
