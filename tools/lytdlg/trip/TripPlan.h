// What of a description can be tried: its controls with values unlike each other, and how input and output treat them.
#pragma once

#include "lytdlg/judge/Description.h"
#include "lytdlg/judge/Names.h"
#include "lytdlg/text/NamedDialog.h"

#include <map>
#include <set>

namespace lytdlg
{

// A longer fixed length means all that is left, and a longer limit is never reached by what is entered.
inline constexpr int tripLongest = 60;

struct TripControl
{
    std::string name;
    Kind kind = Kind::Unknown;
    bool isEntered = true;           // by a user; one that is HIDDEN or DISPLAYONLY holds what the input has brought
    std::string button;              // that enables or shows it; empty for none
    bool isTaken = false;            // the input hands it a piece
    bool isAnswered = false;         // a button's part puts something into it
    bool collects = false;           // a list that begins empty, and is given items
    bool isJoined = false;           // the result holds all items of it
    bool isListed = false;           // its items are its library's
    std::string preset;              // the default of a field
    std::string mark;                // like no other text of the description; empty where only known values can be
    std::vector<std::string> values; // to try one after the other, the mark first; of a list that collects, its items
    int cutLength = 0;               // the fixed length that the input cuts its piece by; 0 for none
    int limit = 0;                   // the shortest limit that the output puts it by; 0 for none
};

// A statement of the input that hands its piece to a control.
struct TripTaker
{
    const ClytDialogInput* statement = nullptr;
    const ClytControlFill* fill = nullptr;
    bool isAlone = false; // no other control takes the piece
};

class TripPlan
{
public:
    // The description outlives the plan. A dialog that another one opens is nested. The marks of two plans differ when they
    // begin at different numbers; from 0 on they are of names.
    TripPlan(const Description& description, bool isNested, size_t firstMark = 0);

    const Description& Of() const { return m_description; }
    const std::vector<TripControl>& Controls() const { return m_controls; }
    // Null for a name that is not tried.
    const TripControl* Find(const std::string& name) const;
    // The statements of the part parent that hand a piece to the control.
    const std::vector<TripTaker>& TakersOf(const std::string& name) const;
    // Whether the part parent fills the control in any way.
    bool IsFilled(const std::string& name) const { return m_filled.contains(name); }
    // Whether a rule of the result puts the control into the text.
    bool IsPut(const std::string& name) const { return m_put.contains(name); }
    // Which of the dialogs that the library opens by name it is; null for any other.
    const ClytNamedDialog* Named() const;
    // Whether a text of the dialog is meant to come back into it: the input takes about as many pieces apart as the output
    // puts together.
    bool ComesBack() const { return m_comesBack; }
    // Whether marks could be made: there are letters that no separator holds.
    bool HasMarks() const { return m_hasMarks; }
    // What the library of a list or field delivers.
    std::vector<std::string> ListedBy(const std::string& name) const;

private:
    void TakeInput();
    void TakeAnswers(const ClytInputPart& part);
    void TakeOutput();
    void ChooseLetters();
    void TakeWords();
    // A text that is like none before and none of the description; of the name's letters, where that is possible. Without a
    // length it is as long as the name.
    std::string MarkFor(const std::string& name, size_t length);
    std::string NextMark(size_t length);
    void TakeControls();
    void TakeControl(const ClytControlStatement& statement);
    void GiveValues(TripControl& control);
    std::vector<std::string> AskedOf(const std::string& name) const;
    bool IsFound(const std::string& name) const;
    bool IsMeantToComeBack(bool isNested) const;

    const Description& m_description;
    std::map<std::string, std::vector<TripTaker>> m_takers;
    std::map<std::string, std::vector<std::string>> m_asked; // the values that conditions ask a control for
    std::map<std::string, std::set<std::string>> m_given;    // the fixed texts that the input puts into a control
    std::map<std::string, int> m_limits;
    std::map<std::string, std::vector<std::string>> m_listed;
    std::map<std::string, std::string> m_buttons; // by what they enable or show
    std::set<std::string> m_filled;
    std::set<std::string> m_answered;
    std::set<std::string> m_put;
    std::set<std::string> m_joined;
    std::vector<TripControl> m_controls;
    std::map<std::string, size_t> m_places;
    std::string m_letters;              // that marks may have
    std::string m_words;                // of the description, in small letters
    std::set<std::string> m_beginnings; // of marks
    size_t m_marks = 0;
    bool m_isOfNames = true;
    size_t m_pieces = 0;       // that the input takes
    bool m_takesWhole = false; // the input is one statement, which takes all there is
    bool m_hasMarks = false;
    bool m_comesBack = false;
};

// How many characters of each item a format puts at most, in the order in which it takes them.
std::vector<int> LimitsOf(const std::string& format);
// The name of a description's file, in small letters and without folder and extension.
std::string PlainNameOf(const std::string& path);

} // namespace lytdlg
