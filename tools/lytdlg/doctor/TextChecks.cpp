#include "lytdlg/doctor/Checks.h"

#include "commandline/Text.h"
#include "lytdlg/text/LanguageFiles.h"
#include "lytdlg/text/NewDialogTexts.h"
#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Words.h"

#include <algorithm>
#include <set>

namespace lytdlg
{

namespace
{

constexpr const char* aboutTexts = "texts";
constexpr const char* argumentMark = "''";

std::string NameOf(const LibraryText& text)
{
    return "\"" + text.key + "\" of [" + text.section + "]";
}

// One language file. What is missing in it is wrong when it is the one in use.
class TextJudge
{
public:
    TextJudge(const LanguageFile& file, bool isInUse, Diagnosis& diagnosis)
        : m_file(file), m_whenMissing(isInUse ? Verdict::Wrong : Verdict::Warning), m_diagnosis(diagnosis)
    {
    }

    void JudgeAll()
    {
        if (!ReadWholeFile(PathOf(m_file.FileName())))
        {
            m_isGood = false;
            AddUnreadable(m_whenMissing, aboutTexts, PathOf(m_file.FileName()), m_diagnosis);
            return;
        }
        for (const LibraryText& text : LibraryTexts())
            Judge(text);
        if (m_isGood)
            Tell(Verdict::Good, {}, "all " + std::to_string(LibraryTexts().size()) + " texts of the library", "");
    }

private:
    void Judge(const LibraryText& text)
    {
        if (!m_file.HasSection(text.section))
            TellOfSection(text.section);
        else if (const LanguageKey* const key = m_file.Find(text.section, text.key))
            JudgeKey(text, *key);
        else
            Tell(m_whenMissing, EndOf(text.section),
                 "the text " + NameOf(text) + " is missing, and \"no value present\" is shown in its place",
                 "add to the section: " + SampleOf(text), "missing in ");
    }

    void JudgeKey(const LibraryText& text, const LanguageKey& key)
    {
        if (key.text.empty())
            Tell(Verdict::Warning, key.place, "the text " + NameOf(text) + " is empty", "write " + SampleOf(text),
                 "empty in ");
        else if (key.text.size() > longestLanguageText)
            Tell(Verdict::Warning, key.place,
                 "the text " + NameOf(text) + " has " + std::to_string(key.text.size()) + " characters, of which " +
                     std::to_string(longestLanguageText) + " are shown",
                 "make it shorter", "too long in ");
        else if (CountOf(key.text, argumentMark) < CountOf(SampleOf(text), argumentMark))
            Tell(Verdict::Warning, key.place, "the text " + NameOf(text) + " has no place for what it is about",
                 "write '' there, as in " + SampleOf(text), "without a place in ");
    }

    void TellOfSection(const std::string& section)
    {
        if (!m_missingSections.insert(section).second)
            return;
        const auto count = std::ranges::count(LibraryTexts(), section, &LibraryText::section);
        Tell(m_whenMissing, {},
             "the section [" + section + "] is missing, with " + Counted(static_cast<size_t>(count), "text", "texts") +
                 " of the library",
             "copy the section from a language file of the samples");
    }

    // Texts of one file that lack the same are of one kind.
    void Tell(Verdict verdict, const ClytSpan& place, const std::string& message, const std::string& hint,
              const std::string& kind = "")
    {
        m_isGood = m_isGood && verdict == Verdict::Good;
        m_diagnosis.Add({verdict, aboutTexts, m_file.FileName(), place, message, hint,
                         kind.empty() ? "" : kind + m_file.FileName()});
    }

    // The last line of a section: what is missing belongs below it.
    ClytSpan EndOf(const std::string& section) const
    {
        ClytSpan end;
        for (const LanguageKey& key : m_file.Keys())
        {
            if (IsSameName(key.section, section))
                end = key.place;
        }
        return end;
    }

    std::string SampleOf(const LibraryText& text) const
    {
        return text.key + "=" + commandline::ToUtf8(LibraryTextIn(m_file.Language(), text.section, text.key));
    }

    const LanguageFile& m_file;
    const Verdict m_whenMissing;
    Diagnosis& m_diagnosis; // of the caller, like the file
    std::set<std::string> m_missingSections;
    bool m_isGood = true;
};

} // namespace

void JudgeTexts(const Deployment& deployment, const Configuration& configuration, Diagnosis& diagnosis)
{
    if (deployment.dialogs.chosen.empty())
        return;
    const LanguageFiles languages(deployment.dialogs.chosen);
    const std::string inUse = commandline::ToUtf8(configuration.Language());
    for (const LanguageFile& file : languages.Files())
        TextJudge(file, IsSameName(file.Language(), inUse), diagnosis).JudgeAll();
}

} // namespace lytdlg
