// A dialog object over a plain window: enough to hold controls.
#pragma once

#include "dialog/ClytDialog.h"
#include "support/ErrorTexts.h"
#include "support/RecordedMessages.h"

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <vector>

using Texts = std::vector<std::string>;

class ControlClass : public testing::Test
{
protected:
    ControlClass() : dialog("none.dlg", CString())
    {
        dialog.SubclassWindow(CreateWindowExA(0, "#32770", "", WS_POPUP, 0, 0, 300, 300, nullptr, nullptr,
                                              AfxGetInstanceHandle(), nullptr));
    }
    ~ControlClass() override
    {
        dialog.DestroyWindow();
        TakeMessages();
    }

    static void SetOption(ClytControl& control, const char* keyword, std::initializer_list<const char*> values)
    {
        CStringList list;
        for (const char* value : values)
            list.AddTail(value);
        control.SetOption(list, keyword);
    }

    const ErrorTexts texts;
    ClytDialog dialog;
};
