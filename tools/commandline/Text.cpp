#include "commandline/Text.h"

#include <windows.h>

#include <cstdio>

namespace commandline
{

namespace
{

std::string Convert(const std::string& text, UINT from, UINT to)
{
    if (text.empty())
        return text;
    const int length = static_cast<int>(text.size());
    std::wstring wide(text.size(), L'\0');
    wide.resize(static_cast<size_t>(MultiByteToWideChar(from, 0, text.data(), length, wide.data(), length)));
    const int wideLength = static_cast<int>(wide.size());
    const int size = WideCharToMultiByte(to, 0, wide.data(), wideLength, nullptr, 0, nullptr, nullptr);
    std::string result(static_cast<size_t>(size), '\0');
    WideCharToMultiByte(to, 0, wide.data(), wideLength, result.data(), size, nullptr, nullptr);
    return result;
}

} // namespace

std::string ToUtf8(const std::string& ansi)
{
    return Convert(ansi, CP_ACP, CP_UTF8);
}

std::string ToAnsi(const std::string& utf8)
{
    return Convert(utf8, CP_UTF8, CP_ACP);
}

std::string Quoted(const std::string& text)
{
    std::string quoted = "\"";
    for (const char ch : text)
    {
        if (ch == '\n' || ch == '\t' || ch == '\r')
            (quoted += '\\') += ch == '\n' ? 'n' : ch == '\t' ? 't' : 'r';
        else if (ch == '"' || ch == '\\')
            (quoted += '\\') += ch;
        else
            quoted += ch;
    }
    return quoted + '"';
}

void PrintText(const std::string& name, const std::string& ansi)
{
    std::printf("%s = %s\n", name.c_str(), Quoted(ToUtf8(ansi)).c_str());
}

void PrintNumber(const std::string& name, int value, const std::string& meaning)
{
    std::printf("%s = %d%s\n", name.c_str(), value, meaning.empty() ? "" : (" (" + meaning + ")").c_str());
}

} // namespace commandline
