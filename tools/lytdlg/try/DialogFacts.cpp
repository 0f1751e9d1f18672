#include "lytdlg/try/DialogFacts.h"

#include "dialog/ClytDialog.h"

#include <algorithm>

namespace lytdlg
{

namespace
{

// Reads the sections in their order.
class FactReader
{
public:
    FactReader(const std::string& name, const std::string& defines, DialogFacts& target,
               ErrorSink& errors = lytRaisingSink())
        : m_file(defines.c_str(), errors), m_facts(target)
    {
        if (m_file.Open(name.c_str(), CFile::modeRead) == 0)
            lytRaise(lytError("OpeningFailed"), CString(), name.c_str());
    }

    void Read()
    {
        CString text;
        m_file.ReadVersionHeader(text);
        PassHeader();
        int length = 0;
        static_cast<void>(m_file.ReadDialogHeader(length, length, text, text)); // what follows is read in any case
        ReadControls();
        ReadValues();
        for (ClytControlDep rule; m_file.ReadDependencyStatement(rule) == 1;)
            rule.conditions.RemoveAll();
        PassHeader();
        ReadEvaluations();
        ReadParts();
        ReadGroups();
    }

private:
    void PassHeader()
    {
        CStringList words;
        m_file.TakeTokens(words);
    }

    void ReadControls()
    {
        ClytControlStatement statement;
        while (m_file.ReadControlStatement(statement) != 0)
        {
            if (!statement.type.IsEmpty())
                m_facts.controls.push_back(
                    {statement.name.GetString(), statement.type.GetString(), statement.span.line});
        }
    }

    void ReadValues()
    {
        CString name;
        CString keyword;
        CStringList values;
        while (m_file.ReadValueStatement(name, keyword, values) != 0)
        {
            ValueFact fact{name.GetString(), keyword.GetString(), {}, m_file.GetLinePlace().line};
            for (POSITION place = values.GetHeadPosition(); place != nullptr;)
                fact.values.emplace_back(values.GetNext(place).GetString());
            if (!fact.values.empty())
                m_facts.values.push_back(std::move(fact));
        }
    }

    void ReadEvaluations()
    {
        while (true)
        {
            ClytCtrlValList own;
            ClytCtrlValList other;
            CString messageKey;
            if (m_file.ReadEvaluationStatement(own, other, messageKey) == 0)
                return;
        }
    }

    void ReadParts()
    {
        CString name;
        while (m_file.ReadInputHeader(name) != 0)
        {
            m_facts.parts.emplace_back(name.IsEmpty() ? lytParentName : name.GetString());
            ClytInputPart part;
            m_file.ReadInputPart(part);
        }
    }

    void ReadGroups()
    {
        m_facts.groups.emplace_back(lytParentName);
        CString name;
        for (ClytDialogOutput rule; m_file.ReadOutputStatement(name, rule) != 0; name.Empty())
        {
            if (!name.IsEmpty() && name != lytParentName)
                m_facts.groups.emplace_back(name.GetString());
        }
    }

    ClytDialogFile m_file;
    DialogFacts& m_facts;
};

// Remembers where the first failure is, and raises it.
class PlaceSink final : public ErrorSink
{
public:
    void Tell(std::unique_ptr<ClytException> failure, const ClytSpan& place) override
    {
        m_line = place.line;
        lytRaisingSink().Tell(std::move(failure), place);
    }
    void TellShortLine(const ClytSpan& place) override
    {
        m_line = place.line;
        lytRaisingSink().TellShortLine(place);
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
        DialogFacts ignored;
        FactReader(file, defines, ignored, sink).Read();
    }
    catch (CException* e)
    {
        e->Delete();
    }
    return sink.Line();
}

DialogFacts::DialogFacts(const std::string& file, const std::string& defines)
{
    FactReader(file, defines, *this).Read();
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
