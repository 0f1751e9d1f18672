// Cuts pieces off the front of an input text.
#pragma once

#include "model/ClytScan.h"

#include <array>

// Brackets are counted over the whole run, by kind; of a separator, only the first character counts.
class ClytScanner
{
public:
    // The text outlives the scanner.
    explicit ClytScanner(const CString& input) : rest(input) {}

    // Cuts the piece of the scan off and gives the scan's target.
    [[nodiscard]] const ClytTarget& Cut(const ClytScan& scan, CString& piece);
    // What is left of the text.
    const char* GetRest() const { return rest; }

private:
    void CutLength(int length, CString& piece);
    const ClytTarget& CutToSeparator(const ClytScan& scan, CString& piece);
    void TakeQuoted(CString& piece);
    // Counts a bracket; true for a closing one that belongs to the content of the piece.
    bool CountBracket(char ch);

    static constexpr size_t kinds = 3;

    const char* rest;
    std::array<int, kinds> depth{};      // over the run
    std::array<int, kinds> pieceDepth{}; // opened and not yet closed within the piece
};
