#include "Module.h"

#include <algorithm>
#include <optional>
#include <set>

namespace macros
{

Type TypeOf(const std::string& word)
{
    if (word == "string")
        return Type::Texts;
    if (word == "collection")
        return Type::Objects;
    const std::set<std::string> numbers = {"long", "longptr", "boolean", "lytoutcome", "lytkind"};
    if (!numbers.contains(word))
        throw MacroError(syntaxError, "there is no type " + word);
    return Type::Numbers;
}

namespace
{

class Reader
{
public:
    Reader(const std::string& source, bool is64Bit) : m_lines(ReadLines(source, is64Bit)) {}

    Module Read()
    {
        for (size_t index = 0; index < m_lines.size(); index = m_index + 1)
        {
            GoTo(index);
            try
            {
                ReadDeclaration();
            }
            catch (const MacroError& error)
            {
                throw MacroError(error.Number(), "line " + std::to_string(Current().number) + ": " + error.what());
            }
        }
        if (!m_isExplicit)
            throw MacroError(syntaxError, "the module lacks Option Explicit");
        return std::move(m_module);
    }

private:
    const Line& Current() const { return m_lines[std::min(m_index, m_lines.size() - 1)]; }
    void GoTo(size_t index)
    {
        m_index = index;
        m_line = Cursor(Current().tokens);
    }
    std::string TakeName() { return m_line.Take(TokenKind::Name).text; }

    // Up to one of the signs, or to the end.
    Tokens TakeUntil(const std::set<std::string>& signs)
    {
        Tokens taken;
        while (!m_line.AtEnd() &&
               std::ranges::none_of(signs, [&](const std::string& sign) { return m_line.Sees(sign.c_str()); }))
            taken.push_back(m_line.Take());
        return taken;
    }

    void ReadDeclaration()
    {
        if (m_line.Skip("attribute"))
            return;
        if (m_line.Skip("option"))
            return ReadOption();
        const bool isProcedure = m_line.Sees("function") || m_line.Sees("sub");
        if (!isProcedure && !m_line.Skip("public"))
            m_line.Expect("private");
        if (m_line.Skip("declare"))
            ReadLibraryFunction();
        else if (m_line.Skip("const"))
            ReadConstant();
        else if (m_line.Skip("enum"))
            ReadEnumeration();
        else if (m_line.Sees("function") || m_line.Sees("sub"))
            ReadProcedure();
        else
            ReadVariable();
        if (!m_line.AtEnd())
            throw MacroError(syntaxError, "there is more on the line than the declaration");
    }

    void ReadOption()
    {
        if (m_line.Skip("private"))
        {
            m_line.Expect("module");
            m_module.isPrivate = true;
            return;
        }
        m_line.Expect("explicit");
        m_isExplicit = true;
    }

    void Note(const std::string& name)
    {
        if (!m_names.insert(name).second)
            throw MacroError(syntaxError, name + " is declared twice");
    }

    Signature ReadHead()
    {
        Signature head;
        head.isFunction = m_line.Skip("function");
        if (!head.isFunction)
            m_line.Expect("sub");
        const Token& name = m_line.Take(TokenKind::Name);
        head.name = name.text;
        head.written = name.written;
        Note(head.name);
        return head;
    }

    void ReadParameters(Signature& head)
    {
        m_line.Expect("(");
        while (!m_line.Skip(")"))
        {
            Parameter parameter;
            parameter.isOptional = m_line.Skip("optional");
            parameter.isByRef = m_line.Skip("byref");
            if (!parameter.isByRef)
                m_line.Expect("byval");
            parameter.name = TakeName();
            m_line.Expect("as");
            const std::string type = TakeName();
            parameter.type = TypeOf(type);
            parameter.isPointer = type == "longptr";
            if (m_line.Skip("="))
                parameter.otherwise = TakeUntil({",", ")"});
            head.parameters.push_back(parameter);
            m_line.Skip(",");
        }
        if (!head.isFunction)
            return;
        m_line.Expect("as");
        const std::string type = TakeName();
        head.result = TypeOf(type);
        head.isResultPointer = type == "longptr";
    }

    void ReadLibraryFunction()
    {
        if (!m_module.procedures.empty())
            throw MacroError(syntaxError, "declarations come before procedures");
        m_line.Expect("ptrsafe");
        Declaration declaration;
        declaration.signature = ReadHead();
        declaration.function = declaration.signature.written;
        m_line.Expect("lib");
        declaration.library = m_line.Take(TokenKind::Text).text;
        if (m_line.Skip("alias"))
            declaration.function = m_line.Take(TokenKind::Text).text;
        ReadParameters(declaration.signature);
        m_module.declarations[declaration.signature.name] = declaration;
    }

    void ReadConstant()
    {
        const std::string name = TakeName();
        m_line.Expect("as");
        TypeOf(TakeName());
        ReadValue(name);
    }

    void ReadValue(const std::string& name)
    {
        Note(name);
        m_line.Expect("=");
        m_module.constants.push_back({name, TakeUntil({})});
    }

    void ReadEnumeration()
    {
        Note(TakeName());
        while (m_index + 1 < m_lines.size())
        {
            GoTo(m_index + 1);
            if (m_line.Skip("end"))
            {
                m_line.Expect("enum");
                return;
            }
            ReadValue(TakeName());
        }
        throw MacroError(syntaxError, "an enumeration does not end");
    }

    void ReadVariable()
    {
        const std::string name = TakeName();
        Note(name);
        m_line.Expect("as");
        const Type type = TypeOf(TakeName());
        m_module.variables[name] = {type, InitialValue(type)};
    }

    void ReadProcedure()
    {
        Procedure procedure;
        procedure.signature = ReadHead();
        ReadParameters(procedure.signature);
        const char* word = procedure.signature.isFunction ? "function" : "sub";
        while (m_index + 1 < m_lines.size())
        {
            GoTo(m_index + 1);
            if (m_line.Sees("end") && m_line.Sees(word, 1))
            {
                m_line = Cursor(Current().tokens, 2);
                m_module.procedures[procedure.signature.name] = procedure;
                return;
            }
            procedure.body.push_back(Current());
        }
        throw MacroError(syntaxError, procedure.signature.name + " does not end");
    }

    const Tokens m_none;
    std::vector<Line> m_lines;
    size_t m_index = 0;
    Cursor m_line{m_none};
    Module m_module;
    std::set<std::string> m_names;
    bool m_isExplicit = false;
};

} // namespace

Module ReadModule(const std::string& source, bool is64Bit)
{
    return Reader(source, is64Bit).Read();
}

} // namespace macros
