#include "lytdlg/text/DescriptionLines.h"

#include "base/Words.h"
#include "dlgfile/ReadAll.h"
#include "environment/ClytException.h"
#include "lytdlg/judge/DescriptionText.h"
#include "lytdlg/text/Paths.h"

#include <algorithm>
#include <array>

namespace lytdlg
{

namespace
{

constexpr size_t pieceSize = ClytDialogFile::lineSize;
constexpr std::array ofEndOfFile = {lytError("LayoutMissing"), lytError("DialogMissing"), lytError("ControlsOpen"),
                                    lytError("EndTooSoon")};
// Each one more doubles the readings.
constexpr size_t mostDefines = 8;

DescriptionLines Split(const std::string& content)
{
    DescriptionLines split;
    const size_t endOfLines = content.find(endOfText);
    size_t start = 0;
    while (start < content.size())
    {
        const size_t feed = content.find('\n', start);
        size_t end = std::min(feed, content.size());
        const size_t next = feed != std::string::npos ? feed + 1 : end;
        if (feed != std::string::npos && end > start && content[end - 1] == '\r')
            --end;
        if (endOfLines < next)
            break;
        split.lines.push_back({content.substr(start, end - start), content.substr(end, next - end), {}});
        start = next;
    }
    split.unread = content.substr(start);
    return split;
}

// The line with a number. The part of a line before an end of text has a number beyond them, and none is returned.
DescriptionLine* LineOf(std::vector<DescriptionLine>& lines, int number)
{
    const size_t index = static_cast<size_t>(number) - 1;
    return index < lines.size() ? &lines[index] : nullptr;
}

class RefusalSink final : public ErrorSink
{
public:
    explicit RefusalSink(std::vector<DescriptionLine>& lines) : m_lines(lines) {}

    // When the file ends too early, its last line is not to blame.
    void Tell(std::unique_ptr<ClytException> failure, const ClytSpan& place, ClytDue due) override
    {
        const bool isOfEnd = std::ranges::any_of(ofEndOfFile, [&](const char* number)
                                                 { return lytSameWord(failure->GetNumber(), number); });
        if (!isOfEnd || place.length != 0)
            TellShortLine(place, due);
    }
    void TellShortLine(const ClytSpan& place, ClytDue /*due*/) override
    {
        if (DescriptionLine* line = LineOf(m_lines, place.line))
            line->isRefused = true;
    }

private:
    std::vector<DescriptionLine>& m_lines;
};

// Notes what each line is read as.
class NotingFile final : public ClytDialogFile, public ClytDescriptionVisitor
{
public:
    NotingFile(std::vector<DescriptionLine>& lines, const std::string& choice, ErrorSink& sink)
        : ClytDialogFile(choice.c_str(), sink), m_lines(lines)
    {
    }

    char* ReadString(char* buffer, UINT count) override
    {
        char* text = ClytDialogFile::ReadString(buffer, count);
        DescriptionLine* line = text != nullptr ? LineOf(m_lines, GetLinePlace().line) : nullptr;
        if (line != nullptr)
            line->kinds.set(static_cast<size_t>(m_kind));
        return text;
    }
    void LinesBegin(ClytLineKind kind) { m_kind = kind; }

private:
    std::vector<DescriptionLine>& m_lines;
    ClytLineKind m_kind = ClytLineKind::Header;
};

void ReadUnder(const std::string& choice, const std::filesystem::path& fileName, std::vector<DescriptionLine>& lines)
{
    RefusalSink sink(lines);
    NotingFile file(lines, choice, sink);
    OpenDescription(file, fileName);
    lytReadAll(file, file);
    file.Close();
}

} // namespace

void OpenDescription(CStdioFile& file, const std::filesystem::path& fileName)
{
    if (file.Open(NameForLibrary(fileName).c_str(), CFile::modeRead) == 0)
        throw std::runtime_error("the library cannot open " + fileName.string() + "; check its name and its rights");
}

std::vector<std::string> DefinesOf(const std::vector<DescriptionLine>& lines)
{
    std::vector<std::string> names;
    for (const DescriptionLine& line : lines)
    {
        // Each piece of a long line is a separate line.
        for (size_t start = 0; start < line.text.size(); start += pieceSize)
        {
            if (line.text[start] != '<')
                continue;
            const size_t begin = start + (line.text.compare(start + 1, 1, "!") == 0 ? 2 : 1);
            const size_t end = std::min(line.text.find_first_of(std::string(" \t;\r\0", 5), begin), line.text.size());
            const std::string name = line.text.substr(begin, end - begin);
            // The list of the defines has a name for each part of this one.
            if (name.find(',') == std::string::npos && std::ranges::find(names, name) == names.end())
                names.push_back(name);
        }
    }
    return names;
}

std::vector<std::string> ChoicesOf(const std::vector<std::string>& defines)
{
    std::vector<std::string> choices;
    for (unsigned long choice = 0; choice < 1UL << defines.size(); ++choice)
    {
        std::string list;
        for (size_t i = 0; i < defines.size(); ++i)
        {
            if ((choice >> i & 1) != 0)
                list += "," + defines[i];
        }
        // A comma alone is the list of the empty name.
        choices.push_back(list.size() > 1 ? list.substr(1) : list);
    }
    return choices;
}

DescriptionLines ReadDescriptionLines(const std::filesystem::path& fileName, const std::string& content)
{
    DescriptionLines split = Split(content);
    const std::vector<std::string> defines = DefinesOf(split.lines);
    if (defines.size() > mostDefines)
        throw TooManyDefines("asks for " + std::to_string(defines.size()) + " defines, and no more than " +
                             std::to_string(mostDefines) + " can be tried in every choice");
    for (const std::string& choice : ChoicesOf(defines))
        ReadUnder(choice, fileName, split.lines);
    return split;
}

} // namespace lytdlg
