#include "common/Json.h"

#include <cmath>
#include <cstdio>

void WriteJsonNumber(std::ostream& Stream, float fValue)
{
    if(!std::isfinite(fValue))
    {
        Stream << "null";
        return;
    }
    char szText[32];
    std::snprintf(szText, sizeof(szText), "%.3f", static_cast<double>(fValue));
    Stream << szText;
}

void WriteJsonString(std::ostream& Stream, const char* pText)
{
    Stream << '"';
    for(const unsigned char* p = reinterpret_cast<const unsigned char*>(pText); *p; p++)
    {
        if(*p == '"' || *p == '\\')
            Stream << '\\' << *p;
        else if(*p >= 0x20 && *p < 0x7F)
            Stream << *p;
        else
        {
            char szEscape[8];
            std::snprintf(szEscape, sizeof(szEscape), "\\u%04x", static_cast<unsigned>(*p));
            Stream << szEscape;
        }
    }
    Stream << '"';
}
