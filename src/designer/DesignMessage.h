#pragma once

#include <QPoint>
#include <QPointer>
#include <QWidget>

// Message codes of the records the engine hands to OnMessage. Mouse and key
// events of the design control and everything inside it become such records;
// a handler that sets the code to 0 swallows the event.
namespace DesignMessages {
constexpr unsigned WM_MOVE = 0x0003;
constexpr unsigned WM_SIZE = 0x0005;
constexpr unsigned WM_PAINT = 0x000F;
constexpr unsigned WM_KEYDOWN = 0x0100;
constexpr unsigned WM_KEYUP = 0x0101;
constexpr unsigned WM_HSCROLL = 0x0114;
constexpr unsigned WM_VSCROLL = 0x0115;
constexpr unsigned WM_MOUSEMOVE = 0x0200;
constexpr unsigned WM_LBUTTONDOWN = 0x0201;
constexpr unsigned WM_LBUTTONUP = 0x0202;
constexpr unsigned WM_LBUTTONDBLCLK = 0x0203;
constexpr unsigned WM_RBUTTONDOWN = 0x0204;
constexpr unsigned WM_RBUTTONUP = 0x0205;
constexpr unsigned WM_RBUTTONDBLCLK = 0x0206;
constexpr unsigned WM_MBUTTONDOWN = 0x0207;
constexpr unsigned WM_MBUTTONUP = 0x0208;
constexpr unsigned WM_MBUTTONDBLCLK = 0x0209;
constexpr unsigned WM_MOUSEWHEEL = 0x020A;
// The engine's own posted messages.
constexpr unsigned FD_POPUPMENU = 2025;
constexpr unsigned FD_LEAVEMOUSEACTION = 0xB001;
} // namespace DesignMessages

// One intercepted input event, as handlers see it.
struct TDesignMessage
{
    QPointer<QWidget> hwnd;   // the widget the event is addressed to
    unsigned message = 0;     // a DesignMessages code; 0 = swallowed
    int key = 0;              // Qt::Key of key messages
    Qt::MouseButtons buttons; // buttons held (mouse messages)
    Qt::KeyboardModifiers shift;
    QPoint pos;               // in hwnd's coordinates
    QPoint pt;                // global position
    qint64 time = 0;          // milliseconds
};
