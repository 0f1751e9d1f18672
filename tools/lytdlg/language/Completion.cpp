#include "lytdlg/language/Completion.h"

#include "lytdlg/judge/DescriptionIndex.h"
#include "lytdlg/judge/Lists.h"
#include "lytdlg/judge/PartnerCalls.h"

#include <algorithm>
#include <set>

namespace lytdlg
{

namespace
{

// Whole statements, for a line that begins.
constexpr struct
{
    Section section;
    const char* label;
    const char* detail;
    const char* snippet;
} statementForms[] = {
    {Section::Values, "item", "an item of a list", "${1:List}: ${2:Key} = ${3:value}"},
    {Section::Values, "filled", "a list filled by a library",
     "${1:List} = FILLEDBY, ${2:library}, ${3:Open}, ${4:Next}"},
    {Section::Dependencies, "rule", "a dependency rule",
     "${1:Control}/${2|VISIBLE,ACTIVE,CLEAR,FILL|} = ${3:Other}(${4:NOTNULL})"},
    {Section::Evaluation, "check", "refused while empty", "${1:Control} = NULL: ${2:Message}"},
    {Section::Input, "cut", "cut at a separator", "${1:Start}: (\"${2:;}\", ${3:Next} = ${4:Control}"},
    {Section::Input, "condition", "go on by what a control holds",
     "${1:Name}: ${2:Control}(${3:value}) = ${4:Then}, ${5:Else}"},
    {Section::Input, "part", "a part that a button runs",
     "\\$INPUT, ${1:name}\n    Start: (\"${2:;}\", ${3:Next} = ${4:Control}"},
    {Section::Output, "rule", "an output rule", "${1:Control}(${2:value}) = (\"${3:%s}\", ${4:Control})"},
    {Section::Output, "group", "a group for a button or a library",
     "\\$OUTPUT, ${1:name}\n    (\"${2:%s}\", ${3:Control})"},
};

constexpr int rowHeight = 26; // of a form, in layout units

class Proposer
{
public:
    Proposer(const Workspace& workspace, const std::string& path, NamedWord word)
        : m_path(path),
          m_word(std::move(word)),
          m_description(workspace.DescriptionAt(m_word.home)),
          m_surroundings(workspace.SurroundingsAt(m_word.home)),
          m_line(m_description.text.Line(KindOfText(path) == TextKind::Description ? m_word.place.line : 0)),
          m_isFirst(m_line.number != 0 &&
                    m_line.text.find_first_not_of(" \t") >= static_cast<size_t>(m_word.place.column))
    {
        if (m_line.number != 0 && (m_word.text.starts_with('$') || (m_line.section == Section::Head && m_isFirst)))
            m_word.meaning = Meaning::SectionWord;
    }

    Proposals Make()
    {
        Propose();
        if (m_isFirst && m_word.meaning != Meaning::SectionWord)
            AddStatements();
        return {m_word.place, std::move(m_proposals)};
    }

private:
    void Propose()
    {
        switch (m_word.meaning)
        {
        case Meaning::SectionWord:
            AddAll(ProposalKind::Word, {std::begin(lytSectionWords), std::end(lytSectionWords)});
            break;
        case Meaning::TypeWord: AddTypes(); break;
        case Meaning::TextSection: AddTextSections(); break;
        case Meaning::TextKey:
            AddTexts(m_word.scope);
            if (m_line.section == Section::Values)
                AddKeywords();
            break;
        case Meaning::Message: AddTexts(messageSection); break;
        case Meaning::CaseWord: AddAll(ProposalKind::Word, CaseWords()); break;
        case Meaning::Item:
        case Meaning::Control: AddControls(); break;
        case Meaning::Keyword: AddKeywords(); break;
        case Meaning::Option: AddAll(ProposalKind::Word, WordsOf<ClytOption>()); break;
        case Meaning::Value: AddValues(); break;
        case Meaning::State: AddAll(ProposalKind::Word, WordsOf<ClytState>()); break;
        case Meaning::Fill: AddAll(ProposalKind::Word, WordsOf<ClytFillAction>()); break;
        case Meaning::Statement: AddStatementNames(); break;
        case Meaning::Part: AddAll(ProposalKind::Name, PartNames(m_description)); break;
        case Meaning::Group: AddAll(ProposalKind::Name, GroupNames(m_description)); break;
        case Meaning::Dialog: AddAll(ProposalKind::File, m_surroundings.descriptions.Names()); break;
        case Meaning::Library: AddLibraries(); break;
        case Meaning::Function: AddFunctions(); break;
        case Meaning::Nothing: break;
        }
    }

