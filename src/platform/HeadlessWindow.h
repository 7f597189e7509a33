#pragma once
#include "platform/Window.h"

// A window that shows nothing: open until Destroy or until the process is asked to stop (Ctrl+C, SIGTERM).
// The only events it ever has are those stop requests.
class CHeadlessWindow : public IWindow
{
public:
    CHeadlessWindow();
    ~CHeadlessWindow() override;
    bool IsOpen() const override;
    bool HandleOneEvent() override;
    void Destroy() override;

private:
    bool m_bOpen = true;
};
