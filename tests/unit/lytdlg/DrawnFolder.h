// A folder with a description, its texts and what lytdlg draws of it.
#pragma once

#include "lytdlg/Commands.h"
#include "support/DescriptionText.h"
#include "support/ErrorTexts.h"

#include <gtest/gtest.h>

class Drawn : public testing::Test
{
protected:
    // Runs a command on the description and gives what it wrote into the file of that name.
    std::string Draw(const std::string& command, const std::string& description, const std::string& target,
                     std::vector<std::string> options = {})
    {
        const std::string dialog = folder.Write("test.dlg", description);
        options.insert(options.begin(), {command, dialog, "-o", folder.File(target)});
        Run(options);
        return folder.Has(target) ? folder.Read(target) : "";
    }

    void Run(const std::vector<std::string>& words)
    {
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        exitCode = lytdlg::Run(words);
        told = testing::internal::GetCapturedStderr();
        printed = testing::internal::GetCapturedStdout();
        for (size_t at = told.find(folder.Path()); at != std::string::npos; at = told.find(folder.Path()))
            told.erase(at, folder.Path().size() + 1);
    }

    const ErrorTexts folder{
        "[TEXTS]\r\nTITLE=A & B <1>\r\nLABEL=&Name:\r\nMARK=With && more\r\nLONG=a very long text\r\n"
        "[Buttons]\r\n001=&OK\r\n002=&Cancel\r\n"};
    int exitCode = -1;
    std::string told;    // on the error stream, the folder's path left out
    std::string printed; // on the output
};
