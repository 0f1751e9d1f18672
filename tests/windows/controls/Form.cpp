#include "Form.h"

#include "lyt64.h"

#include "support/Library.h"

#include <gtest/gtest.h>

#include <sstream>

namespace
{

constexpr int rowHeight = 22;
constexpr int columnWidth = 150;
constexpr int rowsPerColumn = 14;

bool IsShort(const std::string& line)
{
    return line.find(',') == std::string::npos;
}

// The name of a layout line: `type name`, or what stands after the last point.
std::string NameOf(const std::string& line)
{
    return line.substr(line.find_last_of(IsShort(line) ? ' ' : '.') + 1);
}

bool HasWindow(const std::string& line)
{
    return !line.starts_with("OptionGroup");
}

// List windows need room below them for more than one item.
int HeightOf(const std::string& type)
{
    return type == "ListBox" || type == "CheckListBox" || type == "ComboBox" || type == "DropListBox" ? 3 : 1;
}

class LayoutWriter
{
public:
    void Add(const std::string& line)
    {
        if (!IsShort(line))
        {
            lines << line << "\n";
            return;
        }
        const std::string type = line.substr(0, line.find(' '));
        const int height = HeightOf(type);
        const std::string name = NameOf(line);
        lines << type << " " << 8 + row / rowsPerColumn * columnWidth << ", " << 6 + row % rowsPerColumn * rowHeight
              << ", 130, " << height * rowHeight - 4 << ", \"" << name << "\", ." << name << "\n";
        row += height;
    }
    int Width() const { return (row / rowsPerColumn + 1) * columnWidth + 10; }
    std::string Text() const { return lines.str(); }

private:
    std::ostringstream lines;
    int row = 0;
};

std::string Joined(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}

std::vector<std::string> LayoutOf(const Description& description)
{
    std::vector<std::string> layout = description.layout;
    if (description.hasButtons)
        layout.insert(layout.end(), {"OKButton Ok", "CancelButton Cancel"});
    return layout;
}

} // namespace

Form::Form()
{
    texts["LATER"] = "Later";
}

Form& Form::In(const std::string& name, Step step)
{
    steps.emplace_back([name, step = std::move(step)](robot::Robot& user) { user.On(name, [step](HWND) { step(); }); });
    return *this;
}

Form& Form::Release(UINT key, Step step)
{
    const auto isUp = [key] { return !robot::IsKeyHeld(key); };
    steps.emplace_back(
        [key](robot::Robot& user)
        {
            user.When(
                "held", [key] { return robot::IsKeyHeld(key); }, [key] { robot::ReleaseKey(key); });
        });
    steps.emplace_back([isUp, step = std::move(step)](robot::Robot& user) { user.When("released", isUp, step); });
    return *this;
}

Form& Form::Message()
{
    steps.emplace_back([](robot::Robot& user) { user.AnswerMessage(); });
    return *this;
}

Form& Form::Ok(const std::string& name)
{
    return In(name, [] { robot::Press(GetDlgItem(robot::ActiveDialog(), IDOK)); });
}

Form& Form::Cancel(const std::string& name)
{
    return In(name, [] { PostMessageA(robot::ActiveDialog(), WM_COMMAND, IDCANCEL, 0); });
}

Form::Outcome Form::Open(const std::string& input)
{
    Write();
    Call<decltype(lytInitialiseEnvironment)>("lytInitialiseEnvironment")("test", folder.Path().c_str(),
                                                                         folder.Path().c_str());
    robot::Robot user;
    for (const auto& step : steps)
        step(user);
    steps.clear();

    // Large enough for a list of 10,000 items.
    GuardedBuffer buffer(1000000);
    Outcome outcome;
    outcome.answer =
        Call<decltype(lytSymbolPropertyDialog)>("lytSymbolPropertyDialog")(input.c_str(), buffer.Data(), buffer.Size());
    if (outcome.answer != 0)
        outcome.text = buffer.Text();
    outcome.messages = user.Messages();
    EXPECT_TRUE(user.Done()) << user.Log();
    return outcome;
}

HWND Form::operator[](const std::string& name) const
{
    const std::string title = robot::TextOf(robot::ActiveDialog());
    const auto other = dialogs.find(title);
    size_t place = 0;
    for (const std::string& line : LayoutOf(other != dialogs.end() ? other->second : main))
    {
        if (NameOf(line) == name)
            return robot::ChildAt(robot::ActiveDialog(), place);
        place += HasWindow(line) ? 1 : 0;
    }
    ADD_FAILURE() << "no control " << name;
    return nullptr;
}

void Form::Write() const
{
    folder.Write("lyt.ini", "[global]\r\nCurrent Language=Test\r\n");
    WriteDescription("Main", main);
    for (const auto& [name, description] : dialogs)
        WriteDescription(name, description);

    // One text a control, read like its name unless the test says otherwise.
    std::map<std::string, std::string> all = {{"Main", "Main"}};
    const auto addNames = [&](const Description& description)
    {
        for (const std::string& line : LayoutOf(description))
            all.emplace(NameOf(line), NameOf(line));
    };
    addNames(main);
    for (const auto& [name, description] : dialogs)
    {
        all.emplace(name, name);
        addNames(description);
    }
    for (const auto& [key, text] : texts)
        all.insert_or_assign(key, text);

    // An argument of a numbered message shows between its quotes.
    std::ostringstream language;
    language << "[Dialog_Error]\r\n";
    for (int number = 200; number < 260; ++number)
        language << number << "=" << number << " ''\r\n";
    language << "[Buttons]\r\n001=OK\r\n002=Cancel\r\n[MsgBox]\r\nREFUSED=refused\r\n[TEXTS]\r\n";
    for (const auto& [key, text] : all)
        language << key << "=" << text << "\r\n";
    folder.Write("lang\\Test.nls", language.str());
}

void Form::WriteDescription(const std::string& name, const Description& description) const
{
    LayoutWriter layout;
    for (const std::string& line : LayoutOf(description))
        layout.Add(line);
    const std::string text = "$VERSION 1\n$LAYOUT TEXTS\nBegin Dialog Box " + std::to_string(layout.Width()) +
                             ", 330, \"" + name + "\", .Box\n" + layout.Text() + "End Dialog\n$VALUES\n" +
                             Joined(description.values) + "$DEPENDANCES\n" + Joined(description.rules) +
                             "$EVALUATION, x\n" + Joined(description.evaluation) + "$INPUT, parent\n" +
                             Joined(description.input) + "$OUTPUT\n" + Joined(description.output) + "$END\n";
    folder.Write(name == "Main" ? "lytInSym.dlg" : name + ".dlg", text);
}
