// Runs macros as their host does, as far as the module lyt64.bas needs: what the module says is what is run. Every name
// must be declared, and types must agree.
#pragma once

#include "Evaluator.h"
#include "Module.h"

#include <optional>
#include <set>

namespace macros
{

class Interpreter
{
public:
    explicit Interpreter(const std::string& source, bool is64Bit = true);

    // Calls a procedure. What is at a parameter by reference is changed.
    Value Call(const std::string& name, const Arguments& arguments = {});

    // The numbers of the lines that hold statements, and of those that were run.
    std::set<int> Statements() const;
    const std::set<int>& Run() const { return m_run; }

private:
    friend class Activation;

    std::optional<Value> FindConstant(const std::string& name) const;

    Module m_module;
    std::map<std::string, std::shared_ptr<Variable>> m_variables;
    std::map<std::string, Value> m_constants;
    Libraries m_libraries;
    std::set<int> m_run;
};

} // namespace macros
