#include "commandline/Program.h"

#include "commandline/Text.h"

#include <windows.h>

#include <process.h>

namespace commandline
{

namespace
{

std::wstring Wide(const std::string& utf8)
{
    const int length = static_cast<int>(utf8.size());
    std::wstring wide(utf8.size(), L'\0');
    wide.resize(static_cast<size_t>(MultiByteToWideChar(CP_UTF8, 0, utf8.data(), length, wide.data(), length)));
    return wide;
}

} // namespace

// The runtime joins the words with blanks, and the other program takes them apart again: there quotes hold a word together,
// and backslashes count only before a quote.
std::wstring QuotedWord(const std::wstring& word)
{
    std::wstring quoted = L"\"";
    size_t backslashes = 0;
    for (const wchar_t ch : word)
    {
        if (ch == L'"')
            quoted.append(backslashes + 1, L'\\');
        backslashes = ch == L'\\' ? backslashes + 1 : 0;
        quoted += ch;
    }
    return quoted.append(backslashes, L'\\') + L'"';
}

int RunProgram(const std::vector<std::string>& words)
{
    std::vector<std::wstring> quoted;
    for (const std::string& word : words)
        quoted.push_back(QuotedWord(Wide(word)));
    std::vector<const wchar_t*> arguments;
    for (const std::wstring& word : quoted)
        arguments.push_back(word.c_str());
    arguments.push_back(nullptr);
    return static_cast<int>(_wspawnvp(_P_WAIT, Wide(words.front()).c_str(), arguments.data()));
}

std::string WordOfMain(const std::string& word)
{
    return ToUtf8(word);
}

} // namespace commandline
