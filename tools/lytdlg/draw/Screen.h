// The resolution of the screen that dialogs are opened on.
#pragma once

namespace lytdlg
{

// Holds for as long as it lives.
class Resolution
{
public:
    // Throws std::runtime_error when the screen cannot have it.
    explicit Resolution(int pixelsPerInch);
    Resolution(const Resolution&) = delete;
    Resolution& operator=(const Resolution&) = delete;
    ~Resolution();

private:
    int m_before;
};

// That of the screen as it stands.
int PixelsPerInch();

} // namespace lytdlg
