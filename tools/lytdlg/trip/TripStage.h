// Dialogs that are opened over a text, given values and asked for their text, without anybody to look at them.
#pragma once

#include "lytdlg/judge/Judge.h"
#include "lytdlg/judge/WithoutTexts.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/trip/TripItem.h"
#include "lytdlg/trip/TripPlan.h"

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>

namespace lytdlg
{

// What a control is to hold.
struct TripWish
{
    enum class Kind
    {
        Leave, // as it is
        Value,
        Items // so many of a list's
    };

    Kind kind = Kind::Leave;
    std::string value = {};
    size_t count = 0;

    friend bool operator==(const TripWish&, const TripWish&) = default;
};

// A wish for each control of the plan, in its order.
using TripState = std::vector<TripWish>;

struct TripText
{
    int line = 0; // of the rule; 0 when none holds
    std::string text;
    std::vector<TripItem> items;
    std::vector<std::string> refusing; // the controls whose checks refuse it
};

struct TripFill
{
    std::string control;
    ClytSpan span;
    std::string separators; // of CONCAT
    bool takesPiece = false;
    ClytFillAction action = ClytFillAction::Other;
};

// A statement that only says where the run continues.
struct TripJump
{
    ClytSpan span;
    std::vector<std::string> targets;
    std::string next; // of the targets, the one that was taken
};

// A piece that a statement of the input cut off.
struct TripCut
{
    std::string statement;
    ClytSpan span;
    std::string piece;
    size_t begin = 0;
    size_t end = 0;  // of the piece
    size_t next = 0; // where the next one begins
    int length = 0;  // that it is cut by; 0 for separators
    std::vector<std::string> separators;
    std::vector<std::string> targets; // where the run may continue
    std::vector<TripJump> jumps;      // that led to the statement
    std::vector<TripFill> fills;

    bool TakesAny() const { return std::ranges::any_of(fills, &TripFill::takesPiece); }
    // Whether the control takes the piece.
    bool Takes(const std::string& control) const
    {
        return std::ranges::any_of(fills,
                                   [&](const TripFill& fill) { return fill.takesPiece && fill.control == control; });
    }
};

// The values of the controls of a plan, by name; a list that collects has its items a line each.
using TripValues = std::map<std::string, std::string>;

class TripForm
{
public:
    virtual ~TripForm() = default;

    // Gives the wishes that a user could fulfil, or the input for what no user reaches; rules run in between.
    virtual void Enter(const TripState& state) = 0;
    // Nothing when the composition fails.
    virtual std::optional<TripText> Compose(const std::string& group) = 0;
    virtual TripValues Values() = 0;
    virtual bool IsReached(const std::string& name) = 0;
    // Runs another input part over a text, and gives its cuts; nothing when it fails.
    virtual std::optional<std::vector<TripCut>> Scan(const std::string& part, const std::string& text) = 0;
    // The cuts of the text that it was opened over.
    virtual const std::vector<TripCut>& Cuts() const = 0;
    // What is left of that text.
    virtual const std::string& Rest() const = 0;
    // The jumps after the last cut of that text.
    virtual const std::vector<TripJump>& LastJumps() const = 0;
    // False when a rule fails.
    virtual bool RunRules() = 0;
};

// Where dialogs are tried, one description after the other: messages are answered, libraries deliver what the plan says.
class TripStage
{
public:
    explicit TripStage(GiveUpQuestion isGivenUp = {});
    TripStage(const TripStage&) = delete;
    TripStage& operator=(const TripStage&) = delete;
    ~TripStage();

    // Null when it does not open. Raises JudgementGivenUp.
    std::unique_ptr<TripForm> Open(const TripPlan& plan, const std::string& text);
    // Of the text that was scanned last, also in a dialog that did not open.
    const std::vector<TripCut>& LastCuts() const;
    // The plan is about to go.
    void Close(const TripPlan& plan);

private:
    class Works;
    const GiveUpQuestion m_isGivenUp;
    std::unique_ptr<Works> m_works;
};

} // namespace lytdlg