    void Add(ProposalKind kind, const std::string& label, const std::string& detail = "",
             const std::string& snippet = "")
    {
        if (label.empty() || !m_known.insert(label).second)
            return;
        if (snippet.empty())
            m_proposals.push_back({kind, label, detail, Written(kind, label), false});
        else
            m_proposals.push_back({kind, label, detail, snippet, true});
    }

    // In quotes where a sign would end the word, and in the layout, where a blank does.
    std::string Written(ProposalKind kind, const std::string& label) const
    {
        const bool isText = kind == ProposalKind::Text || kind == ProposalKind::Value;
        const bool needsQuotes =
            m_line.section == Section::Layout || label.find_first_of("=,();:/<>") != std::string::npos;
        return isText && needsQuotes && !m_description.IsQuoted(m_word.place) ? InQuotes(label) : label;
    }

    void AddAll(ProposalKind kind, const std::vector<std::string>& labels)
    {
        for (const std::string& label : labels)
            Add(kind, label);
    }

    void AddStatements()
    {
        for (const auto& form : statementForms)
        {
            if (form.section == m_line.section)
                m_proposals.push_back({ProposalKind::Snippet, form.label, form.detail, form.snippet, true});
        }
    }

    // Below the control above.
    void AddTypes()
    {
        const ClytControlStatement* above = nullptr;
        for (const ClytControlStatement& control : m_description.controls)
            above = control.span.line < m_line.number ? &control : above;
        const std::string left = std::to_string(above != nullptr ? above->x : rowHeight);
        const std::string top = std::to_string(above != nullptr ? above->y + rowHeight : rowHeight);
        for (const ClytType& type : lytTypes)
        {
            const bool isGroup = type.kind == ClytKind::OptionGroup;
            const bool isTall = type.hasItems || type.kind == ClytKind::Frame;
            const std::string size = std::string("${3:160}, ${4:") + (isTall ? "79" : type.hasSize ? "19" : "12") + "}";
            const std::string place = isGroup ? "" : " ${1:" + left + "}, ${2:" + top + "}, " + size + ",";
            const bool hasText = type.hasCaption || (type.isButton && !type.isDefault);
            Add(ProposalKind::Word, type.word, type.name,
                std::string(type.word) + place + (hasText ? " \"${5:Key}\"," : "") + " .${6:Name}");
        }
        Add(ProposalKind::Word, "End Dialog");
    }

    void AddTextSections()
    {
        for (const LanguageFile& file : m_surroundings.texts.Files())
        {
            for (const LanguageKey& key : file.Keys())
                Add(ProposalKind::Name, key.section);
        }
    }

    void AddTexts(const std::string& section)
    {
        for (const LanguageFile& file : m_surroundings.texts.Files())
        {
            for (const LanguageKey& key : m_surroundings.texts.Keys(file.Language(), section))
                PlainPath(file.FileName()) == m_path ? Hide(key.name) : Add(ProposalKind::Text, key.name, key.text);
        }
        if (KindOfText(m_path) == TextKind::Texts)
            AddShownTexts(section);
    }

    // What a language file already has is not offered to it.
    void Hide(const std::string& label)
    {
        m_known.insert(label);
        std::erase_if(m_proposals, [&](const Proposal& proposal) { return proposal.label == label; });
    }

    void AddShownTexts(const std::string& section)
    {
        for (const DescriptionTexts& texts : m_surroundings.descriptions.All())
        {
            for (const ShownText& shown : texts.uses)
            {
                if (IsSameName(shown.section, section))
                    Add(ProposalKind::Text, shown.key, "shown by " + texts.fileName);
            }
        }
    }

    void AddControls()
    {
        for (const ClytControlStatement& control : m_description.controls)
        {
            const ClytType& type = lytTypeOf(KindOf(control));
            if (m_word.fits == nullptr || type.*m_word.fits)
                Add(ProposalKind::Control, control.name.GetString(), type.name);
        }
        if (m_line.section == Section::Values && m_word.fits == &ClytType::isButton)
            Add(ProposalKind::Word, lytTextOf(ClytValueWord::Ok));
    }

