// A test's own form, its description and its texts.
#pragma once

#include "environment/ProcessState.h"
#include "liveform/LiveForm.h"
#include "support/DescriptionText.h"
#include "support/ErrorTexts.h"
#include "support/RecordedMessages.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

class FormTest : public testing::Test
{
protected:
    void TearDown() override
    {
        EXPECT_EQ(Messages(), "");
        lytInputKey.Empty();
    }

    // Reads the description, with the input that it scans.
    LiveForm& Open(const char* input = "") { return OpenText(text(), input); }
    LiveForm& OpenText(const std::string& description, const char* input = "")
    {
        MakeForm(description, input).Construct();
        return *form;
    }
    // The message of the failure that reading the description raises.
    std::string OpenFailure(const char* input = "") { return OpenTextFailure(text(), input); }
    std::string OpenTextFailure(const std::string& description, const char* input = "")
    {
        LiveForm& made = MakeForm(description, input);
        return RaisedMessage([&] { made.Construct(); });
    }
    LiveForm& MakeForm(const std::string& description, const char* input = "")
    {
        lytInputKey = input;
        form = std::make_unique<LiveForm>(folder.Write("test.dlg", description).c_str(), defines.c_str());
        return *form;
    }
    // The composed text of an output group; "none" when no rule holds.
    std::string Compose(const char* group = "parent")
    {
        CString composed = "none";
        form->ComposeNamedOutput(group, composed);
        return composed.GetString();
    }
    std::string Messages() const
    {
        std::string all;
        for (const std::string& message : TakeMessages())
            all += message + ";";
        return all;
    }

    const ErrorTexts folder{"[TEXTS]\r\nTITLE=the title\r\nLABEL=a label\r\n"
                            "[MsgBox]\r\nEMPTY=please fill in\r\nCLASH=do not do that\r\n"};
    DescriptionText text;
    std::string defines;
    std::unique_ptr<LiveForm> form;
};
