// The module lyt64.bas, run against the library as it ships, which is in a folder where nobody looks for it.
#pragma once

#include "Interpreter.h"

#include "robot/WindowRobot.h"
#include "support/Library.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <functional>
#include <optional>

using macros::Value;
using Lines = std::vector<std::string>;

class MacroTest : public testing::Test
{
protected:
    MacroTest();
    ~MacroTest() override;

    // A separate module, with these macros below it.
    void UseModule(const std::string& moreMacros = "", bool is64Bit = true);
    void CopyLibrary(const std::string& folderName) const;
    // Tells the module the folder of the library, and where dialogs and texts are.
    void Start(const std::string& document = "C:\\nowhere\\plan.doc");

    // Calls a procedure; what it says about its arguments by reference is in `texts` afterwards.
    Value Call(const std::string& name, const std::vector<Value>& arguments = {});
    long long NumberOf(const std::string& name, const std::vector<Value>& arguments = {});
    std::string TextOf(const std::string& name, const std::vector<Value>& arguments = {});
    // The text of the error that the procedure raises, and its number in `error`.
    std::string FailureOf(const std::string& name, const std::vector<Value>& arguments = {});

    // The argument of the last call, as it is afterwards.
    std::string TextAt(size_t index) const;
    Lines ItemsAt(size_t index) const;
    static Lines ItemsIn(const Value& collection);

    // In the next dialog with that title types the text, if one is given, and presses the button.
    void Answer(const std::string& title, const std::optional<std::string>& text, int button = IDOK);
    void Pick(const std::string& label, int button = IDOK);

    // The number of an error of the module.
    static constexpr long long Error(int number) { return -2147221504LL + number; }

    const TestFolder folder;
    robot::Robot robot;
    std::unique_ptr<macros::Interpreter> module;
    std::string moduleText;
    long long error = 0;

private:
    macros::Arguments m_arguments;
};

// A file that the build lays beside this program.
std::string ReadFileBeside(const std::string& name);

Value Given(const std::string& text);
