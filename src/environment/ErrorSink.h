// Receives what is wrong with a description, in the order of the file. After a sink that returns, the reader continues
// with the next line: a line is a statement.
#pragma once

#include "base/ClytSpan.h"
#include "environment/ClytException.h"

#include <memory>

class ErrorSink
{
public:
    virtual void Tell(std::unique_ptr<ClytException> failure, const ClytSpan& place) = 0;
    // The line ends where a further token was due, at a place without an error number.
    virtual void TellShortLine(const ClytSpan& place) = 0;

protected:
    ~ErrorSink() = default;
};

// The sink of every reader that has not been given another: raises the first failure, which ends the reading.
ErrorSink& lytRaisingSink();
