#include "fuzz/Targets.h"

#include "controls/ClytPushButtonControl.h"
#include "environment/ProcessState.h"
#include "liveform/LiveForm.h"
#include "support/DescriptionText.h"
#include "support/RecordedMessages.h"
#include "support/TestFolder.h"

#include <algorithm>
#include <sstream>

namespace
{

// Any exception of the class library's kind is a good end.
template <class Operation>
void Try(Operation operation)
{
    try
    {
        operation();
    }
    catch (CException* e)
    {
        e->ReportError();
        e->Delete();
    }
    TakeMessages();
}

// One folder for all runs.
CString WriteDescription(const std::string& text)
{
    static const TestFolder folder;
    return folder.Write("fuzz.dlg", text).c_str();
}

void Use(LiveForm& form)
{
    for (POSITION place = form.GetControlList().GetHeadPosition(); place != nullptr;)
    {
        ClytControl& control = *form.GetControlList().GetNext(place);
        // A button may call a library that shows a dialog of its own, which no one would close.
        if (dynamic_cast<ClytPushButtonControl*>(&control) == nullptr)
            Try([&] { form.Enter(control, "1"); });
    }
    Try([&] { form.RunInput("other", "a,b;(c)\"d"); });
    Try([&] { form.Confirm(); });
    CString composed;
    Try([&] { form.ComposeNamedOutput("other", composed); });
}

} // namespace

void FuzzDescription(const uint8_t* data, size_t size)
{
    lytInputKey = "1,a(b;c)[d]=\"e;f\",g";
    LiveForm form(WriteDescription({reinterpret_cast<const char*>(data), size}), "X,Y");
    if (form.Open())
        Use(form);
    TakeMessages();
    lytInputKey.Empty();
}

void FuzzScan(const uint8_t* data, size_t size)
{
    const std::string input(reinterpret_cast<const char*>(data), size);
    const std::string end = "$OUTPUT\n";
    const size_t split = std::min(input.find(end), size);
    DescriptionText description;
    description.layout = "TextBox 0, 0, 1, 1, .A\nListBox 0, 0, 1, 1, .L\nComboBox 0, 0, 1, 1, .C\n"
                         "CheckBox 0, 0, 1, 1, .K\nOptionGroup .G\nOptionButton 0, 0, 1, 1, .G1\n";
    description.values = "L: one = 1\nL: two = 2\nL: three = 3\nC: one = 1\nK: ON = 1\nG1 = 1\n";
    description.dependencies = "C/CLEAR = A\nL/ACTIVE = A(NOTNULL)\n";
    description.output = "A(1) = (\"%s %s\", L(\",\"), C)\n(\"%s %s %s\", A, K, G)\n";
    description.input = input.substr(0, split) + "\n";
    lytInputKey = input.c_str() + std::min(split + end.size(), size);
    LiveForm form(WriteDescription(description()));
    if (form.Open())
        Use(form);
    TakeMessages();
    lytInputKey.Empty();
}

void FuzzFormat(const uint8_t* data, size_t size)
{
    std::istringstream lines(std::string(reinterpret_cast<const char*>(data), size));
    std::string format;
    std::getline(lines, format);
    CStringArray items;
    items.SetSize(25);
    int count = 0;
    for (std::string line; count < items.GetCount() && std::getline(lines, line); ++count)
        items.SetAt(count, line.c_str());
    Try([&] { ClytDialog::FormatOutput(format.c_str(), items); });
    for (int index = 0; index < count; ++index)
    {
        CString text = items[index];
        ClytDialog::ExpandEscapes(text);
        ClytTokenList tokens;
        Try([&] { lytTokenizeGrouped(text + '\n', format.c_str(), tokens); });
        Try([&] { static_cast<void>(lytTokenize(text, DelimiterSet(format.c_str()), tokens)); });
    }
}
