#include "sounds/WavWriter.h"

#include <cmath>
#include <cstdint>
#include <fstream>

namespace
{
// Rounds to the nearest step so that a silent sample stays exactly zero and a full one reaches 32767.
int16_t ToPcm(float fSample)
{
    const float fClipped = fSample > 1.0f ? 1.0f : (fSample < -1.0f ? -1.0f : fSample);
    return static_cast<int16_t>(std::lround(fClipped * 32767.0f));
}

void PutLittleEndian(std::string& Bytes, uint32_t uiValue, int nBytes)
{
    for(int i = 0; i < nBytes; ++i)
        Bytes.push_back(static_cast<char>((uiValue >> (8 * i)) & 0xFF));
}

// The canonical 44-byte header: RIFF, a 16-byte fmt chunk for integer PCM, then the data chunk.
std::string Header(int nChannels, std::size_t nFrames)
{
    const uint32_t uiBlockAlign = static_cast<uint32_t>(nChannels) * 2;
    const uint32_t uiDataBytes = static_cast<uint32_t>(nFrames) * uiBlockAlign;
    std::string Bytes = "RIFF";
    PutLittleEndian(Bytes, 36 + uiDataBytes, 4);
    Bytes += "WAVEfmt ";
    PutLittleEndian(Bytes, 16, 4);
    PutLittleEndian(Bytes, 1, 2); // integer PCM
    PutLittleEndian(Bytes, static_cast<uint32_t>(nChannels), 2);
    PutLittleEndian(Bytes, SAMPLE_RATE, 4);
    PutLittleEndian(Bytes, SAMPLE_RATE * uiBlockAlign, 4);
    PutLittleEndian(Bytes, uiBlockAlign, 2);
    PutLittleEndian(Bytes, 16, 2);
    Bytes += "data";
    PutLittleEndian(Bytes, uiDataBytes, 4);
    return Bytes;
}

bool WriteInterleaved(const std::string& Path, int nChannels, const std::vector<const Mono*>& vChannels)
{
    const std::size_t nFrames = vChannels.front()->size();
    std::string Bytes = Header(nChannels, nFrames);
    Bytes.reserve(Bytes.size() + nFrames * static_cast<std::size_t>(nChannels) * 2);
    for(std::size_t i = 0; i < nFrames; ++i)
    {
        for(const Mono* pChannel : vChannels)
            PutLittleEndian(Bytes, static_cast<uint16_t>(ToPcm((*pChannel)[i])), 2);
    }
    std::ofstream Stream(Path, std::ios::binary | std::ios::trunc);
    Stream.write(Bytes.data(), static_cast<std::streamsize>(Bytes.size()));
    Stream.close();
    return static_cast<bool>(Stream);
}
} // namespace

bool WriteMonoWav(const std::string& Path, const Mono& vSamples)
{
    return WriteInterleaved(Path, 1, {&vSamples});
}

bool WriteStereoWav(const std::string& Path, const Stereo& Samples)
{
    return WriteInterleaved(Path, 2, {&Samples.m_vLeft, &Samples.m_vRight});
}
