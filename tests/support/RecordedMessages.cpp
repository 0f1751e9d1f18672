#include "support/RecordedMessages.h"

#include <afx.h>

#include <utility>

namespace
{

std::vector<std::string> messages;

}

std::vector<std::string> TakeMessages()
{
    return std::exchange(messages, {});
}

int AfxMessageBox(const char* text, UINT /*type*/, UINT /*help*/)
{
    messages.emplace_back(text);
    return 1;
}
