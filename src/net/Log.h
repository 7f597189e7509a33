#pragma once

// The one debug log of the network classes: a format text and its arguments, a line each. Players never see
// it; by default it goes to standard error, each line prefixed "net: ".
void Log(const char* pFormat, ...) __attribute__((format(printf, 1, 2)));

typedef void (*LogSink)(const char* pLine);
// Sends the lines elsewhere (tests, the bot's line count) and returns the sink it replaces; null restores the
// standard-error sink.
LogSink SetLogSink(LogSink pSink);
