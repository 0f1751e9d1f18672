#include "model/ClytInputPart.h"

#include "environment/ClytException.h"
#include "environment/Words.h"

#include <cstring>

namespace
{

constexpr int circleLimit = 10000;
constexpr const char* brackets = "({[)}]";
constexpr int kinds = 3;

// Cuts pieces off the front of a text. Brackets are counted over the whole run; of a separator only the first character
// is.
class Scanner
{
public:
    explicit Scanner(const CString& input) : rest(input) {}

    // Cuts the piece of the scan off and gives the name of the statement that goes on.
    CString Cut(const ClytScan& scan, CString& piece);
    const char* GetRest() const { return rest; }

private:
    void CutLength(int length, CString& piece);
    CString CutToSeparator(const ClytScan& scan, CString& piece);
    void TakeQuoted(CString& piece);
    // Counts a bracket; true for a closing one that belongs to the content of the piece.
    bool CountBracket(char ch);

    const char* rest;
    int depth[kinds] = {};      // over the run
    int pieceDepth[kinds] = {}; // opened and not yet closed within the piece
};

CString Scanner::Cut(const ClytScan& scan, CString& piece)
{
    std::memset(pieceDepth, 0, sizeof pieceDepth);
    if (scan.GetLength() == 0)
        return CutToSeparator(scan, piece);
    CutLength(scan.GetLength(), piece);
    return scan.GetTarget();
}

void Scanner::CutLength(int length, CString& piece)
{
    const char* start = rest;
    for (; length > 0 && *rest != '\0'; --length, ++rest)
        CountBracket(*rest);
    piece.Append(start, static_cast<int>(rest - start));
}

CString Scanner::CutToSeparator(const ClytScan& scan, CString& piece)
{
    int length = 0;
    while (true)
    {
        const bool isContent = CountBracket(*rest);
        if (scan.FindSeparator(rest, length) != 0 && !isContent)
            break;
        if (*rest == '"')
            TakeQuoted(piece);
        else if (*rest != '\0')
            piece += *rest++;
        else
            return {};
    }
    if (*rest == '\0')
        return scan.TargetOf("Rest");
    const CString separator(rest, length);
    rest += length;
    return scan.TargetOf(separator);
}

void Scanner::TakeQuoted(CString& piece)
{
    const bool keepsQuotes = !piece.IsEmpty();
    const char* start = rest + 1;
    const char* end = start + std::strcspn(start, "\"");
    const bool isClosed = *end != '\0';
    if (keepsQuotes)
        piece += '"';
    piece.Append(start, static_cast<int>(end - start));
    if (keepsQuotes && isClosed)
        piece += '"';
    rest = isClosed ? end + 1 : end;
}

bool Scanner::CountBracket(char ch)
{
    const char* bracket = ch != '\0' ? std::strchr(brackets, ch) : nullptr;
    if (bracket == nullptr)
        return false;
    const auto place = static_cast<int>(bracket - brackets);
    const int kind = place % kinds;
    if (place < kinds)
    {
        ++depth[kind];
        ++pieceDepth[kind];
        return false;
    }
    --depth[kind];
    if (pieceDepth[kind] == 0)
        return depth[kind] >= 1;
    --pieceDepth[kind];
    return true;
}

} // namespace

void ClytInputPart::Add(std::unique_ptr<ClytDialogInput> statement)
{
    ClytDialogInput& added = statements.AddTail(std::move(statement));
    statementsByName.SetAt(added.name, &added);
}

const ClytDialogInput* ClytInputPart::Find(const CString& name) const
{
    ClytDialogInput* statement = nullptr;
    statementsByName.Lookup(name, statement);
    return statement;
}

void ClytInputPart::Run(CString text, const CString& name, const ClytControlMap& controls) const
{
    Scanner scanner(text);
    CString next = name;
    int idle = 0;
    while (!lytSameWord(next, "End"))
    {
        const ClytDialogInput* statement = Find(next);
        if (statement == nullptr)
            return;
        const char* before = scanner.GetRest();
        const ClytScanRule& rule = statement->scanRule;
        if (rule.scan.HasScan() == 0)
            next = statement->ConditionsHold(controls) != 0 ? statement->trueTarget : statement->falseTarget;
        else
        {
            CString piece;
            next = scanner.Cut(rule.scan, piece);
            rule.ApplyFills(piece, controls);
        }
        idle = scanner.GetRest() == before ? idle + 1 : 0;
        if (idle == circleLimit)
            lytRaise("206", "The input statements go round in a circle.");
    }
}
