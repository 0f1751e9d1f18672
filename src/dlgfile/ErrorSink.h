// Receives what is wrong with a description, in the order of the file. After a sink that returns, the reader continues
// with the next line: a line is a statement.
#pragma once

#include "base/ClytSpan.h"
#include "environment/ClytException.h"

#include <memory>

// What the grammar expects where a statement fails.
enum class ClytDue : unsigned char
{
    Token,             // anything; also of failures that are not of a statement's form
    VersionWord,       // after `$VERSION`
    EndOfHeader,       // after the word of the version
    DialogWord,        // after `End`
    Operands,          // of a control
    Number,            // of a control's place or size
    Name,              // after the point
    Value,             // after the name in the values section
    StateSign,         // `/`
    StateWord,         // after it
    ConditionsSign,    // `=` after the state word
    ListSeparator,     // `,` or `)` in brackets, and what is between them
    ConditionEnd,      // `,` between conditions
    EvaluationSign,    // `=` or `(`
    ValueAfterSign,    // after `=`
    OtherSign,         // `=` after the values in brackets
    OtherControl,      // with its values in brackets
    MessageAfterValue, // `:` and the key
    MessageAfterList,  // the same, after the second control
    StatementSign,     // `:` after the name of an input statement
    InputStatement,    // after it
    Piece,             // a length or separator
    PieceTarget,       // after it, and what separates the pairs
    ControlName,       // of a fill, or of a condition of the output
    FillEnd,           // `,` between fills
    Target,            // the statement to continue with
    Targets,           // one for each case
    TargetsSign,       // `=` before them
    FormatSign,        // `=` before the format
    Format             // in its brackets
};

class ErrorSink
{
public:
    virtual void Tell(std::unique_ptr<ClytException> failure, const ClytSpan& place, ClytDue due) = 0;
    // The line ends where a further token was due, at a place without an error number.
    virtual void TellShortLine(const ClytSpan& place, ClytDue due) = 0;

protected:
    ~ErrorSink() = default;
};

// The sink of every reader that has not been given another: raises the first failure, which ends the reading.
ErrorSink& lytRaisingSink();
