// A description read whole by the library's own reader: the records with their places, and every mistake that the reader
// reports.
#pragma once

#include "dlgfile/ReadAll.h"
#include "lytdlg/judge/DescriptionText.h"

#include <list>
#include <memory>

namespace lytdlg
{

class DescriptionIndex;

// What the reader reports of a line that it refuses.
struct Mistake
{
    std::string number; // of the library's message; empty when the line ends too early in a place without a number
    ClytSpan place;
    ClytDue due = ClytDue::Token;
};

struct ValueStatement
{
    std::string name;
    std::string keyword;
    std::vector<std::string> values;
    ClytSpan span;
};

struct EvaluationStatement
{
    ClytCtrlValList own;
    ClytCtrlValList other;
    std::string messageKey;
    ClytSpan span;
};

struct InputPart
{
    std::string name;
    ClytSpan header;
    std::unique_ptr<ClytInputPart> part;
};

struct OutputGroup
{
    std::string name;
    ClytSpan header;
    ClytOwnedList<ClytDialogOutput> rules;
};

class Description
{
public:
    Description(std::string path, const std::string& bytes, const std::vector<std::string>& defines);
    ~Description();
    Description(const Description&) = delete;
    Description& operator=(const Description&) = delete;

    const std::string path; // as the user named it
    const DescriptionText text;

    // The words after $LAYOUT, the text section first.
    std::vector<std::string> layoutWords;
    bool hasDialogHeader = false; // the line Begin Dialog is there, even with wrong numbers
    int width = 0;
    int height = 0;
    std::string title;
    ClytSpan dialogHeader;
    // With an empty type word for a statement that the reader refuses: its name is still known.
    std::vector<ClytControlStatement> controls;
    std::vector<ValueStatement> values;
    ClytOwnedList<ClytControlDep> rules;
    std::vector<std::string> evaluationWords;
    std::list<EvaluationStatement> evaluations;
    std::list<InputPart> inputs;
    std::list<OutputGroup> outputs;
    std::vector<Mistake> mistakes;

    const DescriptionIndex& Index() const { return *m_index; }
    std::string TextSection() const { return layoutWords.empty() ? "" : layoutWords.front(); }
    // The statement of a control's name, the last one as in the library; null for an unknown name.
    const ClytControlStatement* FindControl(const std::string& name) const;
    // Whether a reader refuses the line: what is there of its statement is not whole.
    bool IsRefused(int line) const;
    // The place of a word of a line, from a column on; the whole line when it is not there.
    ClytSpan PlaceOf(int line, const std::string& word, int fromColumn = 0) const;
    // The place of a line's content, without the blanks round it.
    ClytSpan PlaceOf(int line) const;
    // Whether the word at the place is in quotes.
    bool IsQuoted(const ClytSpan& place) const;

private:
    std::unique_ptr<const DescriptionIndex> m_index; // of all that was read
};

} // namespace lytdlg
