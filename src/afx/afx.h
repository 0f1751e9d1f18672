// The portable half of the class library: objects, strings, exceptions and files.
#pragma once

#include <cstdarg>
#include <cstdio>
#include <memory>
#include <string>

using BOOL = int;
using UINT = unsigned int;

// An opaque place in one of the collections; null is "no place".
struct __POSITION;
using POSITION = __POSITION*;

class CObject
{
public:
    CObject() = default;
    CObject(const CObject&) = delete;
    CObject& operator=(const CObject&) = delete;
    virtual ~CObject() = default;
};

// A text of bytes in the ANSI code page. It may hold NUL bytes; only its conversion to `const char*` ends at the first.
class CString
{
public:
    CString();
    // Texts come and go everywhere: what the compiler would repeat at each place is in CString.cpp, once.
    CString(const CString& text);
    CString(CString&& text) noexcept;
    CString& operator=(const CString& text);
    CString& operator=(CString&& text) noexcept;
    ~CString();
    // A null pointer counts as an empty text.
    CString(const char* text); // NOLINT(google-explicit-constructor): literals are used as strings everywhere
    CString(const char* text, int length);
    explicit CString(char ch, int repeat = 1);

    operator const char*() const noexcept { return m_text.c_str(); } // NOLINT(google-explicit-constructor): as above
    const char* GetString() const noexcept { return m_text.c_str(); }
    int GetLength() const noexcept { return static_cast<int>(m_text.size()); }
    bool IsEmpty() const noexcept { return m_text.empty(); }
    void Empty() noexcept { m_text.clear(); }

    // An index outside the text raises the invalid-argument exception; the length itself names the final NUL.
    char GetAt(int index) const;
    char operator[](int index) const { return GetAt(index); }
    void SetAt(int index, char ch);

    CString& operator+=(const CString& text);
    CString& operator+=(const char* text);
    CString& operator+=(char ch);
    void Append(const char* text, int length);
    // Room for that many characters; the text stays as it is.
    void Preallocate(int length);

    // Parts of the text; positions and counts outside it are moved to its ends.
    CString Left(int count) const;
    CString Right(int count) const;
    CString Mid(int first) const;
    CString Mid(int first, int count) const;

    // The index of the first (last) occurrence, or -1.
    int Find(char ch, int start = 0) const;
    int Find(const char* text, int start = 0) const;
    int FindOneOf(const char* characters) const;
    int ReverseFind(char ch) const;

    // Byte for byte, with the letters of code page 1252 folded to lower case; negative, 0 or positive.
    int CompareNoCase(const char* text) const;

    // Case folding follows code page 1252 in every locale.
    CString& MakeLower();
    CString& MakeUpper();

    void Format(const char* format, ...) __attribute__((format(printf, 2, 3)));
    void AppendFormat(const char* format, ...) __attribute__((format(printf, 2, 3)));

    // Room for a platform call to write `length` bytes and a NUL; ReleaseBuffer settles the length, -1 taking the text
    // up to its first NUL.
    char* GetBuffer(int length);
    void ReleaseBuffer(int length = -1);

    friend CString operator+(CString left, const CString& right);
    friend CString operator+(CString left, const char* right);
    friend CString operator+(const char* left, const CString& right);
    friend CString operator+(CString left, char right);

    friend bool operator==(const CString& left, const CString& right) noexcept { return left.m_text == right.m_text; }
    friend bool operator==(const CString& left, const char* right) noexcept
    {
        return left.m_text == (right != nullptr ? right : "");
    }
    friend bool operator<(const CString& left, const CString& right) noexcept { return left.m_text < right.m_text; }

private:
    void AppendFormatted(const char* format, va_list arguments);

    std::string m_text;
};

// Exceptions travel as pointers: `throw new CSomeException(...)`, `catch (CException* e)`, `e->Delete()`.
class CException : public CObject
{
public:
    // Writes at most size - 1 characters and a NUL; false when there is no message (the buffer is then empty).
    virtual BOOL GetErrorMessage(char* buffer, UINT size, UINT* helpContext = nullptr) const;
    // Shows the message in a message box.
    virtual int ReportError(UINT type = 0, UINT help = 0);
    void Delete() { delete this; }

protected:
    // Copies a message under the rule of GetErrorMessage.
    static BOOL CopyMessage(const char* message, char* buffer, UINT size);
};

class CInvalidArgException : public CException
{
public:
    BOOL GetErrorMessage(char* buffer, UINT size, UINT* helpContext = nullptr) const override;
};

class CFileException : public CException
{
public:
    enum
    {
        none,
        genericException,
        fileNotFound,
        badPath,
        tooManyOpenFiles,
        accessDenied,
        sharingViolation,
        diskFull
    };

    explicit CFileException(int cause = none, int /*osError*/ = 0, const char* fileName = nullptr)
        : m_cause(cause), m_strFileName(fileName)
    {
    }
    BOOL GetErrorMessage(char* buffer, UINT size, UINT* helpContext = nullptr) const override;
    // The cause that belongs to an `errno` value.
    static int ErrnoToException(int error);

    int m_cause;
    CString m_strFileName;
};

[[noreturn]] void AfxThrowInvalidArgException();
[[noreturn]] void AfxThrowFileException(int cause, int osError = 0, const char* fileName = nullptr);

// Shows a message to the user and returns the button pressed. The library defines it with a message box; a program that
// has no window (tests, tools) links another definition.
int AfxMessageBox(const char* text, UINT type = 0, UINT help = 0);

// What a file is opened for, and its name.
class CFile : public CObject
{
public:
    enum OpenFlags
    {
        modeRead = 0x0000,
        modeWrite = 0x0001,
        shareDenyWrite = 0x0020,
        modeCreate = 0x1000,
        modeNoTruncate = 0x2000,
        typeText = 0x4000
    };

    void SetFilePath(const char* fileName)
    {
        if (fileName == nullptr)
            AfxThrowInvalidArgException();
        m_strFileName = fileName;
    }

protected:
    CString m_strFileName;
};

// A text file: a line ends in one '\n' for each line end of the file, and Ctrl-Z ends the text.
class CStdioFile : public CFile
{
public:
    // False when the file cannot be opened; `error`, when given, then says why.
    [[nodiscard]] BOOL Open(const char* fileName, UINT flags, CFileException* error = nullptr);
    // Raises CFileException when what is still buffered cannot be written to the file.
    virtual void Close();
    // Closes without looking at errors.
    void Abort() { m_pStream.reset(); }
    // Reads one line with its line end, at most `count` characters and a NUL; null at the end of the file.
    [[nodiscard]] virtual char* ReadString(char* buffer, UINT count);
    void WriteString(const char* text);
    void SeekToEnd();

private:
    struct CloseStream
    {
        void operator()(std::FILE* stream) const { std::fclose(stream); }
    };
    std::FILE* Stream() const;
    [[noreturn]] void Fail() const;

    std::unique_ptr<std::FILE, CloseStream> m_pStream;
};
