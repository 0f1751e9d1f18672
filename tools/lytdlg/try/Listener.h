// Is notified of what a dialog does silently, as long as it lives, and reports which control asks its library.
#pragma once

#include "lytdlg/try/ItemsLibrary.h"
#include "model/ClytObserver.h"

namespace lytdlg
{

class Listener : public ClytObserver
{
public:
    // The library outlives the listener.
    explicit Listener(ItemsLibrary& itemsLibrary) : m_items(itemsLibrary) { lytObserver = this; }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;
    ~Listener() { lytObserver = nullptr; }

    void LibraryAsked(const ClytControl& control) override { m_items.Asked(control); }

private:
    ItemsLibrary& m_items;
};

} // namespace lytdlg
