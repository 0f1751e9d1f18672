// Ends what is on the stack between a guarded call and the place where a partner library failed.
#pragma once

#include <memory>
#include <utility>

// The objects that are to be destroyed even then, the innermost first.
class UnwoundLink
{
public:
    UnwoundLink(void (*destroy)(void* object), void* object) noexcept
        : m_outer(std::exchange(m_innermost, this)), m_destroy(destroy), m_object(object)
    {
    }
    UnwoundLink(const UnwoundLink&) = delete;
    UnwoundLink& operator=(const UnwoundLink&) = delete;
    ~UnwoundLink() { m_innermost = m_outer; }

    static const UnwoundLink* Innermost() noexcept { return m_innermost; }
    // Destroys the objects inside of `outer`, whose frames are about to be left without their destructors.
    static void DestroyWithin(const UnwoundLink* outer) noexcept
    {
        while (m_innermost != nullptr && m_innermost != outer)
        {
            const UnwoundLink* const link = std::exchange(m_innermost, m_innermost->m_outer);
            link->m_destroy(link->m_object);
        }
    }

private:
    static inline const UnwoundLink* m_innermost = nullptr;

    const UnwoundLink* m_outer; // lives longer
    void (*m_destroy)(void* object);
    void* m_object;
};

// An object on the stack whose destructor also runs when an exception of another tool chain passes. Such an exception
// runs none by itself; so this is for what holds more than memory.
template <class OBJECT>
class Unwound
{
public:
    template <class... ARGUMENTS>
    explicit Unwound(ARGUMENTS&&... arguments) : m_object(std::forward<ARGUMENTS>(arguments)...)
    {
    }

    const OBJECT* operator->() const { return &m_object; }

private:
    static void Destroy(void* object) { std::destroy_at(static_cast<OBJECT*>(object)); }

    OBJECT m_object;
    UnwoundLink m_link{Destroy, &m_object}; // as long as the object is whole
};
