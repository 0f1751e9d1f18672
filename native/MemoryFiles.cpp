#include "native/MemoryFiles.h"

#include "native/NativePath.h"

#include <cerrno>
#include <memory>
#include <unordered_map>

namespace platform
{

namespace
{

// Streams share the content, so that a file may be put again or removed while one is open.
using Content = std::shared_ptr<std::string>;

std::unordered_map<std::string, Content>& Files()
{
    static std::unordered_map<std::string, Content> files;
    return files;
}

struct OpenFile
{
    Content content;
    size_t place = 0; // of the next byte to be read
};

ssize_t Read(void* cookie, char* buffer, size_t size)
{
    auto& file = *static_cast<OpenFile*>(cookie);
    const size_t length = file.content->copy(buffer, size, file.place);
    file.place += length;
    return static_cast<ssize_t>(length);
}

ssize_t Append(void* cookie, const char* buffer, size_t size)
{
    static_cast<OpenFile*>(cookie)->content->append(buffer, size);
    return static_cast<ssize_t>(size);
}

// A stream that is written to is always at the end.
int StayAtEnd(void* cookie, off64_t* offset, int /*origin*/)
{
    *offset = static_cast<off64_t>(static_cast<OpenFile*>(cookie)->content->size());
    return 0;
}

int Close(void* cookie)
{
    const std::unique_ptr<OpenFile> file(static_cast<OpenFile*>(cookie));
    return 0;
}

std::FILE* Open(Content content, const char* mode, const cookie_io_functions_t& functions)
{
    return fopencookie(std::make_unique<OpenFile>(OpenFile{std::move(content)}).release(), mode, functions);
}

} // namespace

void PutMemoryFile(const char* name, std::string content)
{
    Files()[NativePath(name)] = std::make_shared<std::string>(std::move(content));
}

void RemoveMemoryFile(const char* name)
{
    Files().erase(NativePath(name));
}

void RemoveMemoryFiles()
{
    Files().clear();
}

bool IsInMemory(std::string_view path)
{
    return path.starts_with(memoryFolder);
}

const std::string* FindMemoryFile(const std::string& path)
{
    const auto found = Files().find(path);
    return found != Files().end() ? found->second.get() : nullptr;
}

std::FILE* OpenMemoryFileToRead(const std::string& path)
{
    const auto found = Files().find(path);
    if (found != Files().end())
        return Open(found->second, "rb", {Read, nullptr, nullptr, Close});
    errno = ENOENT;
    return nullptr;
}

std::FILE* OpenMemoryFileToAppend(const std::string& path)
{
    Content& content = Files()[path];
    if (content == nullptr)
        content = std::make_shared<std::string>();
    return Open(content, "ab", {nullptr, Append, StayAtEnd, Close});
}

} // namespace platform
