// What a handler of last resort does with the exception that it caught, of any type.
#pragma once

// Called inside a catch block: tells the user of the exception that is being handled. A report that fails in its turn is
// given up: there is no one left to tell.
void ReportCurrentFailure() noexcept;
// The same without a word.
void DropCurrentFailure() noexcept;
