#include <afx.h>

#include "system/CodePage1252.h"
#include "system/FormatText.h"

#include <algorithm>
#include <cstring>

namespace
{

unsigned char Byte(char ch)
{
    return static_cast<unsigned char>(ch);
}

int Index(size_t position)
{
    return position == std::string::npos ? -1 : static_cast<int>(position);
}

const char* OrEmpty(const char* text)
{
    return text != nullptr ? text : "";
}

} // namespace

CString::CString() = default;
CString::CString(const CString& text) = default;
CString::CString(CString&& text) noexcept = default;
CString& CString::operator=(const CString& text) = default;
CString& CString::operator=(CString&& text) noexcept = default;
CString::~CString() = default;

CString::CString(const char* text) : m_text(OrEmpty(text)) {}

CString::CString(const char* text, int length) : m_text(text, static_cast<size_t>(length)) {}

CString::CString(char ch, int repeat) : m_text(static_cast<size_t>(repeat), ch) {}

char CString::GetAt(int index) const
{
    if (index < 0 || index > GetLength())
        AfxThrowInvalidArgException();
    return m_text.c_str()[index];
}

void CString::SetAt(int index, char ch)
{
    if (index < 0 || index >= GetLength())
        AfxThrowInvalidArgException();
    m_text[static_cast<size_t>(index)] = ch;
}

CString& CString::operator+=(const CString& text)
{
    m_text += text.m_text;
    return *this;
}

CString& CString::operator+=(const char* text)
{
    m_text += OrEmpty(text);
    return *this;
}

CString& CString::operator+=(char ch)
{
    m_text += ch;
    return *this;
}

void CString::Append(const char* text, int length)
{
    m_text.append(text, static_cast<size_t>(length));
}

void CString::Preallocate(int length)
{
    m_text.reserve(static_cast<size_t>(length));
}

CString CString::Left(int count) const
{
    return Mid(0, count);
}

CString CString::Right(int count) const
{
    return Mid(GetLength() - std::clamp(count, 0, GetLength()));
}

CString CString::Mid(int first) const
{
    return Mid(first, GetLength());
}

CString CString::Mid(int first, int count) const
{
    const int start = std::clamp(first, 0, GetLength());
    const int length = std::clamp(count, 0, GetLength() - start);
    return {m_text.c_str() + start, length};
}

int CString::Find(char ch, int start) const
{
    return start < 0 ? -1 : Index(m_text.find(ch, static_cast<size_t>(start)));
}

int CString::Find(const char* text, int start) const
{
    return start < 0 ? -1 : Index(m_text.find(OrEmpty(text), static_cast<size_t>(start)));
}

int CString::FindOneOf(const char* characters) const
{
    return Index(m_text.find_first_of(characters));
}

int CString::ReverseFind(char ch) const
{
    return Index(m_text.rfind(ch));
}

int CString::CompareNoCase(const char* text) const
{
    const char* left = m_text.c_str();
    const char* right = OrEmpty(text);
    while (*left != '\0' && ToLower1252(Byte(*left)) == ToLower1252(Byte(*right)))
    {
        ++left;
        ++right;
    }
    return ToLower1252(Byte(*left)) - ToLower1252(Byte(*right));
}

CString& CString::MakeLower()
{
    std::ranges::transform(m_text, m_text.begin(), [](char ch) { return static_cast<char>(ToLower1252(Byte(ch))); });
    return *this;
}

CString& CString::MakeUpper()
{
    std::ranges::transform(m_text, m_text.begin(), [](char ch) { return static_cast<char>(ToUpper1252(Byte(ch))); });
    return *this;
}

void CString::Format(const char* format, ...)
{
    CString formatted;
    va_list arguments;
    va_start(arguments, format);
    formatted.AppendFormatted(format, arguments);
    va_end(arguments);
    // An argument may be this very text, so it is replaced only when it has been read.
    *this = std::move(formatted);
}

void CString::AppendFormat(const char* format, ...)
{
    va_list arguments;
    va_start(arguments, format);
    AppendFormatted(format, arguments);
    va_end(arguments);
}

void CString::AppendFormatted(const char* format, va_list arguments)
{
    va_list measured;
    va_copy(measured, arguments);
    const int length = FormattedLength(format, measured);
    va_end(measured);
    if (length < 0)
        AfxThrowInvalidArgException();

    std::string formatted(static_cast<size_t>(length) + 1, '\0');
    FormatText(formatted.data(), formatted.size(), format, arguments);
    m_text.append(formatted, 0, static_cast<size_t>(length));
}

char* CString::GetBuffer(int length)
{
    if (length > GetLength())
        m_text.resize(static_cast<size_t>(length));
    return m_text.data();
}

void CString::ReleaseBuffer(int length)
{
    m_text.resize(length < 0 ? std::strlen(m_text.c_str()) : static_cast<size_t>(length));
}

CString operator+(CString left, const CString& right)
{
    left += right;
    return left;
}

CString operator+(CString left, const char* right)
{
    left += right;
    return left;
}

CString operator+(const char* left, const CString& right)
{
    return CString(left) + right;
}

CString operator+(CString left, char right)
{
    left += right;
    return left;
}
