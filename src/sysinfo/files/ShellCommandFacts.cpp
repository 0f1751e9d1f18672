#include "sysinfo/files/ShellCommand.h"

#include "sysinfo/frame/Probes.h"
#include "sysinfo/frame/RegistryKey.h"
#include "sysinfo/frame/Report.h"

namespace
{

constexpr DWORD textSize = 512;

std::optional<CString> DefaultValueOf(const RegistryKey& key)
{
    CString text;
    if (!key.ReadWholeText(nullptr, textSize, text))
        return {};
    return text;
}

} // namespace

ShellCommandFacts ReadShellCommandFacts(const CString& verb)
{
    ShellCommandFacts facts;
    const RegistryKey extension(HKEY_CLASSES_ROOT, lytShellExtension);
    facts.isRegistered = extension.IsOpen();
    if (CString type; extension.ReadText(nullptr, textSize, type))
        facts.type = type;
    if (!facts.type)
        return facts;

    const RegistryKey command(HKEY_CLASSES_ROOT, *facts.type + "\\shell\\" + verb + "\\command");
    facts.isAvailable = command.IsOpen();
    facts.command = DefaultValueOf(command);
    return facts;
}

void lytShowShellCommand(const char* verb)
{
    if (std::optional<CString> line = ShellCommandLine(verb, ReadShellCommandFacts(verb)))
        AddReportLine(*std::move(line));
}
