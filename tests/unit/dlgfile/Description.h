// A description under test: an open file that is gone with it, and its tokens as one text.
#pragma once

#include "dlgfile/ClytDialogFile.h"
#include "support/Cases.h"
#include "support/ErrorTexts.h"
#include "support/TestFolder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

class Description : public ClytDialogFile
{
public:
    explicit Description(const std::string& content, const char* defineList = nullptr) : ClytDialogFile(defineList)
    {
        EXPECT_TRUE(Open(m_folder.Write("test.dlg", content).c_str(), modeRead));
    }
    Description(const Description&) = delete;
    Description& operator=(const Description&) = delete;
    ~Description() override { Close(); }

private:
    TestFolder m_folder;
};

// The tokens, each with its delimiter: "a,b=" and the line end as "/".
inline std::string Shown(const ClytTokenList& tokens)
{
    std::string shown;
    for (POSITION place = tokens.GetHeadPosition(); place != nullptr;)
    {
        const ClytToken& token = tokens.GetNext(place);
        const char delimiter = token.GetDelimiter();
        shown += "[" + std::string(token.GetText().GetString()) + "]";
        shown += delimiter == '\n' ? '/' : delimiter;
    }
    return shown;
}

inline std::string Joined(const CStringList& texts, const std::string& between = "|")
{
    std::string joined;
    for (const CString& text : texts)
        joined += between + text.GetString();
    return joined.substr(std::min(joined.size(), between.size()));
}

// A condition as it is written: name(value,value).
inline std::string Shown(const ClytCtrlValList& condition)
{
    const std::string name = condition.GetName().GetString();
    return condition.GetValues().IsEmpty() ? name : name + "(" + Joined(condition.GetValues(), ",") + ")";
}

inline std::string Shown(const ClytConditions& conditions)
{
    std::string shown;
    for (const ClytCtrlValList& condition : conditions)
        shown += (shown.empty() ? "" : " ") + Shown(condition);
    return shown;
}

// What is read of a text, or the message that reading it raises.
template <class Read>
std::string ReadOrRaised(Read read)
{
    std::string shown;
    const std::string message = RaisedMessage([&] { shown = read(); });
    return message == "nothing was raised" ? shown : message;
}

// Tests that look at the messages of numbered errors.
class WithErrorTexts : public testing::Test
{
protected:
    const ErrorTexts texts;
};
