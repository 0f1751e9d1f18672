#include "Module.h"

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
        for (m_index = 0; m_index < m_lines.size(); ++m_index)
        {
            m_place = 0;
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
    bool AtEnd() const { return m_place >= Current().tokens.size(); }

    bool Skip(const char* word)
    {
        const bool is = !AtEnd() && Current().tokens[m_place].Is(word);
        m_place += is ? 1 : 0;
        return is;
    }

    void Expect(const char* word)
    {
        if (!Skip(word))
            throw MacroError(syntaxError, std::string("\"") + word + "\" is missing");
    }

    std::string Take(TokenKind kind)
    {
        if (AtEnd() || Current().tokens[m_place].kind != kind)
            throw MacroError(syntaxError, "a name or a text is missing");
        return Current().tokens[m_place++].text;
    }

    Tokens TakeUntil(const std::set<std::string>& ends)
    {
        Tokens taken;
        while (!AtEnd() &&
               (Current().tokens[m_place].kind == TokenKind::Text || !ends.contains(Current().tokens[m_place].text)))
            taken.push_back(Current().tokens[m_place++]);
        return taken;
    }

    void ReadDeclaration()
    {
        if (Skip("attribute"))
            return;
        if (Skip("option"))
            return ReadOption();
        const bool isProcedure = Current().tokens[m_place].Is("function") || Current().tokens[m_place].Is("sub");
        if (!isProcedure && !Skip("public"))
            Expect("private");
        if (Skip("declare"))
            ReadLibraryFunction();
        else if (Skip("const"))
            ReadConstant();
        else if (Skip("enum"))
            ReadEnumeration();
        else if (Current().tokens[m_place].Is("function") || Current().tokens[m_place].Is("sub"))
            ReadProcedure();
        else
            ReadVariable();
        if (!AtEnd())
            throw MacroError(syntaxError, "there is more on the line than the declaration");
    }

    void ReadOption()
    {
        if (Skip("private"))
        {
            Expect("module");
            m_module.isPrivate = true;
            return;
        }
        Expect("explicit");
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
        head.isFunction = Skip("function");
        if (!head.isFunction)
            Expect("sub");
        head.name = Take(TokenKind::Name);
        Note(head.name);
        return head;
    }

    void ReadParameters(Signature& head)
    {
        Expect("(");
        while (!Skip(")"))
        {
            Parameter parameter;
            parameter.isOptional = Skip("optional");
            parameter.isByRef = Skip("byref");
            if (!parameter.isByRef)
                Expect("byval");
            parameter.name = Take(TokenKind::Name);
            Expect("as");
            const std::string type = Take(TokenKind::Name);
            parameter.type = TypeOf(type);
            parameter.isPointer = type == "longptr";
            if (Skip("="))
                parameter.otherwise = TakeUntil({",", ")"});
            head.parameters.push_back(parameter);
            Skip(",");
        }
        if (!head.isFunction)
            return;
        Expect("as");
        const std::string type = Take(TokenKind::Name);
        head.result = TypeOf(type);
        head.isResultPointer = type == "longptr";
    }

    void ReadLibraryFunction()
    {
        if (!m_module.procedures.empty())
            throw MacroError(syntaxError, "declarations come before procedures");
        Expect("ptrsafe");
        Declaration declaration;
        declaration.signature = ReadHead();
        declaration.function = NameAsWritten(declaration.signature.name);
        Expect("lib");
        declaration.library = Take(TokenKind::Text);
        if (Skip("alias"))
            declaration.function = Take(TokenKind::Text);
        ReadParameters(declaration.signature);
        m_module.declarations[declaration.signature.name] = declaration;
    }

    // Libraries tell small letters from capitals.
    std::string NameAsWritten(const std::string& name) const
    {
        return m_place > 0 ? Current().tokens[m_place - 1].written : name;
    }

    void ReadConstant()
    {
        Constant constant{Take(TokenKind::Name), {}};
        Note(constant.name);
        Expect("as");
        TypeOf(Take(TokenKind::Name));
        Expect("=");
        constant.value = TakeUntil({});
        m_module.constants.push_back(constant);
    }

    void ReadEnumeration()
    {
        Note(Take(TokenKind::Name));
        for (++m_index; m_index < m_lines.size(); ++m_index)
        {
            m_place = 0;
            if (Skip("end"))
            {
                Expect("enum");
                return;
            }
            Constant member{Take(TokenKind::Name), {}};
            Note(member.name);
            Expect("=");
            member.value = TakeUntil({});
            m_module.constants.push_back(member);
        }
        throw MacroError(syntaxError, "an enumeration does not end");
    }

    void ReadVariable()
    {
        const std::string name = Take(TokenKind::Name);
        Note(name);
        Expect("as");
        const Type type = TypeOf(Take(TokenKind::Name));
        m_module.variables[name] = {type, InitialValue(type)};
    }

    void ReadProcedure()
    {
        Procedure procedure;
        procedure.signature = ReadHead();
        ReadParameters(procedure.signature);
        const char* word = procedure.signature.isFunction ? "function" : "sub";
        for (++m_index; m_index < m_lines.size(); ++m_index)
        {
            const Tokens& tokens = Current().tokens;
            if (tokens.size() == 2 && tokens[0].Is("end") && tokens[1].Is(word))
            {
                m_place = tokens.size();
                m_module.procedures[procedure.signature.name] = procedure;
                return;
            }
            procedure.body.push_back(Current());
        }
        throw MacroError(syntaxError, procedure.signature.name + " does not end");
    }

    std::vector<Line> m_lines;
    size_t m_index = 0;
    size_t m_place = 0;
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
