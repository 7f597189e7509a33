#pragma once
#include <cstdint>
#include <string>

// Strict readers for numbers typed by hand on a command line or in a script: the whole text must be the
// number, in decimal, within range. Each returns false and leaves the value alone on anything else.
bool ParseUnsigned(const std::string& Text, uint64_t uiMax, uint64_t& uiValue);
// An unsigned number from uiMin to uiMax that fits 32 bits.
bool ParseU32(const std::string& Text, uint32_t uiMin, uint32_t uiMax, uint32_t& uiValue);
bool ParseSigned(const std::string& Text, int32_t& iValue);
bool ParseFinite(const std::string& Text, float& fValue);

// Keeps the reason for a refusal and returns false, so that a reader can refuse in one statement.
bool Reject(std::string& Error, const std::string& Reason);
