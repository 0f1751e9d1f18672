// A form with a control of every type word, most of them with something to do, and a dialog "Inner" that one opens.
#pragma once

#include "Form.h"

#include <gtest/gtest.h>

class WholeForm : public testing::Test
{
protected:
    WholeForm();

    // The name of the control that has the focus, an edit inside a combo box counting as the box.
    std::string FocusName() const;

    Form form;
};
