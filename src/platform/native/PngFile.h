#pragma once
#include <cstdint>
#include <vector>

// RGBA pictures, four bytes a pixel, top row first, to and from PNG files.
bool SavePng(const char* pFileName, const std::vector<uint8_t>& vRgba, int iWidth, int iHeight);
bool LoadPng(const char* pFileName, std::vector<uint8_t>& vRgba, int& iWidth, int& iHeight);
