// Reads a description from its first line to its last, section after section, and passes each statement to a visitor.
#pragma once

#include "dlgfile/ClytDialogFile.h"
#include "dlgfile/Sections.h"
#include "model/ClytControlDep.h"
#include "model/ClytControlEval.h"
#include "model/ClytDialogOutput.h"
#include "model/ClytInputPart.h"

// The name of the input part and of the output group that belong to the dialog as a whole.
inline constexpr const char* lytParentName = "parent";

// A visitor has its own version of the members that it wants to be called. After an error sink that returns, it is given
// what was read of the statement.
class ClytDescriptionVisitor
{
public:
    // The lines that follow are of that kind.
    void LinesBegin(ClytLineKind /*kind*/) {}
    // The words of a header are those after its first.
    void LayoutHeader(const CString& /*version*/, CStringList& /*words*/) {}
    // A line that begins something else is not read.
    void DialogHeader(bool /*isRead*/, int /*width*/, int /*height*/, const CString& /*title*/,
                      const CString& /*lastText*/)
    {
    }
    void Control(const ClytControlStatement& /*statement*/) {}
    void Value(const CString& /*name*/, const CString& /*keyword*/, const CStringList& /*values*/) {}
    // A rule that the visitor does not take stays as it is, and the next statement adds to it.
    void Dependency(std::unique_ptr<ClytControlDep>& /*rule*/) {}
    void EvaluationHeader(CStringList& /*words*/) {}
    void Evaluation(ClytControlEval& /*statement*/) {}
    void InputPart(const CString& /*name*/, std::unique_ptr<ClytInputPart>& /*part*/) {}
    // The group is that of a header; any other statement has none, and adds to a rule that was not taken.
    void Output(const CString& /*group*/, std::unique_ptr<ClytDialogOutput>& /*rule*/) {}
};

template <class VISITOR>
class ClytReading
{
public:
    ClytReading(ClytDialogFile& openFile, VISITOR& target) : file(openFile), visitor(target) {}

    void All()
    {
        ReadHead();
        ReadControls();
        ReadValues();
        ReadDependencies();
        ReadEvaluations();
        ReadInputs();
        ReadOutputs();
    }

private:
    void TakeHeaderWords(CStringList& words)
    {
        if (file.TakeTokens(words) != 0)
            words.RemoveHead();
    }

    void ReadHead()
    {
        visitor.LinesBegin(ClytLineKind::Header);
        CString version;
        file.ReadVersionHeader(version);
        CStringList words;
        TakeHeaderWords(words);
        visitor.LayoutHeader(version, words);

        visitor.LinesBegin(ClytLineKind::Dialog);
        int width = 0;
        int height = 0;
        CString title;
        CString lastText;
        const bool isRead = file.ReadDialogHeader(width, height, title, lastText) != 0;
        visitor.DialogHeader(isRead, width, height, title, lastText);
    }

    void ReadControls()
    {
        visitor.LinesBegin(ClytLineKind::Controls);
        ClytControlStatement statement;
        while (file.ReadControlStatement(statement) != 0)
            visitor.Control(statement);
    }

    void ReadValues()
    {
        visitor.LinesBegin(ClytLineKind::Values);
        CString name;
        CString keyword;
        CStringList values;
        while (file.ReadValueStatement(name, keyword, values) != 0)
            visitor.Value(name, keyword, values);
    }

    void ReadDependencies()
    {
        visitor.LinesBegin(ClytLineKind::Dependencies);
        auto rule = std::make_unique<ClytControlDep>();
        while (file.ReadDependencyStatement(*rule) != 0)
        {
            visitor.Dependency(rule);
            if (rule == nullptr)
                rule = std::make_unique<ClytControlDep>();
        }
    }

    void ReadEvaluations()
    {
        CStringList words;
        TakeHeaderWords(words);
        visitor.EvaluationHeader(words);
        visitor.LinesBegin(ClytLineKind::Evaluation);
        while (true)
        {
            ClytControlEval statement;
            if (file.ReadEvaluationStatement(statement.ownValues, statement.otherValues, statement.messageKey) == 0)
                return;
            visitor.Evaluation(statement);
        }
    }

    void ReadInputs()
    {
        visitor.LinesBegin(ClytLineKind::FirstInput);
        CString name;
        while (file.ReadInputHeader(name) != 0)
        {
            visitor.LinesBegin(ClytLineKind::Input);
            auto part = std::make_unique<ClytInputPart>();
            file.ReadInputPart(*part);
            if (name.IsEmpty())
                name = lytParentName;
            visitor.InputPart(name, part);
            visitor.LinesBegin(ClytLineKind::FirstInput);
        }
    }

    void ReadOutputs()
    {
        visitor.LinesBegin(ClytLineKind::Output);
        CString group;
        auto rule = std::make_unique<ClytDialogOutput>();
        while (file.ReadOutputStatement(group, *rule) != 0)
        {
            visitor.Output(group, rule);
            group.Empty();
            if (rule == nullptr)
                rule = std::make_unique<ClytDialogOutput>();
        }
    }

    ClytDialogFile& file;
    VISITOR& visitor;
};

// The file is open, and nothing of it has been read.
template <class VISITOR>
void lytReadAll(ClytDialogFile& file, VISITOR& visitor)
{
    ClytReading<VISITOR>(file, visitor).All();
}