    // Of the control that the statement begins with.
    const ClytType& TypeOfStatement() const
    {
        const std::vector<NamedWord> words = WordsIn(m_description, m_line.number);
        return lytTypeOf(words.empty() ? Kind::Unknown : KindOfControl(m_description, words.front().text));
    }

    void AddKeywords()
    {
        const ClytType& type = TypeOfStatement();
        if (type.kind == Kind::Button)
            AddAll(ProposalKind::Word, WordsOf<ClytAction>());
        if (type.isFilled)
            Add(ProposalKind::Word, lytTextOf(ClytKeyword::FilledBy));
        if (type.isOpenList)
            Add(ProposalKind::Word, lytTextOf(ClytKeyword::DoubleClick));
        if (type.kind == Kind::CheckBox)
            AddAll(ProposalKind::Word, {lytTextOf(ClytKeyword::On), lytTextOf(ClytKeyword::Off)});
        AddAll(ProposalKind::Word, WordsOf<ClytOption>());
        if (type.hasItems)
            AddTexts(m_description.TextSection());
    }

    void AddValues()
    {
        const ClytControlStatement* control = m_description.FindControl(m_word.scope);
        if (control != nullptr)
        {
            for (const std::string& value :
                 m_description.Index().PossibleValuesOf(*control).value_or(std::set<std::string>()))
                Add(ProposalKind::Value, value);
            for (const ValueStatement* item : StatementsOf(m_description, m_word.scope, Role::Item))
                Add(ProposalKind::Value, item->values.front(), item->keyword);
        }
        if (m_line.section == Section::Values)
            AddKeywords();
        else if (m_line.number != 0 && m_line.section != Section::Input)
            Add(ProposalKind::Word, lytTextOf(ClytValueWord::Null));
        if (m_line.section == Section::Dependencies)
            Add(ProposalKind::Word, lytTextOf(ClytValueWord::NotNull));
    }

    void AddStatementNames()
    {
        if (m_word.isDeclared)
            return;
        for (const InputPart& part : m_description.inputs)
        {
            for (const ClytDialogInput* statement : Records(part.part->GetStatements()))
            {
                if (part.name == m_word.scope)
                    Add(ProposalKind::Name, statement->name.GetString());
            }
        }
        Add(ProposalKind::Word, "End");
    }

    std::vector<PartnerCall> OtherCalls() const
    {
        std::vector<PartnerCall> calls = PartnerCallsOf(m_description);
        std::erase_if(calls, [&](const PartnerCall& call) { return call.statement->span.line == m_line.number; });
        return calls;
    }

    // The library itself, those that are found, and those that the description calls already.
    void AddLibraries()
    {
        Add(ProposalKind::Name, "lyt64.dll");
        AddAll(ProposalKind::Name, m_surroundings.partners->Names());
        for (const PartnerCall& call : OtherCalls())
            Add(ProposalKind::Name, call.library);
    }

    void AddFunctions()
    {
        if (const Partner* partner = m_surroundings.partners->Find(LibraryFileName(m_word.scope)))
            AddAll(ProposalKind::Name, partner->table.names);
        for (const PartnerCall& call : OtherCalls())
        {
            if (IsSameName(call.library, m_word.scope))
                AddAll(ProposalKind::Name, call.functions);
        }
    }

    const std::string& m_path;
    NamedWord m_word;
    const Description& m_description; // the home of the word
    const Surroundings& m_surroundings;
    const SourceLine& m_line; // of the description, if the place is in it
    const bool m_isFirst;     // in its line
    std::vector<Proposal> m_proposals;
    std::set<std::string> m_known;
};

} // namespace

Proposals ProposalsAt(const Workspace& workspace, const std::string& path, const TextPosition& position)
{
    NamedWord word = WordAt(workspace, path, position);
    return word.home.empty() ? Proposals() : Proposer(workspace, path, std::move(word)).Make();
}

void RemoveSnippets(Proposals& proposals)
{
    std::erase_if(proposals.all, [](const Proposal& proposal) { return proposal.kind == ProposalKind::Snippet; });
    for (Proposal& proposal : proposals.all)
    {
        if (std::exchange(proposal.isSnippet, false))
            proposal.insert = proposal.label;
    }
}

} // namespace lytdlg
