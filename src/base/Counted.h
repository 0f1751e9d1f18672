// Keeps a counter raised by one for as long as it lives.
#pragma once

class Counted
{
public:
    explicit Counted(int& counter) : m_counter(counter) { ++m_counter; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;
    ~Counted() { --m_counter; }

private:
    int& m_counter; // outlives this
};
