#include "lytdlg/judge/Fixes.h"

#include "lytdlg/text/Paths.h"
#include "lytdlg/text/TextFile.h"
#include "lytdlg/text/Words.h"

#include <algorithm>
#include <set>
#include <tuple>

namespace lytdlg
{

namespace
{

// A line of a file as it is, with its end.
struct FixedLine
{
    std::string text;
    std::string end;
};

std::vector<FixedLine> FixedLinesOf(const std::string& text)
{
    std::vector<FixedLine> lines;
    for (size_t start = 0; start < text.size();)
    {
        const size_t feed = std::min(text.find('\n', start), text.size());
        const size_t next = std::min(feed + 1, text.size());
        const size_t end = feed > start && feed < text.size() && text[feed - 1] == '\r' ? feed - 1 : feed;
        lines.push_back({text.substr(start, end - start), text.substr(end, next - end)});
        start = next;
    }
    return lines;
}

// Where a fix begins and ends.
auto BeginOf(const Fix& fix)
{
    return std::pair(fix.place.line, fix.place.column);
}
auto EndOf(const Fix& fix)
{
    return std::pair(fix.place.line, fix.place.column + fix.place.length);
}
bool AreEqual(const Fix& left, const Fix& right)
{
    return BeginOf(left) == BeginOf(right) && EndOf(left) == EndOf(right) && left.text == right.text;
}

// In their order, and none that overlaps with the one before it.
std::vector<Fix> FixesApart(std::vector<Fix> fixes)
{
    std::ranges::stable_sort(fixes, {}, BeginOf);
    std::vector<Fix> apart;
    for (Fix& fix : fixes)
    {
        if (apart.empty() || EndOf(apart.back()) < BeginOf(fix))
            apart.push_back(std::move(fix));
    }
    return apart;
}

bool IsBlank(const std::string& text)
{
    return text.find_first_not_of(" \t") == std::string::npos;
}

void Put(const Fix& fix, size_t shift, const std::string& lineEnd, FixedLine& line)
{
    const size_t column = std::min(static_cast<size_t>(fix.place.column) + shift, line.text.size());
    line.text.replace(column, static_cast<size_t>(fix.place.length), WithLineEnds(fix.text, lineEnd));
    if (fix.text.empty() && IsBlank(line.text))
        line = {};
}

// How much each rule finds.
std::map<const Rule*, size_t> CountsOf(const Findings& findings)
{
    std::map<const Rule*, size_t> counts;
    for (const Finding& finding : findings.All())
        ++counts[finding.rule];
    return counts;
}

// Goes from fix to fix, as long as one helps.
class Mender
{
public:
    Mender(const Description& description, const Surroundings& surroundings, Fixing fixing)
        : m_path(description.path),
          m_defines(description.text.Defines()),
          m_surroundings(surroundings),
          m_fixing(fixing),
          m_mended{description.text.Bytes()},
          m_findings(Judge(description, surroundings))
    {
    }

    MendedText Mend()
    {
        // What is mended might lead back to where it was.
        constexpr int mostSteps = 1000;
        for (int step = 0; step < mostSteps && (MendErrors() || MendOthers()); ++step)
        {
        }
        return std::move(m_mended);
    }

private:
    using Chosen = std::vector<const Finding*>;

    Chosen Choose(bool areErrors) const
    {
        Chosen chosen;
        for (const Finding& finding : m_findings.All())
        {
            const bool isError = finding.rule->level == Level::Error;
            if (finding.path.empty() && isError == areErrors && IsFixed(finding, m_fixing) &&
                !m_refused.contains(KeyOf(finding)))
                chosen.push_back(&finding);
        }
        return chosen;
    }

    // What an error hid is seen once it is mended.
    bool MendErrors() { return MendAny(Choose(true), true); }
    bool MendOthers() { return MendAny(Choose(false), false); }

    // All of them together, or else the first that helps.
    bool MendAny(const Chosen& chosen, bool mayShowMore)
    {
        if (chosen.empty())
            return false;
        if (Try(chosen, mayShowMore))
            return true;
        for (const Finding* finding : chosen)
        {
            if (chosen.size() > 1 && Try({finding}, mayShowMore))
                return true;
            m_refused.insert(KeyOf(*finding));
        }
        return false;
    }

