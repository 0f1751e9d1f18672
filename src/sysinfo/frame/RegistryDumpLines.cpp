#include "sysinfo/frame/RegistryDump.h"

namespace
{

CString Head(const CString& name)
{
    CString head;
    head.Format("  %-45s : ", name.GetString());
    return head;
}

CString DataText(const RegistryValue& value)
{
    CString text;
    switch (value.type)
    {
    case registryText:
    case registryExpandableText: return TextOf(value);
    case registryBinary:
        for (const char byte : value.data)
            text.AppendFormat("%02X ", static_cast<unsigned>(static_cast<unsigned char>(byte)));
        return text;
    case registryNumber: text.Format("%u", NumberOf(value)); return text;
    default: return value.type <= registryLastUnsupported ? "unsupported type" : "";
    }
}

} // namespace

CString MissingKeyLine(const CString& key)
{
    return Head(key) + " Key does not exist";
}

CString EmptyKeyLine(const CString& key)
{
    return "  " + key;
}

CString ValueLine(const CString& key, const RegistryValue& value)
{
    return Head(value.name.IsEmpty() ? key : key + "/" + value.name) + DataText(value);
}
