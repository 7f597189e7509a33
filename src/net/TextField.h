#pragma once
#include <cstddef>

// Copies a text into a fixed field of the game: a text longer than the field is cut at the field's end, and
// the field is always terminated.
template <size_t N> void CopyText(char (&szField)[N], const char* pText)
{
    size_t i = 0;
    for(; i + 1 < N && pText[i] != '\0'; i++)
        szField[i] = pText[i];
    szField[i] = '\0';
}
