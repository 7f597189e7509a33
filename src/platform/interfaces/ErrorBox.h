#pragma once

// Tells the user of a fault and returns when the user has seen it. Until a window exists the text goes to
// standard error; the window layer and tests install their own handler.
void ShowError(const char* pText);

// Formats one argument into the message, as the game's error texts have at most one.
void ShowErrorf(const char* pFormat, const char* pArg);

// The game's text for a file or folder it needs and can't find.
constexpr char MISSING_FILE_ERROR[] = "ERROR: %s doesn't exist.";

typedef void (*ErrorHandler)(const char* pText);
// Installs a handler and returns the one it replaces; null restores the standard-error handler.
ErrorHandler SetErrorHandler(ErrorHandler pHandler);
