// A sample journey: one command of lytcall with its script, through the exports, in this process.
#pragma once

#include <ostream>
#include <string>
#include <vector>

struct Journey
{
    std::string name;
    std::vector<std::string> words; // of the command line
};

// Those that tests/windows/samples makes: every property dialog, the wizard, the catalogue, texts, lists and the log.
const std::vector<Journey>& Journeys();

// What a caller, an author and the folder of the document have seen of it.
struct Course
{
    bool operator==(const Course&) const = default;

    std::string printed; // results and texts, what the script saw, and the log
    std::vector<std::string> messages;
    std::string raised; // what left an export; empty when nothing did
};
std::string Described(const Course& course);
inline std::ostream& operator<<(std::ostream& out, const Course& course)
{
    return out << Described(course);
}

// Begins as any journey begins, however the last one ended.
Course Travel(const Journey& journey);
