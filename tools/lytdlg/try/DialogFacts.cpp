#include "lytdlg/try/DialogFacts.h"

#include "dlgfile/ReadAll.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

void ReadAll(const std::string& name, ClytDialogFile& file, auto& visitor)
{
    if (file.Open(name.c_str(), CFile::modeRead) == 0)
        lytRaise(lytError("OpeningFailed"), CString(), name.c_str());
    lytReadAll(file, visitor);
}

class FactReader : public ClytDescriptionVisitor
{
public:
    FactReader(const ClytDialogFile& file, DialogFacts& target) : m_file(file), m_facts(target)
    {
        m_facts.groups.emplace_back(lytParentName);
    }

    void Control(const ClytControlStatement& statement)
    {
        if (!statement.type.IsEmpty())
            m_facts.controls.push_back({statement.name.GetString(), statement.type.GetString(), statement.span.line});
    }

    void Value(const CString& name, const CString& keyword, const CStringList& values)
    {
        ValueFact fact{name.GetString(), keyword.GetString(), {}, m_file.GetLinePlace().line};
        for (POSITION place = values.GetHeadPosition(); place != nullptr;)
            fact.values.emplace_back(values.GetNext(place).GetString());
        if (!fact.values.empty())
            m_facts.values.push_back(std::move(fact));
    }

    void InputPart(const CString& name, const std::unique_ptr<ClytInputPart>& /*part*/)
    {
        m_facts.parts.emplace_back(name.GetString());
    }

    void Output(const CString& group, const std::unique_ptr<ClytDialogOutput>& /*rule*/)
    {
        if (!group.IsEmpty() && group != lytParentName)
            m_facts.groups.emplace_back(group.GetString());
    }

private:
    const ClytDialogFile& m_file;
    DialogFacts& m_facts;
};

// Remembers where the first failure is, and raises it.
class PlaceSink final : public ErrorSink
{
public:
    void Tell(std::unique_ptr<ClytException> failure, const ClytSpan& place, ClytDue due) override
    {
        m_line = place.line;
        lytRaisingSink().Tell(std::move(failure), place, due);
    }
    void TellShortLine(const ClytSpan& place, ClytDue due) override
    {
        m_line = place.line;
        lytRaisingSink().TellShortLine(place, due);
    }
    int Line() const { return m_line; }

private:
    int m_line = 0;
};

} // namespace

int RefusedLine(const std::string& file, const std::string& defines)
{
    PlaceSink sink;
    try
    {
        ClytDialogFile reader(defines.c_str(), sink);
        ClytDescriptionVisitor nobody;
        ReadAll(file, reader, nobody);
    }
    catch (CException* e)
    {
        e->Delete();
    }
    return sink.Line();
}

DialogFacts::DialogFacts(const std::string& file, const std::string& defines)
{
    ClytDialogFile reader(defines.c_str());
    FactReader visitor(reader, *this);
    ReadAll(file, reader, visitor);
}

const ValueFact* DialogFacts::OptionOf(const std::string& control, const std::string& word) const
{
    const auto found =
        std::find_if(values.rbegin(), values.rend(),
                     [&](const ValueFact& fact) { return fact.name == control && fact.values.front() == word; });
    return found != values.rend() ? &*found : nullptr;
}

const ValueFact* DialogFacts::StatementOf(const std::string& control, const std::string& keyword) const
{
    const auto found =
        std::find_if(values.rbegin(), values.rend(),
                     [&](const ValueFact& fact) { return fact.name == control && fact.keyword == keyword; });
    return found != values.rend() ? &*found : nullptr;
}

} // namespace lytdlg
