#include "CaseForm.h"

#include "CaseWords.h"

#include "dialogs/DialogFixture.h"

#include <set>

namespace
{

constexpr int rowHeight = 22;
constexpr int columnWidth = 150;
constexpr int rowsPerColumn = 14;

bool IsShort(const std::string& line)
{
    return line.find(',') == std::string::npos && !line.starts_with("OptionGroup");
}

std::string NameIn(const std::string& line)
{
    return line.substr(line.find_last_of(IsShort(line) ? ' ' : '.') + 1);
}

bool HasWindow(const std::string& line)
{
    return line[0] != '<' && line[0] != '>' && !line.starts_with("OptionGroup");
}

// List windows need room below them for more than one item.
int HeightOf(const std::string& type)
{
    return type.ends_with("ListBox") || type == "ComboBox" ? 3 : 1;
}

std::string Joined(const std::vector<std::string>& lines)
{
    std::string text;
    for (const std::string& line : lines)
        text += line + "\n";
    return text;
}

} // namespace

std::vector<std::string> CaseForm::Dialog::Layout() const
{
    std::vector<std::string> layout;
    if (const auto lines = sections.find("layout"); lines != sections.end())
        layout = lines->second;
    if (hasButtons)
        layout.insert(layout.end(), {"OKButton Ok", "CancelButton Cancel"});
    return layout;
}

std::string CaseForm::Dialog::Text(const std::string& title) const
{
    Description description;
    description.controls.clear();
    int row = 0;
    for (const std::string& line : Layout())
    {
        if (!IsShort(line))
        {
            description.controls += line + "\n";
            continue;
        }
        const std::string type = line.substr(0, line.find(' '));
        const std::string place = std::to_string(8 + row / rowsPerColumn * columnWidth) + ", " +
                                  std::to_string(6 + row % rowsPerColumn * rowHeight) + ", 130, " +
                                  std::to_string(HeightOf(type) * rowHeight - 4);
        description.controls += type + " " + place + ", \"" + NameIn(line) + "\", ." + NameIn(line) + "\n";
        row += HeightOf(type);
    }
    const int width = (row / rowsPerColumn + 1) * columnWidth + 10;
    description.begin = "Begin Dialog Box " + std::to_string(width) + ", 330, \"" + title + "\", .Box\n";
    const auto section = [&](const char* name)
    {
        const auto lines = sections.find(name);
        return lines != sections.end() ? Joined(lines->second) : "";
    };
    description.values = section("values");
    description.rules = section("rules");
    description.checks = section("evaluation");
    description.input = "$INPUT, parent\n" + section("input");
    description.output = "$OUTPUT\n" + section("output");
    return description.Text();
}

bool CaseForm::Take(const std::string& word, const std::string& operand)
{
    static const std::set<std::string> sections = {"layout", "values", "rules", "evaluation", "input", "output"};
    Dialog& dialog = m_dialogs[m_described];
    const bool isMore = word.ends_with('+');
    const std::string section = word.substr(0, word.size() - (isMore ? 1 : 0));
    if (sections.contains(section))
    {
        std::vector<std::string>& lines = dialog.sections[section];
        if (!isMore)
            lines.clear();
        for (const std::string& line : Split(operand, " ; "))
            lines.push_back(line);
    }
    else if (word == "takes")
        dialog.sections["input"] = {"Start: (\"#\", End, \"Rest\", End = " + operand};
    else if (word == "dialog")
        m_dialogs.try_emplace(m_described = operand);
    else if (word == "plain")
        dialog.hasButtons = false;
    else if (word == "text")
        m_texts[operand.substr(0, operand.find('='))] = operand.substr(operand.find('=') + 1);
    else if (word == "notexts")
        m_hasTexts = false;
    else if (word == "define")
        m_defines = operand;
    else
        return false;
    return true;
}

void CaseForm::Write(const TestFolder& folder) const
{
    auto texts = m_texts;
    for (const auto& [name, dialog] : m_dialogs)
    {
        folder.Write((name.empty() ? "lytInSym" : name) + ".dlg", dialog.Text(name.empty() ? "Title" : name));
        texts.emplace(name, name);
        for (const std::string& line : dialog.Layout())
            texts.emplace(NameIn(line), NameIn(line));
    }
    std::string lines = "[TEXTS]\r\n";
    for (const auto& [key, text] : texts)
        lines += key + "=" + text + "\r\n";
    lines += m_hasTexts ? SharedTexts() : "";
    folder.Write("lang/Test.nls", lines);
}

HWND CaseForm::Window(HWND dialog, const std::string& name) const
{
    const std::string title = robot::TextOf(dialog);
    const auto described = m_dialogs.find(title == TitleOf("") ? "" : title);
    if (described == m_dialogs.end())
        return nullptr;
    size_t place = 0;
    for (const std::string& line : described->second.Layout())
    {
        if (NameIn(line) == name)
            return robot::ChildAt(dialog, place);
        place += HasWindow(line) ? 1 : 0;
    }
    return nullptr;
}

HWND CaseForm::Window(const std::string& name) const
{
    for (HWND dialog = robot::ActiveDialog(); dialog != nullptr; dialog = GetWindow(dialog, GW_OWNER))
    {
        if (HWND window = Window(dialog, name); window != nullptr)
            return window;
    }
    ADD_FAILURE() << "no control " << name;
    return nullptr;
}

bool CaseForm::Has(const std::string& name) const
{
    for (const auto& [title, dialog] : m_dialogs)
    {
        for (const std::string& line : dialog.Layout())
        {
            if (NameIn(line) == name)
                return true;
        }
    }
    return false;
}
