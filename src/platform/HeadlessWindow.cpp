#include "platform/HeadlessWindow.h"

#include <csignal>

namespace
{
volatile std::sig_atomic_t g_bStopRequested = 0;

void OnStopSignal(int)
{
    g_bStopRequested = 1;
}
} // namespace

CHeadlessWindow::CHeadlessWindow()
{
    g_bStopRequested = 0;
    std::signal(SIGINT, OnStopSignal);
    std::signal(SIGTERM, OnStopSignal);
}

CHeadlessWindow::~CHeadlessWindow()
{
    std::signal(SIGINT, SIG_DFL);
    std::signal(SIGTERM, SIG_DFL);
}

bool CHeadlessWindow::IsOpen() const
{
    return m_bOpen;
}

bool CHeadlessWindow::HandleOneEvent()
{
    if(!g_bStopRequested)
        return false;
    g_bStopRequested = 0;
    Destroy();
    return true;
}

void CHeadlessWindow::Destroy()
{
    m_bOpen = false;
}
