// Where a call under test finds its files, and the buffers that it writes to.
#pragma once

#include <functional>
#include <memory>
#include <string>

// The folder of the dialogs and of `lyt.ini`, in memory.
inline constexpr const char* stageFolder = "memory:";

// Puts the files in place and starts the environment; when it dies everything is freed, as at the end of a run of calls.
class Stage
{
public:
    Stage();
    Stage(const Stage&) = delete;
    Stage& operator=(const Stage&) = delete;
    ~Stage();

    void PutFile(const std::string& name, const std::string& content) const;
    // Every description that a dialog may ask for by this name, and nested ones.
    void PutDescription(const std::string& name, const std::string& content) const;
};

// Room for exactly so many bytes, so that whoever writes beyond them is caught.
class Room
{
public:
    // A negative size has no room at all.
    explicit Room(int size, int beyond = 0);

    char* Data() const { return m_bytes.get(); }
    int Size() const { return m_size; }

private:
    int m_size;
    std::unique_ptr<char[]> m_bytes;
};

// Calls an export while a user acts; what the library raises to its caller is a good end.
void CallAsUserActs(const std::string& acts, const std::function<void()>& call);
