// What a program has to do by hand that does the work of the library, and what keeps its dialogs short.
#pragma once

#include <windows.h>

#include <string>

// One text of a profile file, thrown away.
void ReadProfile(const char* section, const char* key, const std::string& fileName);

// The texts of a language file: the language is asked for each of them.
class TextsByHand
{
public:
    // `folder` is that of `lyt.ini`, with the language files in its folder `lang`.
    explicit TextsByHand(std::string folder) : m_folder(std::move(folder)) {}

    std::string Read(const char* section, const char* key) const;

private:
    std::string m_folder;
};

// Each call of the library looks for its companion until there is one.
void LookForCompanion();
// A copy of the library as its own companion, in that folder, which becomes the current one.
void ProvideCompanion(const std::string& folder);

// The controls of version 6 while it lives, as the library's dialogs have them.
class ModernControlsByHand
{
public:
    ModernControlsByHand();
    ModernControlsByHand(const ModernControlsByHand&) = delete;
    ModernControlsByHand& operator=(const ModernControlsByHand&) = delete;
    ~ModernControlsByHand();

private:
    ULONG_PTR m_cookie = 0;
};

// Cancels every dialog of this thread as soon as it is shown.
class CancelledDialogs
{
public:
    CancelledDialogs();
    CancelledDialogs(const CancelledDialogs&) = delete;
    CancelledDialogs& operator=(const CancelledDialogs&) = delete;
    ~CancelledDialogs() { UnhookWindowsHookEx(m_hook); }

private:
    HHOOK m_hook;
};

// Runs a dialog of a template in a library, whose procedure acts on its WM_INITDIALOG.
void RunDialogByHand(HMODULE library, int templateId, DLGPROC procedure, LPARAM parameter);
