#include "net/MessageQueue.h"

#include <cstring>
#include <new>

CMessageQueue::~CMessageQueue()
{
    while(CMessageNode* pNode = Pop())
        FreeNode(pNode);
}

bool CMessageQueue::Push(const uint8_t* pFrame, uint32_t uiSize, uint32_t uiSource)
{
    CMessageNode* pNode = new(std::nothrow) CMessageNode;
    uint8_t* pCopy = new(std::nothrow) uint8_t[uiSize];
    if(!pNode || !pCopy)
    {
        delete pNode;
        delete[] pCopy;
        return false;
    }
    std::memcpy(pCopy, pFrame, uiSize);
    pNode->m_pData = pCopy;
    pNode->m_nSize = uiSize;
    pNode->m_nSource = uiSource;
    if(m_pTail)
        m_pTail->m_pNext = pNode;
    else
        m_pHead = pNode;
    m_pTail = pNode;
    m_nCount++;
    return true;
}

CMessageNode* CMessageQueue::Pop()
{
    CMessageNode* pNode = m_pHead;
    if(!pNode)
        return nullptr;
    m_pHead = pNode->m_pNext;
    if(!m_pHead)
        m_pTail = nullptr;
    m_nCount--;
    return pNode;
}

void CMessageQueue::FreeNode(CMessageNode* pNode)
{
    delete[] pNode->m_pData;
    delete pNode;
}
