// The export for the log, and what it raises.
#pragma once

#include "TextsFixture.h"

#include "environment/ClytException.h"

class LogFile : public TextsFixture
{
protected:
    void SetLevel(const std::string& level) const { WriteIni("[LogLevel]\r\nlevel=" + level + "\r\n"); }

    // The message of the exception that a call of the export lets out.
    std::string Failure(const char* text, int level) const
    {
        try
        {
            writeToLog(text, level);
        }
        catch (ClytException* e)
        {
            char message[75] = "";
            e->GetErrorMessage(message, sizeof message);
            e->Delete();
            return message;
        }
        return "";
    }
};
