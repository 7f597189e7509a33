#include "platform/interfaces/ErrorBox.h"

#include <cstdio>

namespace
{
void PrintError(const char* pText)
{
    std::fprintf(stderr, "Trelvane: %s\n", pText);
}

ErrorHandler g_pErrorHandler = PrintError;
} // namespace

void ShowError(const char* pText)
{
    g_pErrorHandler(pText);
}

void ShowErrorf(const char* pFormat, const char* pArg)
{
    char szText[1024];
    std::snprintf(szText, sizeof(szText), pFormat, pArg);
    ShowError(szText);
}

ErrorHandler SetErrorHandler(ErrorHandler pHandler)
{
    ErrorHandler pOld = g_pErrorHandler;
    g_pErrorHandler = pHandler ? pHandler : PrintError;
    return pOld;
}
