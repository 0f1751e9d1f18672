// Case in code page 1252, in which every text of the library is.
#pragma once

// Code page 1252 has three pairs of letters and one letter without a partner outside the Latin-1 block.
inline unsigned char ToLower1252(unsigned char ch)
{
    if ((ch >= 'A' && ch <= 'Z') || (ch >= 0xC0 && ch <= 0xDE && ch != 0xD7))
        return static_cast<unsigned char>(ch + 0x20);
    switch (ch)
    {
    case 0x8A: return 0x9A;
    case 0x8C: return 0x9C;
    case 0x8E: return 0x9E;
    case 0x9F: return 0xFF;
    default: return ch;
    }
}

inline unsigned char ToUpper1252(unsigned char ch)
{
    if ((ch >= 'a' && ch <= 'z') || (ch >= 0xE0 && ch <= 0xFE && ch != 0xF7))
        return static_cast<unsigned char>(ch - 0x20);
    switch (ch)
    {
    case 0x9A: return 0x8A;
    case 0x9C: return 0x8C;
    case 0x9E: return 0x8E;
    case 0xFF: return 0x9F;
    default: return ch;
    }
}
