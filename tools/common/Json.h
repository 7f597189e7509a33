#pragma once
#include <ostream>

// The pieces of the tools' one-line JSON reports.

// Three decimals; JSON has no word for infinity or NaN, so those are null.
void WriteJsonNumber(std::ostream& Stream, float fValue);
// A string in quotes. Quotes, backslashes and control characters are escaped, and so is every byte above
// 127, read as a Latin-1 character: text that came from a peer is any bytes at all, and the line stays JSON.
void WriteJsonString(std::ostream& Stream, const char* pText);

// The elements of a range between square brackets, separated by commas.
template <typename R, typename F> void WriteJsonArray(std::ostream& Stream, const R& Range, F WriteElement)
{
    Stream << "[";
    const char* pSeparator = "";
    for(const auto& Element : Range)
    {
        Stream << pSeparator;
        WriteElement(Element);
        pSeparator = ",";
    }
    Stream << "]";
}
