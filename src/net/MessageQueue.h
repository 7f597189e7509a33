#pragma once
#include <cstdint>

// One whole frame, header and payload in their wire form, in an allocation of exactly its size.
struct CMessageNode
{
    CMessageNode* m_pNext = nullptr;
    uint8_t* m_pData = nullptr;
    uint32_t m_nSize = 0;
    uint32_t m_nSource = 0; // the id of the machine whose connection it came on
};

// The frames received and not yet handled, first in first out. Destroying the queue frees what is left.
class CMessageQueue
{
public:
    CMessageQueue() = default;
    CMessageQueue(const CMessageQueue&) = delete;
    CMessageQueue& operator=(const CMessageQueue&) = delete;
    ~CMessageQueue();

    // Appends a copy of the bytes; false, with nothing queued, when there is no memory for it.
    bool Push(const uint8_t* pFrame, uint32_t uiSize, uint32_t uiSource);
    // Takes the oldest node off the queue; the caller frees it with FreeNode. Null when empty.
    CMessageNode* Pop();
    static void FreeNode(CMessageNode* pNode);

    CMessageNode* m_pHead = nullptr;
    CMessageNode* m_pTail = nullptr;
    uint32_t m_nCount = 0;
};
