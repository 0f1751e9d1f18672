// One run of a procedure: its variables, and its statements one after the other.
#pragma once

#include "Interpreter.h"

namespace macros
{

class Activation
{
public:
    Activation(Interpreter& interpreter, const Procedure& procedure, const Arguments& arguments);

    Value Run();

    // The variable of that name, or null.
    std::shared_ptr<Variable> Find(const std::string& name) const;
    // Raises MacroError when there is no function or procedure of that name.
    Value Call(const std::string& name, const Arguments& arguments) { return m_interpreter.Call(name, arguments); }
    std::optional<Value> FindConstant(const std::string& name) const;
    long long LastError() const { return m_interpreter.m_libraries.LastError(); }
    // The text of the error that was caught last.
    const std::string& Description() const { return m_caught; }

private:
    enum class Flow
    {
        Next,
        LeaveLoop,
        LeaveProcedure
    };

    void Bind(const Parameter& parameter, std::shared_ptr<Variable> argument);
    void BindLeftOut(const Parameter& parameter);
    void Declare(const std::string& name, Type type);

    // Runs the lines from there on. The line to continue with, after an error that the procedure handles.
    std::optional<size_t> RunFrom(size_t start);
    // The line after the label that errors go to. An error in what follows it goes to the caller.
    size_t LineOfHandler();
    // Runs the lines from the first to before the last.
    Flow RunLines(size_t first, size_t last);
    // Runs the statement or the block that begins there, and puts the line to the end of it.
    Flow RunAt(size_t& line);
    Flow RunIf(size_t& line);
    Flow RunChoice(size_t& line);
    Flow RunLoop(size_t& line);
    Flow RunStatement(const Tokens& tokens);
    void RunDeclaration(const Tokens& tokens);
    void RunConstant(const Tokens& tokens);
    void RunAssignment(const Tokens& tokens, size_t start);
    void AddItem(const Tokens& tokens);
    void Raise(const Tokens& tokens);

    const Tokens& TokensAt(size_t line) const { return m_procedure.body[line].tokens; }
    // The line that ends the block of the line, which its word opens and the others close.
    size_t EndOf(size_t line) const;
    // The lines of the block at its own depth that begin with one of the words.
    std::vector<size_t> PartsOf(size_t line, size_t end, const std::set<std::string>& words) const;
    bool Holds(const Tokens& tokens, size_t start, size_t end);
    void Note(size_t line) { m_interpreter.m_run.insert(m_procedure.body[line].number); }

    Interpreter& m_interpreter;
    const Procedure& m_procedure;
    std::map<std::string, std::shared_ptr<Variable>> m_locals;
    std::map<std::string, Value> m_constants;
    std::string m_handler; // the label that errors go to; empty when they go to the caller
    std::string m_caught;
};

} // namespace macros
