// Looks for texts where none are, since each one would be looked up in a file.
#pragma once

#include "environment/ClytEnvironment.h"

#include <string>

namespace lytdlg
{

class WithoutTexts
{
public:
    explicit WithoutTexts(const std::string& folder)
        : m_dialogPath(lytEnvironment.GetDialogPath()), m_initPath(lytEnvironment.GetInitPath())
    {
        lytEnvironment.SetDialogPath(folder.c_str());
        lytEnvironment.SetInitPath(folder.c_str());
    }
    WithoutTexts(const WithoutTexts&) = delete;
    WithoutTexts& operator=(const WithoutTexts&) = delete;
    ~WithoutTexts()
    {
        lytEnvironment.SetDialogPath(m_dialogPath);
        lytEnvironment.SetInitPath(m_initPath);
    }

private:
    const CString m_dialogPath;
    const CString m_initPath;
};

} // namespace lytdlg
