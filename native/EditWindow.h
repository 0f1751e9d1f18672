// A text field of one line.
#pragma once

#include "Window.h"

#include <string_view>

namespace platform
{

class EditWindow : public Window
{
public:
    LRESULT Handle(UINT message, WPARAM wParam, LPARAM lParam) override;

protected:
    // Puts a text in place of the selection, and notifies the parent.
    void Replace(std::string_view put);

private:
    void SelectFromTo(WPARAM start, LPARAM end);
    void TakeCharacter(WPARAM character);
    void TakeKey(WPARAM key);
    void MoveCaret(size_t at);
    size_t PlaceAt(int x) const;
    void TellChange() const;

    size_t m_anchor = 0; // the selection reaches from here to the caret
    size_t m_caret = 0;
};

} // namespace platform
