// A place in a description: what a statement, a word or a mistake covers.
#pragma once

struct ClytSpan
{
    int line = 0;   // in the file, from 1; 0 for no place at all
    int column = 0; // bytes from the start of the line, from 0
    int length = 0; // bytes
};
