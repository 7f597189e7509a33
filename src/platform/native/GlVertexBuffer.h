#pragma once
#include "platform/interfaces/RenderDevice.h"

#include <memory>
#include <vector>

typedef std::shared_ptr<const std::vector<uint8_t>> CVertexBytesRef;

// Vertices in client memory, which the fixed-function pipeline reads straight from at each draw. The device
// shares the bytes while the buffer is its stream source, so a set buffer stays alive.
class CGlVertexBuffer : public IVertexBuffer
{
public:
    explicit CGlVertexBuffer(uint32_t uiLength) : m_pBytes(std::make_shared<std::vector<uint8_t>>(uiLength)) {}
    void* Lock() override { return m_pBytes->data(); }
    void Unlock() override {}
    uint32_t GetLength() const override { return static_cast<uint32_t>(m_pBytes->size()); }
    CVertexBytesRef Bytes() const { return m_pBytes; }

private:
    std::shared_ptr<std::vector<uint8_t>> m_pBytes;
};
