// Whole dialogs as data: each file in the folder `dialogs` is a test. A line is a word and its operand:
//
//     define NAMES          the define list
//     sample FILE           a description of the samples, with their texts
//     description           the lines up to a line "." are the description
//     input TEXT            what the dialog scans; \n stands for a line feed here and in all texts below
//     open                  read the description
//     fails TEXT            read it, and expect the message
//     enter NAME TEXT       what the user enters
//     run PART TEXT         scan a text into the controls by a part
//     value NAME TEXT       expect a control's value
//     enabled NAME, disabled NAME, shown NAME, hidden NAME
//     confirm TEXT          OK, and expect the result
//     refuse TEXT           OK, and expect the message that keeps the dialog open; empty for none
//     group NAME TEXT       expect the text of an output group
//
// Lines with `#` and empty lines are passed over.
#include "Form.h"

#include <filesystem>
#include <fstream>
#include <map>

namespace
{

namespace fs = std::filesystem;

std::vector<fs::path> DialogFiles()
{
    std::vector<fs::path> files;
    for (const auto& entry : fs::directory_iterator(LYT_SOURCE_FOLDER "/tests/unit/dialog/dialogs"))
        files.push_back(entry.path());
    std::sort(files.begin(), files.end());
    return files;
}

class WholeDialog : public FormTest, public testing::WithParamInterface<fs::path>
{
protected:
    void Do(const std::string& word, const std::string& operand);

    std::ifstream script{GetParam()};

private:
    void TakeDescription();
    void TakeSample(const std::string& name);
    void Expect(const std::string& got, const std::string& wanted) { EXPECT_EQ(got, wanted); }
    LiveForm& Made() { return MakeForm(description, input.c_str()); }
    // The message of a confirmation that keeps the dialog open.
    std::string Refusal();

    std::string description;
    std::string input;
};

std::string WithLineFeeds(std::string text)
{
    for (size_t place = text.find("\\n"); place != std::string::npos; place = text.find("\\n", place))
        text.replace(place, 2, "\n");
    return text;
}

// The first word of a text; the rest stays.
std::string TakeWord(std::string& text)
{
    const size_t end = text.find(' ');
    const std::string word = text.substr(0, end);
    text = end == std::string::npos ? "" : text.substr(end + 1);
    return word;
}

void WholeDialog::TakeDescription()
{
    description.clear();
    for (std::string line; std::getline(script, line) && line != ".";)
        description += line + "\n";
}

void WholeDialog::TakeSample(const std::string& name)
{
    std::ifstream file(LYT_SOURCE_FOLDER "/samples/dialogs/" + name, std::ios::binary);
    description.assign(std::istreambuf_iterator<char>(file), {});
    lytEnvironment.SetDialogPath(LYT_SOURCE_FOLDER "/samples/dialogs");
    lytEnvironment.SetInitPath(LYT_SOURCE_FOLDER "/samples/init");
}

std::string WholeDialog::Refusal()
{
    bool isConfirmed = false;
    std::string failure = RaisedMessage([&] { isConfirmed = form->Confirm(); });
    EXPECT_FALSE(isConfirmed);
    std::string shown = Messages();
    if (!shown.empty())
        shown.pop_back();
    return failure == "nothing was raised" ? shown : failure;
}

void WholeDialog::Do(const std::string& word, const std::string& operand)
{
    std::string rest = operand;
    const std::string name = TakeWord(rest);
    const std::map<std::string, std::function<void()>> steps = {
        {"define", [&] { defines = operand; }},
        {"sample", [&] { TakeSample(operand); }},
        {"description", [&] { TakeDescription(); }},
        {"input", [&] { input = operand; }},
        {"open", [&] { Expect(RaisedMessage([&] { Made().Construct(); }), "nothing was raised"); }},
        {"fails", [&] { Expect(RaisedMessage([&] { Made().Construct(); }), operand); }},
        {"enter", [&] { EXPECT_TRUE(form->Enter(name.c_str(), rest.c_str())); }},
        {"run", [&] { EXPECT_EQ(form->RunInput(name.c_str(), rest.c_str()), 1); }},
        {"value", [&] { Expect(form->Value(name.c_str()), rest); }},
        {"enabled", [&] { EXPECT_TRUE(form->IsEnabled(name.c_str())); }},
        {"disabled", [&] { EXPECT_FALSE(form->IsEnabled(name.c_str())); }},
        {"shown", [&] { EXPECT_TRUE(form->IsShown(name.c_str())); }},
        {"hidden", [&] { EXPECT_FALSE(form->IsShown(name.c_str())); }},
        {"refuse", [&] { Expect(Refusal(), operand); }},
        {"group", [&] { Expect(Compose(name.c_str()), rest); }},
        {"confirm",
         [&]
         {
             EXPECT_TRUE(form->Confirm());
             Expect(form->GetResult().GetString(), operand);
         }},
    };
    const auto step = steps.find(word);
    ASSERT_NE(step, steps.end()) << "unknown word " << word;
    step->second();
}

} // namespace

TEST_P(WholeDialog, ComesOutAsWritten)
{
    ASSERT_TRUE(script.is_open());
    for (std::string line; std::getline(script, line);)
    {
        SCOPED_TRACE(line);
        std::string operand = WithLineFeeds(line);
        const std::string word = TakeWord(operand);
        if (!word.empty() && word[0] != '#')
            Do(word, operand);
    }
}

INSTANTIATE_TEST_SUITE_P(Dialogs, WholeDialog, testing::ValuesIn(DialogFiles()),
                         [](const auto& file) { return file.param.stem().string(); });
