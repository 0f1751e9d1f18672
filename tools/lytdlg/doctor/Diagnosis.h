// The findings about a deployment: an observation for each thing that was checked, good or bad, with a hint.
#pragma once

#include "base/ClytSpan.h"

#include <filesystem>
#include <string>
#include <vector>

namespace lytdlg
{

enum class Verdict
{
    Good,
    Note,    // it is as it is, or cannot be judged here
    Warning, // something may not work, or not everywhere
    Wrong    // something does not work
};

const char* WordOf(Verdict verdict);

struct Observation
{
    Verdict verdict = Verdict::Good;
    const char* about = ""; // one word, such as "library"
    std::string path;       // of the file or folder; empty when it is about none
    ClytSpan place;         // in the file; line 0 for the whole of it
    std::string message;    // this and what follows in UTF-8
    std::string hint;       // the way out; empty when nothing is to be done
    std::string kind = {};  // what many have in common; empty for one that is always reported by itself
};

class Diagnosis
{
public:
    void Add(Observation observation) { m_observations.push_back(std::move(observation)); }
    // About a file or folder as a whole.
    void Add(Verdict verdict, const char* about, const std::filesystem::path& path, std::string message,
             std::string hint = "")
    {
        Add({verdict, about, path.string(), {}, std::move(message), std::move(hint)});
    }

    const std::vector<Observation>& All() const { return m_observations; }
    size_t CountOf(Verdict verdict) const;
    bool IsWrong(const std::string& about) const;
    // The gravest that was met.
    Verdict Worst() const;

private:
    std::vector<Observation> m_observations;
};

// For people, a line for each observation, or for many of a kind, with the way out below it; for programs, one object of
// JSON. To standard output.
void PrintAsText(const Diagnosis& diagnosis);
void PrintAsJson(const Diagnosis& diagnosis);
// For programs as well: why nothing was judged.
void PrintRefusalAsJson(const std::string& reason);

// "1 file", "2 files".
std::string Counted(size_t count, const std::string& one, const std::string& many);

} // namespace lytdlg
