// What a callback raises while the platform is on the stack. An exception that crossed the platform's frames would leave
// the platform half-way, or vanish: it is kept, and raised again once the platform's call has returned.
#pragma once

#include <exception>
#include <utility>

class CallbackFailure
{
public:
    // Runs what a callback has to do; false when it raised, and the callback then asks the platform to stop.
    template <class STEP>
    [[nodiscard]] bool Run(STEP step) noexcept
    {
        try
        {
            step();
            return true;
        }
        catch (...)
        {
            m_raised = std::current_exception();
            return false;
        }
    }
    // Called after the platform's call: raises what was kept, if anything was.
    void Rethrow()
    {
        if (m_raised != nullptr)
            std::rethrow_exception(std::exchange(m_raised, nullptr));
    }

private:
    std::exception_ptr m_raised;
};
