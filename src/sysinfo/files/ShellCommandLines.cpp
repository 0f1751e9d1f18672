#include "sysinfo/files/ShellCommand.h"

std::optional<CString> ShellCommandLine(const CString& verb, const ShellCommandFacts& facts)
{
    const CString extension = lytShellExtension;
    if (!facts.isRegistered)
        return "Extension " + extension + " is not registered";
    if (!facts.type)
        return {};
    if (!facts.isAvailable)
        return "Shell command <" + verb + "> not available for extension <" + extension + ">";
    if (!facts.command)
        return {};
    return "Shell command <" + verb + "> for <" + extension + "> files executes: <" + *facts.command + ">";
}
