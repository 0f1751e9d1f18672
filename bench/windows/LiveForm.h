// A dialog in the making, opened by the library as it ships.
#pragma once

#include "lyt64.h"

#include "cases/CaseForm.h"
#include "robot/WindowRobot.h"
#include "support/Library.h"

#include <stdexcept>

// Opens the dialog from the folder, acts on it, and confirms it.
inline void ActOn(const CaseForm& form, const TestFolder& folder, const std::function<void()>& act)
{
    folder.Write("lyt.ini", "[global]\r\nCurrent Language=Test\r\n");
    form.Write(folder);
    Call<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")("test", folder.Path().c_str(),
                                                                         folder.Path().c_str());
    robot::Robot user;
    user.On(CaseForm::TitleOf(""),
            [&act](HWND dialog)
            {
                act();
                robot::Press(GetDlgItem(dialog, IDOK));
            });
    char result[300] = "";
    Call<decltype(lytSymbolPropertyDialog)>("lytSymbolPropertyDialog")("", result, sizeof result - 1);
    if (!user.Done())
        throw std::runtime_error(user.Log());
}

inline void ActOn(const CaseForm& form, const std::function<void()>& act)
{
    ActOn(form, TestFolder(), act);
}
