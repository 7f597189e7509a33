#include "net/Log.h"

#include <cstdarg>
#include <cstdio>

namespace
{
void PrintLine(const char* pLine)
{
    std::fprintf(stderr, "net: %s\n", pLine);
}

LogSink g_pLogSink = PrintLine;
} // namespace

// A line longer than the buffer is cut: the log must never be the thing that a hostile peer overflows.
void Log(const char* pFormat, ...)
{
    char szLine[512];
    va_list Args;
    va_start(Args, pFormat);
    std::vsnprintf(szLine, sizeof(szLine), pFormat, Args);
    va_end(Args);
    g_pLogSink(szLine);
}

LogSink SetLogSink(LogSink pSink)
{
    LogSink pOld = g_pLogSink;
    g_pLogSink = pSink ? pSink : PrintLine;
    return pOld;
}