    bool Try(const Chosen& chosen, bool mayShowMore)
    {
        std::vector<Fix> fixes;
        for (const Finding* finding : chosen)
            fixes.push_back(*finding->fix);
        fixes = FixesApart(std::move(fixes));
        const std::string text = WithFixes(m_mended.text, fixes);
        Findings findings = Judge(Description(m_path, text, m_defines), m_surroundings);
        std::map<const Rule*, size_t> before = CountsOf(m_findings);
        std::map<const Rule*, size_t> after = CountsOf(findings);
        const bool isLess = std::ranges::all_of(chosen, [&](const Finding* finding)
                                                { return after[finding->rule] < before[finding->rule]; });
        const bool isMore =
            std::ranges::any_of(after, [&](const auto& count) { return count.second > before[count.first]; });
        if (!isLess || (isMore && !mayShowMore))
            return false;
        m_mended = {text, m_mended.count + fixes.size()};
        m_findings = std::move(findings);
        return true;
    }

    using Key = std::tuple<const Rule*, int, int, std::string>;
    static Key KeyOf(const Finding& finding)
    {
        return {finding.rule, finding.place.line, finding.place.column, finding.fix->text};
    }

    const std::string m_path;
    const std::vector<std::string> m_defines;
    const Surroundings& m_surroundings; // of the caller
    const Fixing m_fixing;
    MendedText m_mended;
    Findings m_findings; // in the text as it is mended
    std::set<Key> m_refused;
};

} // namespace

bool IsFixed(const Finding& finding, Fixing fixing)
{
    return finding.fix && (fixing == Fixing::All || (fixing == Fixing::Safe && finding.fix->isSafe));
}

std::string WithFixes(const std::string& text, std::vector<Fix> fixes)
{
    std::vector<FixedLine> lines = FixedLinesOf(text);
    const std::string lineEnd = lines.empty() || lines.front().end.empty() ? "\n" : lines.front().end;
    const size_t mark = text.starts_with(byteOrderMark) ? std::string_view(byteOrderMark).size() : 0;
    fixes = FixesApart(std::move(fixes));
    std::ranges::reverse(fixes); // so that columns before one stay as they are
    for (const Fix& fix : fixes)
    {
        const auto index = static_cast<size_t>(fix.place.line - 1);
        if (fix.place.line > 0 && index < lines.size())
            Put(fix, index == 0 ? mark : 0, lineEnd, lines[index]);
    }
    std::string fixed;
    for (const FixedLine& line : lines)
        fixed += line.text + line.end;
    return fixed;
}

MendedText MendDescription(const Description& description, const Surroundings& surroundings, Fixing fixing)
{
    if (fixing == Fixing::Nothing)
        return {description.text.Bytes()};
    return Mender(description, surroundings, fixing).Mend();
}

void SharedFixes::TakeFrom(Findings& findings)
{
    findings.Remove(
        [&](const Finding& finding)
        {
            if (finding.path.empty() || !IsFixed(finding, m_fixing) || !HasLineOf(finding))
                return false;
            std::vector<Fix>& fixes = m_fixes[finding.path];
            if (std::ranges::none_of(fixes, [&](const Fix& known) { return AreEqual(known, *finding.fix); }))
                fixes.push_back(*finding.fix);
            return true;
        });
}

// The lines of a file in another encoding, or with other line ends, are not those that its reader counts.
bool SharedFixes::HasLineOf(const Finding& finding)
{
    const auto [file, isNew] = m_lines.try_emplace(finding.path);
    if (isNew)
    {
        const std::string content = ReadWholeFile(PathOf(finding.path)).value_or("");
        for (const FixedLine& line : FixedLinesOf(content.starts_with(byteOrderMark) ? "" : content))
            file->second.push_back(line.text);
    }
    const auto index = static_cast<size_t>(finding.place.line - 1);
    return index < file->second.size() && file->second[index] == finding.line;
}

std::map<std::string, MendedText> SharedFixes::Mended() const
{
    std::map<std::string, MendedText> mended;
    for (const auto& [path, fixes] : m_fixes)
        mended[path] = {WithFixes(ReadWholeFile(PathOf(path)).value_or(""), fixes), FixesApart(fixes).size()};
    return mended;
}

} // namespace lytdlg
