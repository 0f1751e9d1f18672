// Keeps a counter raised by one for as long as it lives.
#pragma once

class ClytCounted
{
public:
    explicit ClytCounted(int& counted) : counter(counted) { ++counter; }
    ClytCounted(const ClytCounted&) = delete;
    ClytCounted& operator=(const ClytCounted&) = delete;
    ~ClytCounted() { --counter; }

private:
    int& counter; // outlives this
};
